#!/usr/bin/env python3
"""What the matrices that come with the dependencies hold, read by Python.

    tests/taucs/make_reference.py MATRICES-DIRECTORY > tests/taucs/reference_matrices.txt

Each line: format, file, type asked for, rows, columns, entries, symmetry of the full matrix ("s" A = A^T, "h" A = A^H,
"-" neither), and two checksums modulo 2^64: of the pattern, and of the bits of the values. Python's float() rounds
correctly, and fields are cut here by the columns of the header's formats. Of triplets, rows and columns are the largest
index + 1; their order within a column is that of the file.
"""
import re
import struct
import sys
from pathlib import Path

MASK = 2**64 - 1


def bits(x: float) -> int:
    return struct.unpack("<Q", struct.pack("<d", x))[0]


def checksums(entries):
    """entries: (row, column, value) in the order of storage."""
    pattern = values = 0
    for k, (i, j, x) in enumerate(entries, 1):
        pattern += k * ((i + 1) * 1000003 + j + 1)
        values += k * (bits(x.real) + 3 * bits(x.imag)) if isinstance(x, complex) else k * bits(x)
    return pattern & MASK, values & MASK


def symmetry(entries, one_triangle: str) -> str:
    full = {}
    for i, j, x in entries:
        full[i, j] = full.get((i, j), 0) + x
        if one_triangle and i != j:
            full[j, i] = full.get((j, i), 0) + (x.conjugate() if one_triangle == "h" else x)
    if all(full.get((j, i)) == x for (i, j), x in full.items()):
        return "s"
    return "h" if all(full.get((j, i), 1j).conjugate() == x for (i, j), x in full.items()) else "-"


def fields(lines, descriptor: str, count: int):
    repeat, width = map(int, re.search(r"(\d+)[IEDFG](\d+)", descriptor.upper()).groups())
    taken = []
    while len(taken) < count:
        line = next(lines)
        taken += [line[k * width : (k + 1) * width] for k in range(min(repeat, count - len(taken)))]
    return taken


def harwell_boeing(path: Path):
    lines = iter(path.read_text().splitlines())
    next(lines)
    cards = next(lines).split()
    kind = (line := next(lines))[:3].upper()
    m, n, nnz = (int(x) for x in line[3:].split()[:3])
    formats = re.findall(r"\([^)]*\)", next(lines))
    if len(cards) > 4 and int(cards[4]) > 0:
        next(lines)
    starts = [int(x) - 1 for x in fields(lines, formats[0], n + 1)]
    rows = [int(x) - 1 for x in fields(lines, formats[1], nnz)]
    count = {"P": 0, "R": nnz, "C": 2 * nnz}[kind[0]]
    numbers = [float(x.upper().replace("D", "E")) for x in fields(lines, formats[2], count)] if count else [1.0] * nnz
    if kind[0] == "C":
        numbers = [complex(*pair) for pair in zip(numbers[::2], numbers[1::2])]
    columns = [j for j in range(n) for _ in range(starts[j], starts[j + 1])]
    return "z" if kind[0] == "C" else "d", m, n, list(zip(rows, columns, numbers)), {"S": "s", "H": "h"}.get(kind[1], "")


def triplets(path: Path):
    entries = []
    width = 0
    for line in path.read_text().splitlines():
        i, j, *value = line.split()
        width = len(value)
        entries.append((int(i), int(j), complex(*map(float, value)) if width == 2 else float(value[0])))
    m, n = (max(e[axis] for e in entries) + 1 for axis in (0, 1))
    return "z" if width == 2 else "d", m, n, sorted(entries, key=lambda e: e[1]), ""


def main():
    root = Path(sys.argv[1])
    files = [("hb", path) for pattern in ("cholmod/*.r?a", "umfpack/*.??a") for path in sorted(root.glob(pattern))]
    files += [("ijv0", path) for path in sorted(root.glob("cxsparse/*"))]
    for form, path in files:
        kind, m, n, entries, one_triangle = (harwell_boeing if form == "hb" else triplets)(path)
        sums = " ".join(f"{x:016x}" for x in checksums(entries))
        print(form, path.relative_to(root), kind, m, n, len(entries), symmetry(entries, one_triangle), sums)


main()
