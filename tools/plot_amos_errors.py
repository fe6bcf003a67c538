#!/usr/bin/env python3
"""The accuracy page from the errors that test_amos_reference measured.

    QUORIN_FULL_TESTS=true test_amos_reference SMALL_TABLE FULL_TABLE ZEROS RANDOM COMPLEX_ZEROS SEQUENCES errors.txt
    python3 tools/plot_amos_errors.py errors.txt docs

writes docs/accuracy-amos.svg (worst error in each cell of the complex plane) and the table of docs/accuracy-amos.md.
"""
import math
import sys
from collections import defaultdict

REGIONS = [
    ("series, |z| <= 2", lambda f, z, nu: nu < 85.92 and abs(z) <= 2),
    ("moderate, |z| <= 21.8", lambda f, z, nu: nu < 85.92 and abs(z) <= 21.78),
    ("large argument, nu^2 <= 2 |z|", lambda f, z, nu: nu < 85.92 and nu * nu <= 2 * abs(z)),
    ("recurrence from large order", lambda f, z, nu: nu < 85.92),
    ("turning points", lambda f, z, nu: near_turning_point(f, z, nu)),
    ("large order", lambda f, z, nu: True),
]
AIRY_REGIONS = [
    ("series, |z| <= 1", lambda f, z, nu: abs(z) <= 1),
    ("moderate, |zeta| <= 21.8", lambda f, z, nu: abs(z) ** 1.5 <= 1.5 * 21.78),
    ("large argument", lambda f, z, nu: True),
]
HALF_WIDTH = 40  # cells on each side of the origin
DECADES = 6.1  # radius of the picture in log10(1 + |z|)


def near_turning_point(f, z, nu):
    x = (-1j if f in "IK" else 1) * z / nu
    return min(nu * abs(2 * (1 - y)) ** 1.5 / 3 for y in (x, -x)) < 20


def read(path):
    for line in open(path):
        f, x, y, nu, error = line.split()
        yield f, complex(float(x), float(y)), float(nu), float(error)


def table(values):
    groups = defaultdict(list)
    for f, z, nu, error in values:
        regions = AIRY_REGIONS if f in "AB" else REGIONS
        name = next(name for name, inside in regions if inside(f, z, nu))
        groups[{"A": "Ai, Ai'", "B": "Bi, Bi'"}.get(f, f), name].append(error)
    lines = ["| function | region | values | median | 99 % below | worst |", "|---|---|---|---|---|---|"]
    for f in ("H", "I", "J", "K", "Y", "Ai, Ai'", "Bi, Bi'"):
        for name, _ in AIRY_REGIONS if len(f) > 1 else REGIONS:
            errors = sorted(groups[f, name])
            if errors:
                shown = name.replace("|", "\\|")
                lines.append(f"| {f} | {shown} | {len(errors)} | {errors[len(errors) // 2]:.1e} "
                             f"| {errors[len(errors) * 99 // 100]:.1e} | {errors[-1]:.1e} |")
    return "\n".join(lines) + "\n"


def colour(error):
    """White at 1e-16, through yellow to dark red at 1e-13."""
    t = min(1.0, max(0.0, (math.log10(max(error, 1e-17)) + 16) / 3))
    red, green, blue = (255, 255 - 120 * t, 230 - 400 * t) if t < 0.5 else (255 - 250 * (t - 0.5), 195 - 390 * (t - 0.5), 30)
    return "#" + "".join(f"{int(min(255, max(0, c))):02x}" for c in (red, green, blue))


def panel(values, title, left):
    worst = {}
    for z, error in values:
        radius = math.log10(1 + abs(z)) / DECADES
        unit = z / abs(z)
        cell = (math.floor(radius * unit.real * HALF_WIDTH), math.floor(-radius * unit.imag * HALF_WIDTH))
        worst[cell] = max(worst.get(cell, 0.0), error)
    middle = 170
    parts = [f'<text x="{left + middle}" y="14" text-anchor="middle">{title}</text>']
    shades = defaultdict(list)
    for (i, j), error in sorted(worst.items()):
        shades[round(4 * math.log10(max(error, 1e-17)))].append(f"M{left + middle + 4 * i} {190 + 4 * j}h4v4h-4z")
    for shade, cells in sorted(shades.items()):
        parts.append(f'<path fill="{colour(10 ** (shade / 4))}" d="{"".join(cells)}"/>')
    for decade in range(1, 7):
        parts.append(f'<circle cx="{left + middle}" cy="190" r="{160 * math.log10(1 + 10**decade) / DECADES:.1f}" '
                     'fill="none" stroke="#888" stroke-width="0.5"/>')
    return parts


def picture(values):
    parts = ['<svg xmlns="http://www.w3.org/2000/svg" width="1400" height="400" font-family="sans-serif" font-size="12">']
    for k, (title, functions) in enumerate((("H", "H"), ("I, K", "IK"), ("J, Y", "JY"), ("Ai, Bi", "AB"))):
        parts += panel([(z, error) for f, z, _, error in values if f in functions and abs(z) > 0], title, 345 * k)
    for k in range(4):
        parts.append(f'<rect x="{500 + 90 * k}" y="366" width="14" height="14" fill="{colour(10.0 ** (k - 16))}" stroke="#888"/>')
        parts.append(f'<text x="{518 + 90 * k}" y="378">1e-{16 - k}</text>')
    return "\n".join(parts + ["</svg>"]) + "\n"


def main():
    values = list(read(sys.argv[1]))
    with open(sys.argv[2] + "/accuracy-amos.svg", "w") as out:
        out.write(picture(values))
    page = sys.argv[2] + "/accuracy-amos.md"
    with open(page) as old:
        head, _, tail = old.read().partition("<!-- table -->\n")
    with open(page, "w") as out:
        out.write(head + "<!-- table -->\n" + table(values) + "<!-- end of table -->\n" +
                  tail.partition("<!-- end of table -->\n")[2])


if __name__ == "__main__":
    main()
