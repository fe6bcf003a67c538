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


def faults_in(path: str, text: str, table: dict[str, set[str]]) -> list[str]:
    room = path.split("/", 1)[0]
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
        target = own.split("/", 1)[0]
        if target not in table and target != "quorin":
            faults.append(f'{where}: "{own}" is not rooted at the repository, or its room is not in tools/layers.txt')
            continue
        # Families below vendor/ stand side by side like the rooms do.
        same = target == room and (room != "vendor" or path.split("/")[1] == own.split("/")[1])
        allowed = table[room]
        if not (same or "*" in allowed or target in allowed or own in allowed):
            faults.append(f'{where}: {room}/ may not include "{own}"')
    return faults


def check_tree() -> int:
    table = read_table((ROOT / "tools/layers.txt").read_text())
    files = [p for room in table for p in (ROOT / room).rglob("*") if p.suffix in (".hpp", ".cpp", ".h", ".inl")]
    faults = [f for p in sorted(files) for f in faults_in(str(p.relative_to(ROOT)), p.read_text(), table)]
    for fault in faults:
        print(fault, file=sys.stderr)
    print(f"{len(files)} files in {len(table)} rooms, {len(faults)} faults")
    return 1 if faults or len(files) < 20 else 0


def self_test() -> int:
    table = read_table("# comment\nplatform:\nbase: platform\nslap: base dense/dense.hpp\ndense: base\nvendor: base\nexports: *\n")
    cases = [
        ("base/a.cpp", '#include "platform/platform.hpp"', 0),
        ("base/a.cpp", '#include "dense/dense.hpp"', 1),
        ("base/a.cpp", '#include "allocator.hpp"', 1),
        ("base/a.cpp", "#include <windows.h>", 1),
        ("platform/win32/a.cpp", "  #  include <windows.h>", 0),
        ("slap/a.cpp", '#include "dense/dense.hpp"\n#include "dense/level1.hpp"', 1),
        ("vendor/rci/a.cpp", '#include "vendor/rci/cg.hpp"\n#include "vendor/feast/feast.hpp"', 1),
        ("exports/a.cpp", '#include "slap/slap.hpp"', 0),
    ]
    wrong = [case for case in cases if len(faults_in(case[0], case[1], table)) != case[2]]
    for case in wrong:
        print(f"self-test: {case}", file=sys.stderr)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(self_test() or (0 if "--self-test" in sys.argv else check_tree()))
