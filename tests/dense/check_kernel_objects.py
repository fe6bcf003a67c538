#!/usr/bin/env python3
"""Looks for code in the objects of the instruction sets that the linker could take for other processors, too.

check_kernel_objects.py NM OBJECT...

Whatever avx2.cpp or its like defines must name its instruction set: an inline function of another header, compiled
there, might be the copy that all of the library gets.
"""

import re
import subprocess
import sys
from pathlib import Path

SETS = {"sse2": "Sse2", "avx2": "Avx2", "avx512": "Avx512"}
DEFINED = re.compile(r"^[0-9a-f]+ [TtWwVvu] (.+)$", re.MULTILINE)
# Sections, data about unwinding, and what the compiler makes for one translation unit alone.
LOCAL = re.compile(r"^\.|^DW\.ref\.|^_?GCC_except_table|^\.?(text|data|bss|rdata|xdata|pdata)\b")


def strangers(symbols: str, name: str) -> list[str]:
    """The defined symbols that do not name the set."""
    allowed = (f"target::{SETS[name]}", f"make_{name}_sets", f"make_{name}_small_sets")
    found = [s for s in DEFINED.findall(symbols) if not LOCAL.match(s)]
    return [s for s in found if not any(a in s for a in allowed)]


def main() -> int:
    # A guard that cannot fail is none.
    assert strangers("00000010 W std::max(int, int)\n", "avx2")
    assert strangers("00000010 T f<quorin::dense::kernels::target::Sse2>()\n", "avx2")
    assert not strangers("00000010 W f<quorin::dense::kernels::target::Avx2>()\n", "avx2")
    nm, objects = sys.argv[1], [Path(o) for o in sys.argv[2:]]
    seen = 0
    faults = []
    for path in objects:
        name = path.name.split(".")[0]
        if path.parent.name != "kernels" or name not in SETS:
            continue
        symbols = subprocess.run([nm, "-C", path], capture_output=True, text=True, check=True).stdout
        if len(DEFINED.findall(symbols)) < 20:
            faults.append(f"{path}: hardly any symbols")
        faults += [f"{path.name}: {s}" for s in strangers(symbols, name)]
        seen += 1
    if seen != len(SETS):
        faults.append(f"{seen} of {len(SETS)} instruction sets seen")
    print("\n".join(faults) or f"{seen} instruction sets: nothing but their own")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
