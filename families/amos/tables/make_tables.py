#!/usr/bin/env python3
"""Write tables.hpp: the coefficients of the expansions, from their defining recurrences.

    python3 families/amos/tables/make_tables.py > families/amos/tables/tables.hpp

Needs mpmath (Debian: python3-mpmath). Sources: DLMF 5.7.1 (reciprocal gamma function), 10.41.9 (the polynomials U_k),
10.20.10-10.20.11 (A_k and B_k in terms of U_k).
"""
from fractions import Fraction

import mpmath

DEBYE_TERMS = 24
AIRY_ROWS = 5  # A_k and B_k for k = 0, 1, ...
AIRY_COLUMNS = 30  # Taylor coefficients of each, before those too small to matter are dropped
LARGE_ORDER = 85  # the expansions are used for orders above this ...
LARGEST_ZETA = 0.52  # ... and for |zeta| below this
GAMMA_TERMS = 34
PIECES_END = 25  # of the polynomials for orders 0 and 1
PIECE_TERMS = 28
MODIFIED_ENDS = (2, 4, 8, 14, 24)  # of the polynomials for I of orders 0 and 1
MODIFIED_TERMS = 22
LOG_STEPS = 64  # of the table of powers of 2
ANGLE_STEPS = 64  # in a right angle, of the table of sines


def debye_polynomials(count):
    """U_k(t) = t^k p_k(t^2); the list of the coefficients of p_k.

    U_{k+1}(t) = (1/2) t^2 (1 - t^2) U_k'(t) + (1/8) int_0^t (1 - 5 s^2) U_k(s) ds
    """
    u = {0: Fraction(1)}
    result = [[Fraction(1)]]
    for k in range(1, count):
        following = {}
        for n, c in u.items():
            for power, value in (
                (n + 1, c * n / 2 + c / (8 * (n + 1))),
                (n + 3, -c * n / 2 - 5 * c / (8 * (n + 3))),
            ):
                following[power] = following.get(power, Fraction(0)) + value
        u = following
        result.append([u[k + 2 * j] for j in range(k + 1)])
    return result


def airy_coefficients():
    """a_s and b_s of the large-argument expansions of Ai and Ai' as DLMF 10.20 uses them."""
    a, b = [mpmath.mpf(1)], [mpmath.mpf(1)]
    u = mpmath.mpf(1)
    for s in range(1, 2 * AIRY_ROWS + 1):
        u = u * (6 * s - 5) * (6 * s - 3) * (6 * s - 1) / (216 * s * (2 * s - 1))
        a.append(u)
        b.append(-u * (6 * s + 1) / (6 * s - 1))
    return a, b


def s_squared(zeta):
    """v = 1 - z^2 where (2/3) zeta^(3/2) = artanh(sqrt v) - sqrt v: Newton's method, following the ray from 0."""
    v = 2 ** (mpmath.mpf(2) / 3) * zeta / 16
    for i in range(1, 17):
        target = zeta * i / 16
        for _ in range(40):
            s = mpmath.sqrt(v)
            bracket = 3 * (mpmath.atanh(s) - s) / s**3
            value = v * (bracket / 2) ** (mpmath.mpf(2) / 3)
            step = (value - target) * 2 * (1 - v) / mpmath.sqrt(v / value)
            v -= step
            if abs(step) < mpmath.mpf(10) ** (10 - mpmath.mp.dps):
                break
        else:
            raise ArithmeticError("Newton's method did not converge")
    return v


def turning_point_series(polynomials):
    """Taylor coefficients in zeta of A_k and B_k, by Cauchy's formula on |zeta| = 1 (they are regular up to 2.8)."""
    samples = 128
    a, b = airy_coefficients()
    table_a = [[mpmath.mpc(0)] * AIRY_COLUMNS for _ in range(AIRY_ROWS)]
    table_b = [[mpmath.mpc(0)] * AIRY_COLUMNS for _ in range(AIRY_ROWS)]
    for i in range(samples):
        zeta = mpmath.expjpi(mpmath.mpf(2 * i + 1) / samples)
        root = mpmath.sqrt(zeta)
        t = 1 / (mpmath.sqrt(s_squared(zeta) / zeta) * root)
        u = [t**k * mpmath.polyval([mpmath.mpf(c.numerator) / c.denominator for c in reversed(p)], t * t)
             for k, p in enumerate(polynomials[: 2 * AIRY_ROWS + 1])]
        for k in range(AIRY_ROWS):
            value_a = sum((mpmath.mpf(3) / 2) ** s * b[s] * root ** (-3 * s) * u[2 * k - s] for s in range(2 * k + 1))
            value_b = -sum((mpmath.mpf(3) / 2) ** s * a[s] * root ** (-3 * s) * u[2 * k - s + 1]
                           for s in range(2 * k + 2)) / root
            for n in range(AIRY_COLUMNS):
                table_a[k][n] += value_a * zeta ** (-n) / samples
                table_b[k][n] += value_b * zeta ** (-n) / samples
    assert max(abs(x.imag) for row in table_a + table_b for x in row) < mpmath.mpf(10) ** -30
    return [[trimmed([x.real for x in row], k) for k, row in enumerate(table)] for table in (table_a, table_b)]


def trimmed(row, k):
    """The leading coefficients of row k that reach 1e-19 of the sum somewhere in the region of use."""
    size = [abs(c) * mpmath.mpf(LARGEST_ZETA) ** n / mpmath.mpf(LARGE_ORDER) ** (2 * k) for n, c in enumerate(row)]
    return row[: max((n + 1 for n, x in enumerate(size) if x > 1e-19), default=0)]


def reciprocal_gamma():
    """c_k of 1 / Gamma(1 + x) = sum c_k x^k."""
    return mpmath.taylor(lambda x: mpmath.rgamma(1 + x), 0, GAMMA_TERMS - 1)


def interpolation(f, low, high, centre, terms):
    """Coefficients in powers of x - centre of the polynomial through f at Chebyshev's points of [low, high]."""
    half = (high - low) / 2
    nodes = [half * mpmath.cos(mpmath.pi * (2 * i + 1) / (2 * terms)) + low + half for i in range(terms)]
    # Newton's divided differences, then powers.
    differences = [f(x) for x in nodes]
    for i in range(1, terms):
        for k in range(terms - 1, i - 1, -1):
            differences[k] = (differences[k] - differences[k - 1]) / (nodes[k] - nodes[k - i])
    p = [mpmath.mpf(0)]
    for k in range(terms - 1, -1, -1):
        root = nodes[k] - centre
        p = [a - root * b for a, b in zip([mpmath.mpf(0)] + p, p + [mpmath.mpf(0)])]
        p[0] += differences[k]
    return p[:terms]


def modified_pieces():
    """e^-x I_0(x) and e^-x I_1(x) / x: of each piece its upper end, its middle, and coefficients in x - middle."""
    rows = []
    for order in (0, 1):
        f = lambda x: mpmath.exp(-x) * mpmath.hyp0f1(order + 1, x * x / 4) / 2**order
        row = []
        for low, high in zip((0,) + MODIFIED_ENDS, MODIFIED_ENDS):
            middle = mpmath.mpf(low + high) / 2
            row.append([mpmath.mpf(high), middle] + interpolation(f, mpmath.mpf(low), mpmath.mpf(high), middle, MODIFIED_TERMS))
        rows.append(row)
    return rows


def cylinder_pieces():
    """J_0, J_1, Y_0, Y_1 on [2, PIECES_END], one polynomial around each zero: f(x) = t p(t), t = x - zero.

    Of each piece: its upper end, the zero as high and low part, and the coefficients of p, which interpolates at
    Chebyshev's points of the piece.
    """
    rows = []
    for function, order in ((mpmath.besselj, 0), (mpmath.besselj, 1), (mpmath.bessely, 0), (mpmath.bessely, 1)):
        f = lambda x: function(order, x)
        step = mpmath.mpf(1) / 10
        ends = [2 + k * step for k in range(int((PIECES_END + 4) / step))]
        zeros = [mpmath.findroot(f, (a, b), solver="anderson") for a, b in zip(ends, ends[1:]) if f(a) * f(b) < 0]
        low = mpmath.mpf(2)
        row = []
        for zero, following in zip(zeros, zeros[1:]):
            if low > PIECES_END:
                break
            high = (zero + following) / 2
            p = interpolation(lambda x: f(x) / (x - zero), low, high, zero, PIECE_TERMS)
            row.append([high, zero, zero - mpmath.mpf(float(zero))] + p)
            low = high
        rows.append(row)
    return rows


def write(name, comment, values):
    print(f"\n// {comment}")
    print(f"inline constexpr std::array<double, {len(values)}> {name}{{")
    line = "   "
    for value in values:
        text = f" {float(value)!r},"
        if len(line) + len(text) > 120:
            print(line)
            line = "   "
        line += text
    print(line)
    print("};")


def write_pairs(name, comment, values):
    parts = []
    for value in values:
        parts += [float(value), float(value - float(value))]
    write(name, comment, parts)


def main():
    mpmath.mp.dps = 60
    polynomials = debye_polynomials(DEBYE_TERMS)
    table_a, table_b = turning_point_series(polynomials)
    print("// Written by make_tables.py; change that, not this.")
    print("// clang-format off\n#pragma once\n\n#include <array>\n\nnamespace quorin::amos::tables {")
    print(f"\n// Polynomials U_0 to U_{DEBYE_TERMS - 1}.")
    print(f"inline constexpr int kDebyeTerms = {DEBYE_TERMS};")
    write("kDebye", "U_k(t) = t^k p_k(t^2): the coefficients of p_k, lowest first, begin at k (k + 1) / 2.",
          [c for p in polynomials for c in p])
    print("\n// Taylor coefficients in zeta, lowest power first, row k after row k - 1; k...Terms holds their lengths.")
    for name, table in (("A", table_a), ("B", table_b)):
        lengths = ", ".join(str(len(row)) for row in table if row)
        print(f"inline constexpr std::array<int, {sum(1 for row in table if row)}> kAiry{name}Terms{{{lengths}}};")
        write(f"kAiry{name}", f"{name}_k(zeta).", [x for row in table for x in row])
    write_pairs("kExponential", f"2^(j/{LOG_STEPS}) for j = -{LOG_STEPS // 2}, ..., {LOG_STEPS // 2}: high and low part.",
                [mpmath.mpf(2) ** (mpmath.mpf(j) / LOG_STEPS) for j in range(-LOG_STEPS // 2, LOG_STEPS // 2 + 1)])
    angles = [mpmath.pi * j / (2 * ANGLE_STEPS) for j in range(ANGLE_STEPS // 2 + 1)]
    write_pairs("kSine", f"sin(j pi/{2 * ANGLE_STEPS}) up to pi/4: high and low part.", map(mpmath.sin, angles))
    write_pairs("kCosine", f"cos(j pi/{2 * ANGLE_STEPS}) up to pi/4: high and low part.", map(mpmath.cos, angles))
    write_pairs("kInverseFactorial", "1 / k!: high and low part.", [1 / mpmath.factorial(k) for k in range(15)])
    write_pairs("kReciprocalGamma", "1 / Gamma(1 + x), lowest power first: high and low part.", reciprocal_gamma())
    pieces = cylinder_pieces()
    assert len({len(row) for row in pieces}) == 1
    print(f"\n// {PIECE_TERMS} coefficients for each zero of J_0, J_1, Y_0, Y_1 between 2 and {PIECES_END}.")
    print(f"inline constexpr int kPieceTerms = {PIECE_TERMS};")
    print(f"inline constexpr int kPieces = {len(pieces[0])};")
    write("kCylinderPieces", "Upper end of the piece, the zero as high and low part, coefficients of f(x) / (x - zero).",
          [x for row in pieces for piece in row for x in piece])
    print(f"\n// {MODIFIED_TERMS} coefficients for each piece of I_0 and I_1 between 0 and {MODIFIED_ENDS[-1]}.")
    print(f"inline constexpr int kModifiedTerms = {MODIFIED_TERMS};")
    print(f"inline constexpr int kModifiedPieces = {len(MODIFIED_ENDS)};")
    print(f"inline constexpr double kModifiedEnd = {MODIFIED_ENDS[-1]};")
    write("kModified", "Upper end of the piece, its middle, coefficients of e^-x I_0(x); of e^-x I_1(x) / x.",
          [x for row in modified_pieces() for piece in row for x in piece])
    print("\n}  // namespace quorin::amos::tables")


if __name__ == "__main__":
    main()
