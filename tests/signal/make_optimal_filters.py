#!/usr/bin/env python3
"""Best linear-phase filters by linear programming, for comparison with those that REMEZ designs by exchange.

    python3 tests/signal/make_optimal_filters.py | clang-format --assume-filename=x.hpp > tests/signal/optimal_filters.hpp

The coefficients h and the error t of a filter solve the linear program

    minimize t,  -t <= W(f) (D(f) - A(f)) <= t  at all frequencies f of the bands,

which is solved at some frequencies by Mehrotra's interior-point method (SIAM J. Optim. 2 (1992) 575-601) in 40 digits.
The frequencies at which the error has its maxima then join, until none exceeds t by more than a part in 1e20. Nothing
here knows about alternation or exchanges.
"""
from mpmath import mp, mpf, matrix, lu_solve, sinpi, cospi, pi

mp.dps = 40

MULTIBAND, DIFFERENTIATOR, HILBERT = 1, 2, 3
DESIGNS = [
    ("Hilbert transformer", 20, [".05", ".5"], ["1"], ["1"], HILBERT),
    ("Hilbert transformer", 31, [".05", ".45"], ["1"], ["1"], HILBERT),
    ("differentiator", 32, ["0", ".5"], ["1"], ["1"], DIFFERENTIATOR),
    ("differentiator and stop band", 21, ["0", ".3", ".4", ".48"], ["2", "0"], ["1", ".5"], DIFFERENTIATOR),
    ("band-pass", 26, ["0", ".1", ".18", ".3", ".36", ".48"], ["0", "1", "0"], ["10", "1", "3"], MULTIBAND),
]


class Problem:
    def __init__(self, taps, bands, desired, weight, kind):
        self.taps, self.kind = taps, kind
        self.odd_symmetric = kind == MULTIBAND and taps % 2 == 1
        self.unknowns = taps // 2 + (1 if self.odd_symmetric else 0)
        # The doubles that a caller passes, exactly.
        edges = [mpf(float(e)) for e in bands]
        self.bands = [(edges[2 * i], edges[2 * i + 1], mpf(float(d)), mpf(float(w)))
                      for i, (d, w) in enumerate(zip(desired, weight))]

    def row(self, band, f):
        """Weighted target and weighted responses of the unknowns h[0], h[1], ..."""
        _, _, d, w = self.bands[band]
        relative = self.kind == DIFFERENTIATOR and d != 0
        responses = []
        for k in range(self.unknowns):
            turns = self.taps - 1 - 2 * k
            if turns == 0:
                responses.append(mpf(1))
            elif self.kind == MULTIBAND:
                responses.append(2 * cospi(turns * f))
            elif relative:
                responses.append(2 * pi * turns if f == 0 else 2 * sinpi(turns * f) / f)
            else:
                responses.append(2 * sinpi(turns * f))
        return w * d, [w * r for r in responses]

    def error(self, band, f, h):
        target, responses = self.row(band, f)
        return target - sum(r * x for r, x in zip(responses, h))


def solve_normal(rows, scale):
    """Solves (A^T diag(scale) A) y = b for y."""
    n = len(rows[0])
    normal = matrix(n, n)
    for row, s in zip(rows, scale):
        scaled = [s * r for r in row]
        for i in range(n):
            for j in range(i + 1):
                normal[i, j] += scaled[i] * row[j]
    for i in range(n):
        for j in range(i):
            normal[j, i] = normal[i, j]
    return lambda b: list(lu_solve(normal, matrix(b)))


def linear_program(rows, bounds, cost):
    """Minimizes cost . y subject to rows y <= bounds."""
    n, m = len(cost), len(rows)
    product = lambda y: [sum(r * v for r, v in zip(row, y)) for row in rows]
    transposed = lambda v: [sum(rows[i][j] * v[i] for i in range(m)) for j in range(n)]
    y = [mpf(0)] * (n - 1) + [2 * max(abs(b) for b in bounds) + 1]
    s = [b - p for b, p in zip(bounds, product(y))]
    v = [mpf(1) / m] * m
    for _ in range(200):
        dual = [-c - t for c, t in zip(cost, transposed(v))]
        primal = [b - p - si for b, p, si in zip(bounds, product(y), s)]
        gap = sum(a * b for a, b in zip(s, v)) / m
        if gap < mpf(10) ** -34 and max(map(abs, dual)) < mpf(10) ** -30:
            return y
        solve = solve_normal(rows, [a / b for a, b in zip(v, s)])

        def direction(complement):
            # s dv + v ds = complement, rows dy + ds = primal, rows^T dv = dual
            middle = [(c - vi * p) / si for c, vi, p, si in zip(complement, v, primal, s)]
            dy = solve([t - d for t, d in zip([-x for x in transposed(middle)], [-d for d in dual])])
            ds = [p - q for p, q in zip(primal, product(dy))]
            dv = [(c - vi * d) / si for c, vi, d, si in zip(complement, v, ds, s)]
            return dy, ds, dv

        def step(values, change):
            return min([mpf(1)] + [-a / d for a, d in zip(values, change) if d < 0])

        _, ds, dv = direction([-a * b for a, b in zip(s, v)])
        a, b = step(s, ds), step(v, dv)
        after = sum((si + a * d) * (vi + b * e) for si, d, vi, e in zip(s, ds, v, dv)) / m
        centre = (after / gap) ** 3 * gap
        dy, ds, dv = direction([centre - si * vi - d * e for si, vi, d, e in zip(s, v, ds, dv)])
        back = mpf("0.99")
        a, b = min(mpf(1), back * step(s, ds)), min(mpf(1), back * step(v, dv))
        y = [p + a * q for p, q in zip(y, dy)]
        s = [p + a * q for p, q in zip(s, ds)]
        v = [p + b * q for p, q in zip(v, dv)]
    raise ArithmeticError("the interior-point method does not converge")


def maxima(problem, band, h):
    """Local maxima of the error's magnitude: a grid, then parabolas through three points."""
    low, high = problem.bands[band][:2]
    steps = 8 + int(12 * problem.taps * (high - low))
    at = lambda i: low + (high - low) * i / steps
    e = [abs(problem.error(band, at(i), h)) for i in range(steps + 1)]
    found = [low, high]
    for i in range(1, steps):
        if e[i] < e[i - 1] or e[i] < e[i + 1]:
            continue
        x, d = at(i), (high - low) / steps
        sign = 1 if problem.error(band, x, h) > 0 else -1
        f = lambda t: sign * problem.error(band, t, h)
        for _ in range(7):
            below, here, above = f(x - d), f(x), f(x + d)
            curvature = below - 2 * here + above
            if curvature >= 0:
                break
            x = min(max(x + d * (below - above) / (2 * curvature), low), high)
            d = max(d / 30, mpf(10) ** -10)
        found.append(x)
    return found


def best_filter(problem):
    points = [(b, low + (high - low) * i / (6 + int(2 * problem.taps * (high - low))))
              for b, (low, high, _, _) in enumerate(problem.bands)
              for i in range(7 + int(2 * problem.taps * (high - low)))]
    for _ in range(30):
        rows, bounds = [], []
        for band, f in points:
            target, responses = problem.row(band, f)
            rows += [[-r for r in responses] + [mpf(-1)], responses + [mpf(-1)]]
            bounds += [-target, target]
        y = linear_program(rows, bounds, [mpf(0)] * problem.unknowns + [mpf(1)])
        h, t = y[:-1], y[-1]
        new = [(b, f) for b in range(len(problem.bands)) for f in maxima(problem, b, h)]
        excess = max(abs(problem.error(b, f, h)) for b, f in new) / t - 1
        if excess < mpf(10) ** -20:
            return h, t
        # What is far from active need not stay.
        points = [p for p in points if abs(problem.error(*p, h)) > t / 2] + new
    raise ArithmeticError("the frequencies do not settle")


def main():
    text = lambda values: ", ".join(repr(float(v)) for v in values)
    print("""// Best filters by linear programming. Written by make_optimal_filters.py.
#pragma once

#include <vector>

struct OptimalFilter {
  const char* name;
  int taps, type;
  std::vector<double> bands, desired, weight;
  double error;
  std::vector<double> half;  // the first half of the taps, with the one in the middle of a symmetric filter
};

inline const std::vector<OptimalFilter>& optimal_filters() {
  static const std::vector<OptimalFilter> filters = {""")
    for name, taps, bands, desired, weight, kind in DESIGNS:
        h, t = best_filter(Problem(taps, bands, desired, weight, kind))
        numbers = [text(map(float, list_)) for list_ in (bands, desired, weight)]
        print(f'      {{"{name}", {taps}, {kind}, {{{numbers[0]}}}, {{{numbers[1]}}}, {{{numbers[2]}}}, {float(t)!r},\n'
              f"       {{{text(h)}}}}},", flush=True)
    print("""  };
  return filters;
}""")


if __name__ == "__main__":
    main()
