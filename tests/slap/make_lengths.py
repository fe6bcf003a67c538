#!/usr/bin/env python3
"""Writes what the table states of the lengths of work arrays as a C++ function: make_lengths.py slap.table lengths.inc"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "exports"))

from generator import tables  # noqa: E402


def cxx(expression: str) -> str:
    return re.sub(r"\((.*) if (.*) else (.*)\)", r"(\2 ? \1 : \3)", expression.replace("//", "/"))


def main() -> None:
    table, out = Path(sys.argv[1]), Path(sys.argv[2])
    family = tables.parse({table: table.read_text()})[0]
    lines = []
    for routine in family.routines:
        minima = family.minima(routine)
        if minima:
            reals, integers = (cxx(minima[name].value) for name in ("RWORK", "IWORK"))
            lines.append(f'  if (name == "{routine.name}") return {{{reals}, {integers}}};\n')
    names = ", ".join(f"[[maybe_unused]] int {name}" for name in ("N", "NELT", "ISYM", "NSAVE", "NL", "NU", "ND"))
    out.write_text(f"Lengths documented(const std::string& name, {names}) {{\n{''.join(lines)}  return {{}};\n}}\n")


if __name__ == "__main__":
    main()
