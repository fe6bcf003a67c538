#!/usr/bin/env python3
"""Looks for memory that does not come from base/allocator: what objects of the library need from outside.

check_allocations.py NM OBJECT...

Dependencies are linked with the library's allocator in the place of malloc, or are told to use it.
"""

import re
import subprocess
import sys
from pathlib import Path

NEEDED = re.compile(r"^\s*[Uuw] (?:__imp_)?(\S+)$", re.MULTILINE)
# malloc and its like, operator new in all forms, what allocates inside, and the system's own.
MEMORY = re.compile(
    r"_?_?(?:malloc|calloc|realloc|reallocarray|aligned_alloc|posix_memalign|memalign|_aligned_malloc|strdup|_strdup|strndup)"
    r"|_{1,2}Zn[wa].*|(?:_?_?)cxa_allocate_exception|_?(?:HeapAlloc|HeapReAlloc|VirtualAlloc|LocalAlloc|GlobalAlloc|CoTaskMemAlloc)(?:@\d+)?"
)
ALLOWED = {
    "base/allocator": "the allocator itself",
    "platform/win32/platform": "for the table of processors",
    "platform/win32/workers": "for a thread on its way, before the allocator",
    "platform/win32/gcc_threads": "what the compiler's thread support takes at load and gives back at unload",
    "platform/posix/platform": "for a thread on its way",
}


def takes_memory(symbols: str) -> list[str]:
    return sorted({name for name in NEEDED.findall(symbols) if MEMORY.fullmatch(name)})


def main() -> int:
    # A guard that cannot fail is none.
    for symbol in ("_malloc", "malloc", "__Znwj", "_ZnwmRKSt9nothrow_t", "__imp__HeapAlloc@12"):
        assert takes_memory(f"         U {symbol}\n"), symbol
    assert not takes_memory("         U _free\n         U _mallocs\n00000010 T _malloc\n")
    nm, objects = sys.argv[1], [Path(o) for o in sys.argv[2:]]
    faults, seen = [], 0
    for path in objects:
        symbols = subprocess.run([nm, "-u", path], capture_output=True, text=True, check=True).stdout
        taken = takes_memory(symbols)
        seen += bool(taken)
        source = re.sub(r"CMakeFiles/[^/]+\.dir/", "", path.as_posix())
        if taken and not any(name in source for name in ALLOWED):
            faults.append(f"{source} takes memory by {', '.join(taken)}")
    if not seen:
        faults.append(f"none of {len(objects)} objects takes memory, not even the allocator")
    print("\n".join(faults) or f"{len(objects)} objects: memory from the allocator alone")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
