#!/usr/bin/env python3
"""Holds every #include against the table of rooms in tools/layers.txt.

  tools/check_layers.py              checks the tree
  tools/check_layers.py --self-test  proves that faults are found
"""

from __future__ import annotations

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
INCLUDE = re.compile(r'\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')
SYSTEM_HEADERS = re.compile(r"(windows|psapi|tlhelp32|winbase|unistd|dlfcn|pthread|sched|sys/.*|fcntl|malloc|io|process)\.h\Z")


def read_table(text: str) -> dict[str, set[str]]:
    rows = (line.partition(":") for line in text.splitlines() if line.strip() and not line.startswith("#"))
    return {room.strip(): set(allowed.split()) for room, _, allowed in rows}


def room_of(path: str, table: dict[str, set[str]]) -> str | None:
    """The room that a path lies in: its first folder, or its first two where the table says `folder/*`."""
    folder, _, rest = path.partition("/")
    if f"{folder}/*" in table:
        return f"{folder}/{rest.partition('/')[0]}"
    return folder if folder in table else None


def faults_in(path: str, text: str, table: dict[str, set[str]]) -> list[str]:
    room = room_of(path, table)
    allowed = table.get(room, table.get(f"{path.partition('/')[0]}/*", set()))
    faults = []
    for number, line in enumerate(text.splitlines(), 1):
        match = INCLUDE.match(line)
        if not match:
            continue
        own, system = match.groups()
        where = f"{path}:{number}"
        if system:
            if room != "platform" and SYSTEM_HEADERS.match(system):
                faults.append(f"{where}: <{system}> is the operating system's; only platform/ knows it")
            continue
        target = room_of(own, table)
        if target is None and not own.startswith(("quorin/", "generated/")):
            faults.append(f'{where}: "{own}" is not rooted at the repository, or its room is not in tools/layers.txt')
        elif target is not None and target != room and not {"*", target, own} & allowed:
            faults.append(f'{where}: {room}/ may not include "{own}"')
    return faults


def check_tree() -> int:
    table = read_table((ROOT / "tools/layers.txt").read_text())
    folders = [ROOT / row.removesuffix("/*") for row in table]
    files = [p for folder in folders for p in folder.rglob("*") if p.suffix in (".hpp", ".cpp", ".h", ".inl")]
    faults = [f for p in sorted(files) for f in faults_in(str(p.relative_to(ROOT)), p.read_text(), table)]
    for fault in faults:
        print(fault, file=sys.stderr)
    print(f"{len(files)} files in {len(table)} rows of rooms, {len(faults)} faults")
    return 1 if faults or len(files) < 20 else 0


def self_test() -> int:
    table = read_table("# comment\nplatform:\nbase: platform\ndense: base\nfamilies/*: base dense/dense.hpp\nexports: *\n")
    cases = [
        ("base/a.cpp", '#include "platform/platform.hpp"', 0),
        ("base/a.cpp", '#include "dense/dense.hpp"', 1),
        ("base/a.cpp", '#include "allocator.hpp"', 1),
        ("base/a.cpp", "#include <windows.h>", 1),
        ("platform/win32/a.cpp", "  #  include <windows.h>", 0),
        ("base/a.cpp", '#include "families/slap/slap.hpp"', 1),
        ("dense/blas/a.cpp", '#include "dense/kernels/b.hpp"\n#include "base/allocator.hpp"', 0),
        ("families/slap/a.cpp", '#include "dense/dense.hpp"\n#include "dense/blas/level1.hpp"', 1),
        ("families/rci/a.cpp", '#include "families/rci/cg.hpp"\n#include "families/feast/feast.hpp"\n#include "generated/rci_constants.hpp"', 1),
        ("exports/a.cpp", '#include "families/slap/slap.hpp"', 0),
    ]
    wrong = [case for case in cases if len(faults_in(case[0], case[1], table)) != case[2]]
    for case in wrong:
        print(f"self-test: {case}", file=sys.stderr)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(self_test() or (0 if "--self-test" in sys.argv else check_tree()))
