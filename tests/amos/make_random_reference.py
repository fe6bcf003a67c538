#!/usr/bin/env python3
"""Reference values at random points of all regions, in sequences of up to 1,000 orders, with mpmath at 60 digits.

    nice python3 tests/amos/make_random_reference.py tests/amos/random.txt.gz 4000 [--zeros] [--every] [--seed=N]

sequences.txt.gz is `250 --every --seed=2000000`, complex_zeros.txt.gz are ten files `200 --zeros --every --seed=N` with
N = 5000000, 5002500, ..., 5022500, one after the other.

Of ten points nine lie anywhere with |z| up to 1e6, a few of them where two parts are both about to underflow, and one
next to a complex zero of Y, K, H1, H2, Bi or Bi', at a relative distance between 1e-15 and 1e-3 (or the zero rounded to
a double); with --zeros all are such points. Each line: function m kode nu n re(z) im(z)
as in make_reference.py, then "@j re im e" for members of the sequence: all of them with --every, else at most ten, the
smallest ones among their neighbours before others, for those are next to a zero.
"""
import gzip
import math
import multiprocessing
import random
import signal
import sys

import mpmath
from mpmath import mp, mpc, mpf

import make_reference as reference
from make_reference import DIGITS, log_uniform

MOST_MEMBERS = 10


def values(f, m, nu, n, z):
    mp.dps = DIGITS
    if f in "AB":
        mp.dps = DIGITS + 20
        return [(mpmath.airyai if f == "A" else mpmath.airybi)(z, derivative=m)]
    return reference.members(f, m, mpf(nu), n, z)


def chosen(v, every):
    n = len(v)
    if every or n <= MOST_MEMBERS:
        return range(n)
    size = [abs(x) for x in v]
    by_size = sorted(range(1, n - 1), key=lambda j: size[j] / (size[j - 1] + size[j + 1]))
    return sorted({0, n - 1, *by_size[:4], *random.Random(n).sample(range(n), 4)})


def line(point, every):
    f, m, kode, nu, n, x, y = point
    z = mpc(x, y)
    v = values(f, m, nu, n, z)
    if kode == 2:
        scale = reference.scale(f, m, z)
        v = [scale * a for a in v]
    text = [f"{f} {m} {kode} {nu!r} {n} {x!r} {y!r}"]
    for j in chosen(v, every):
        a = mpc(v[j])
        e = int(mpmath.floor(mpmath.log(abs(a), 2)))
        a *= mpf(2) ** -e
        text.append(f"@{j} {float(a.real)!r} {float(a.imag)!r} {e}")
    return " ".join(text)


def anywhere(r):
    if r.randrange(6) == 0:
        f, m, kode = r.choice("AB"), r.choice([0, 1]), r.choice([1, 2])
        size = r.choice([r.uniform(0, 3), log_uniform(r, 1e-20, 1), log_uniform(r, 1, 30), log_uniform(r, 1, 1000),
                         log_uniform(r, 1000, 1e6)])
        return f, m, kode, 0.0, 1, *reference.polar(r, size)
    if r.randrange(2):
        f, m, kode, nu, n, x, y = reference.bessel_point(r)
    else:
        f = r.choice("HIJKYH")
        m, kode = r.choice([1, 2]) if f == "H" else 0, r.choice([1, 2])
        nu = r.choice([reference.small_order(r), reference.some_order(r, 1, 1000)])
        size = r.choice([log_uniform(r, 1e-3, 1000), log_uniform(r, 1, 1000), log_uniform(r, 1000, 1e6)])
        x, y = reference.polar(r, size)
    n = r.choice([1, 1, 1, 2, 3, r.randrange(1, 51), r.randrange(1, 1001)])
    return f, m, kode, nu, n, x, y


def newton(f, m, nu, z):
    """A zero of f near z, or None."""
    for _ in range(40):
        if f in "AB":
            at, slope = values(f, m, nu, 1, z)[0], (values(f, 1, nu, 1, z) if m == 0 else [z * values(f, 0, nu, 1, z)[0]])[0]
        else:
            at, above = values(f, m, nu, 2, z)
            slope = nu / z * at - above
        step = at / slope
        if abs(step) > 0.3 * abs(z):
            step *= 0.3 * abs(z / step)
        z -= step
        if abs(step) < mpf(10) ** (-0.6 * DIGITS) * abs(z):
            return z
    return None


def next_to_complex_zero(r):
    f = r.choice("YKHHBB")
    m = r.choice([1, 2]) if f == "H" else r.choice([0, 1]) if f == "B" else 0
    side = r.choice([-1, 1])
    if f == "B":
        nu, start = 0.0, log_uniform(r, 1.5, r.choice([10, 1000])) * mpmath.expjpi(side * mpf(1) / 3)
    else:
        nu = r.choice([reference.small_order(r), reference.some_order(r, 1, 90), reference.some_order(r, 80, 1000)])
        # Along the curve that looks like an eye between -nu and nu, or along the negative real axis beyond it.
        on_eye = nu > 1.5 and (f == "K" or r.randrange(2))
        if on_eye:
            start = (nu - 0.3) * mpc(r.uniform(-1, 1), 0)
            start += 0.6627j * side * nu * (1 - float(abs(start) / nu) ** 2) ** 0.75
        else:
            start = mpc(-nu - log_uniform(r, 0.5, 1000 if r.randrange(4) else 1e5), side * r.uniform(0.1, 1))
        if f == "K":
            start *= 1j * side  # K's eye lies along the imaginary axis
            start = mpc(-abs(start.real), start.imag)
        elif f == "H" and on_eye:
            start = mpc(start.real, -abs(start.imag) if m == 1 else abs(start.imag))
    z = newton(f, m, nu, start)
    if z is None or abs(z) < 1e-2 or abs(z) > 9e5 or abs(z.imag) < mpf(10) ** -20 * abs(z):
        return None
    distance = 0 if r.randrange(8) == 0 else log_uniform(r, 1e-15, 1e-3)
    z *= 1 + distance * mpmath.expjpi(r.uniform(-1, 1))
    x, y = float(z.real), float(z.imag)
    n = 1
    if f != "B" and r.randrange(3) == 0:  # the zero belongs to a member of a sequence
        j = r.randrange(0, 30)
        if nu - j >= 0 and (nu - j) + j == nu:
            nu, n = nu - j, j + 1 + r.randrange(3)
    return f, m, r.choice([1, 2]), nu, n, x, y


def next_to_underflow(r):
    """Two parts near the least exponent: e^-w I and e^-w K of one size, where |w| = 0.6627 nu."""
    f, m = r.choice(["K0", "Y0", "H1", "H2"])
    m = int(m)
    u, v = r.uniform(688, 699), r.choice([0.0, r.uniform(-3, 3)])
    nu = u / 0.6627434 * (1 + r.uniform(-0.004, 0.004))
    x, y = {"K0": (-u, v), "Y0": (v, u), "H1": (v, -u), "H2": (v, u)}[f + str(m)]
    return f, m, 2, r.choice([nu, float(round(nu))]), r.choice([1, 1, 2, 4]), x, y


def random_line(task):
    seed, every = task
    r = random.Random(seed)
    signal.alarm(60)
    try:
        kind = next_to_complex_zero if "--zeros" in sys.argv or seed % 7 == 0 else next_to_underflow if seed % 50 == 1 else anywhere
        point = kind(r)
        if point is None:
            return None
        f, _, _, nu, n, x, y = point
        size = math.hypot(x, y)
        if size < 1e-304 or size > 1e6 or nu + n > 5000:
            return None
        return line(point, every)
    except (ValueError, mpmath.libmp.NoConvergence, ZeroDivisionError, OverflowError, TimeoutError) as problem:
        print("left out:", seed, type(problem).__name__, file=sys.stderr)
        return None
    finally:
        signal.alarm(0)


def main():
    signal.signal(signal.SIGALRM, reference.give_up)
    path, count = sys.argv[1], int(sys.argv[2])
    every = "--every" in sys.argv
    seed = next((int(a[7:]) for a in sys.argv if a.startswith("--seed=")), 0)
    reference.self_check()
    written = 0
    with gzip.open(path, "wt") as stream, multiprocessing.Pool(1) as pool:
        tasks = ((seed + k, every) for k in range(10 * count))
        for text in filter(None, pool.imap(random_line, tasks)):
            stream.write(text + "\n")
            written += 1
            if written == count:
                pool.terminate()
                return


if __name__ == "__main__":
    main()
