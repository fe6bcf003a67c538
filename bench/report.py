#!/usr/bin/env python3
"""Turns the results of lapacks_bench into tables of ratios, in Markdown on standard output.

    bench/report.py [--figure FILE.svg] RESULTS.json...

Several files are runs with different instruction sets, or of different rows; the first is the one of the introduction.
--figure draws the speed of sgemm over n.

Every figure is a median over repetitions. A ratio is the ratio of two medians of one group; the range behind it holds
the middle half of all ratios between a repetition of one side and a repetition of the other.
"""

import argparse
import json
import math
import statistics
import sys
from collections import defaultdict
from dataclasses import dataclass, field
from pathlib import Path

PRODUCT, INDEX, LIMIT = "quorin", "index", "limit"
SETS = ["sse2", "avx2", "avx512"]
TITLES = {
    "openblas": "OpenBLAS", "lapack": "LAPACK", "eigen": "Eigen", "boost": "Boost.Math", "gsl": "GSL", "umfpack": "UMFPACK",
    "loop": "a loop", "amd": "AMD", "ic0": "IC(0)", "one-thread": "one thread", "no-call": "no call",
}

# What a section of the results answers. A section without an entry here is shown under its own name.
SECTIONS = {
    "calls": ("The cost of a call", "One thread. \"Index adds\" is the time of the index form less that of the plain form."),
    "blas": (
        "BLAS on square matrices of order n, and on vectors of length n",
        "dgemm and zgemm are not exported: UMFPACK and the sparse engine compute with them. Their limit is that of doubles. The peer has none.",
    ),
    "threads": (
        "Two threads over one",
        "The same call on two threads and on one. The work decides whether it takes the second.",
    ),
    "host-loop": (
        "SSE code after a call",
        "A loop of SSE multiplications and additions of the host's own, after a call of sgemm of order n, beside the same loop where there was no call."
        " A ratio of 1 shows that no wide register is left in use.",
    ),
    "lapack": (
        "LAPACK on square matrices of order n",
        "The peer is the published LAPACK over the stock OpenBLAS, on as many threads. Singular values, symmetric eigenvalues and right"
        " eigenvectors of general matrices, all with vectors. Operations are nominal, in n^3: sgetrf 2/3, cgetrf 8/3, spotrf 1/3, cpotrf 4/3,"
        " sgeqrf 4/3, cgeqrf 16/3, sgetri 4/3, spotri 2/3, strtri and ssytrf 1/3, their complex twins four times as many, ssyevr 10/3, cheevr 40/3, sgesdd 20/3, sgeev 25.",
    ),
    "orderings": (
        "Orderings",
        "`taucs_ccs_order` on finite differences in square grids (five points) and cubic ones (seven) with n unknowns, against"
        " `amd_order` called directly. genmmd orders twice, on two threads if it may, and keeps the better order."
        " \"Fill\" is the number of entries of the factor.",
    ),
    "signal": (
        "Filter design and Toeplitz systems",
        "One thread. REMEZ: a low-pass filter of n coefficients. TSLS1: a system of order n, against the reference LAPACK's"
        " `sgesv` over our BLAS, which first writes the matrix out.",
    ),
    "rci": (
        "Iterative solvers and incomplete factorizations",
        "One thread. DCG: an iteration, DFGMRES: a cycle of 20 with its restart, on vectors of length n. The host's product"
        " does nothing, so all is the solver's own work: the bytes of all vectors that each of its passes reads and writes."
        " The limit is y <- a x + y on arrays as large as all vectors together. More than 100 % is possible: the"
        " solvers write a smaller share, and a pass may find in a near cache what the one before left there. DCSRILU0, DCSRILUT: five-point differences,"
        " n unknowns, against Eigen's IncompleteLUT without its analysis of the pattern. DCSRILU0 has no counterpart there:"
        " it stands against fill factor 1 and tolerance 0, which keep fewer entries. DCSRILUT (6 entries, tolerance 1e-4)"
        " stands against factor 4 and the same tolerance. \"Fill\" is the number of entries of L and U.",
    ),
    "amos": (
        "Bessel and Airy functions",
        "Single values at random arguments of each region, n being the largest |z| (for Ai the end of the range of x); a sequence is one call of n orders. "
        "The peers work in real arithmetic.",
    ),
    "umfpack": (
        "Sparse LU with float entries",
        "One thread. Analysis, factorization, solution with refinement, and freeing of matrices of order n, against UMFPACK's"
        " own calls with the same numbers as doubles, the same code over the same BLAS. Grid: five-point differences.",
    ),
    "pack": (
        "Packing and unpacking",
        "One thread, n elements, against the loop that a host would write. vspacki: increment 2; vspackv: random indices; vspackm,"
        " vsunpackm: a random half.",
    ),
    "slap-iteration": (
        "SLAP: the cost of an iteration",
        "One thread. 40 iterations with five-point differences on a square, n unknowns, NSAVE = 20; the set-up is in the time and not in"
        " the work. The work is the bytes that the iterations have to touch: matrix, factors, and the vectors of every pass. The limit is y <- a x + y"
        " on arrays as large as all of these together. Where the arrays fit a cache, indirect addresses bound the speed, not the memory.",
    ),
    "slap-solution": (
        "SLAP: the time to a solution",
        "One thread, set-up included, ||r|| <= 1e-4 ||b|| from zero, NSAVE = 20. n = 10000: Poisson's equation; n = 22500: convection and"
        " diffusion; n = 5000: a symmetric dominant matrix without order. Peers in single precision: ConjugateGradient with a diagonal or IncompleteCholesky for"
        " SSDCG and SSICCG, LeastSquaresConjugateGradient for SSDCGN and SSLUCN, GMRES for GMRES and Orthomin, and BiCGSTAB for the"
        " others, with a diagonal or IncompleteLUT of about as many entries. They have no counterpart for the iterations of"
        " SSJAC, SSGS and SSILUR.",
    ),
    "taucs-preconditioners": (
        "Preconditioners of conjugate gradients",
        "One thread. `taucs_conjugate_gradients` on five-point differences in a square with n unknowns, hardly held anywhere, until"
        " ||r|| <= 1e-8 ||b||, with `taucs_amwb_preconditioner_create` (n / 10 subgraphs, factored in the order camd), with IC(0), which is"
        " `taucs_ccs_factor_llt` with an infinite drop tolerance, and with none; the making of the preconditioner is in the time. Anisotropic: weights of 1"
        " between neighbours in a row, which the order of the unknowns follows, and of 0.001 in a column; in patches of 10 x 10 points in turns the other way round."
        " Scattered: random over six powers of ten. \"Steps\" are iterations.",
    ),
    "taucs_files": (
        "Matrix files",
        "One thread. A text file of n entries made a matrix of n / 10 columns, against a loop of the C library's `fscanf` that"
        " keeps the same numbers and makes no matrix of them. What the format ccs holds need not be sorted: there the ratio"
        " is that of the numbers alone.",
    ),
}


@dataclass
class Side:
    """One side of a group: the time of one call in each repetition, and the work of one call."""

    work: float = 0
    unit: str = ""
    fill: float = 0  # entries of the factors that the call makes
    steps: float = 0  # iterations
    times: list = field(default_factory=list)

    def median(self):
        return statistics.median(self.times)

    def rate(self):
        """GFLOP/s or GB/s: times are in nanoseconds."""
        return self.work / self.median()


@dataclass(frozen=True, order=True)
class Key:
    section: str
    operation: str
    size: int
    threads: int
    set: str  # the instruction set


def read_groups(results, groups):
    for run in results["benchmarks"]:
        if run["run_type"] != "iteration":
            continue
        section, operation, size, threads, side = run["run_name"].split("/")[:5]
        entry = groups[Key(section, operation, int(size), int(threads), results["context"]["set"])].setdefault(side, Side())
        entry.unit = next(unit for unit in ("flop", "byte", "time") if unit in run)
        entry.fill = run.get("fill", 0)
        entry.steps = run.get("steps", 0)
        entry.work = run[entry.unit]
        entry.times.append(run["real_time"] / run["calls"])


def quartiles(values):
    low, _, high = statistics.quantiles(values, n=4, method="inclusive")
    return low, high


def speed_ratio(side, other):
    """How many times as fast `side` is as `other`, with its range."""
    scale = (side.work or 1) / (other.work or 1)
    ratio = scale * other.median() / side.median()
    low, high = quartiles([scale * b / a for a in side.times for b in other.times])
    return f"{ratio:.2f} ({low:.2f}-{high:.2f})"


def added_time(side, other):
    low, high = quartiles([a - b for a in side.times for b in other.times])
    return f"{side.median() - other.median():+.1f} ({low:+.1f} to {high:+.1f})"


def digits(value):
    return f"{value:.0f}" if value >= 100 else f"{value:.3g}"


def table(heads, rows):
    lines = ["| " + " | ".join(heads) + " |", "|" + "---:|" * len(heads)]
    lines += ["| " + " | ".join(row) + " |" for row in rows]
    return "\n".join(lines)


def title(side):
    return TITLES.get(side, side)


def peers_of(groups):
    return sorted({side for sides in groups.values() for side in sides} - {PRODUCT, INDEX, LIMIT})


def limits_table(groups):
    kinds = list(dict.fromkeys(key.operation for key in groups))
    threads = sorted({key.threads for key in groups})
    rows = []
    for kind in kinds:
        sides = {key.threads: sides[LIMIT] for key, sides in groups.items() if key.operation == kind}
        unit = "GFLOP/s" if next(iter(sides.values())).unit == "flop" else "GB/s"
        rows.append([f"{kind.replace('-', ' ')}, {unit}"] + [digits(sides[t].rate()) if t in sides else "" for t in threads])
    return table(["limit"] + [f"threads: {t}" for t in threads], rows)


def calls_table(groups):
    peers = peers_of(groups)
    heads = ["operation", "n", "plain, ns", "index, ns", "index adds, ns", "index speed / plain"]
    heads += [f"{title(peer)}, ns" for peer in peers] + [f"plain speed / {title(peer)}" for peer in peers]
    rows = []
    for key, sides in sorted(groups.items()):
        plain, index = sides[PRODUCT], sides[INDEX]
        row = [key.operation, str(key.size), digits(plain.median()), digits(index.median())]
        row += [added_time(index, plain), speed_ratio(index, plain)]
        row += [digits(sides[peer].median()) if peer in sides else "" for peer in peers]
        row += [speed_ratio(plain, sides[peer]) if peer in sides else "" for peer in peers]
        rows.append(row)
    return table(heads, rows)


def speed_columns(sides, peers):
    product = sides[PRODUCT]
    cells = [digits(product.rate())]
    cells.append(f"{100 * product.rate() / sides[LIMIT].rate():.0f}" if LIMIT in sides else "")
    return cells + [speed_ratio(product, sides[peer]) if peer in sides else "" for peer in peers]


def speed_table(groups):
    """One operation: a line for each size, columns for each instruction set and number of threads."""
    peers = peers_of(groups)
    runs = sorted({(SETS.index(key.set), key.threads) for key in groups}, key=lambda run: (-run[0], run[1]))
    unit = "GFLOP/s" if next(iter(groups.values()))[PRODUCT].unit == "flop" else "GB/s"
    heads = ["n"]
    for index, count in runs:
        of = SETS[index] + f", {count} thread" + ("s" if count > 1 else "")
        heads += [f"{of}: {unit}", "% of limit"] + [f"/ {title(peer)}" for peer in peers]
    lines = defaultdict(dict)
    for key, sides in groups.items():
        lines[key.size][SETS.index(key.set), key.threads] = speed_columns(sides, peers)
    empty = [""] * (2 + len(peers))
    rows = [[str(size)] + sum((lines[size].get(run, empty) for run in runs), []) for size in sorted(lines)]
    return table(heads, rows)


def microseconds(side):
    low, high = quartiles(side.times)
    return f"{digits(side.median() / 1e3)} ({digits(low / 1e3)}-{digits(high / 1e3)})"


def time_table(groups):
    """One operation whose work has no common measure: a line for each size."""
    peers = peers_of(groups)
    all_sides = [side for sides in groups.values() for side in sides.values()]
    counters = [name for name in ("fill", "steps") if any(getattr(side, name) for side in all_sides)]
    heads = ["n", "time, us"]
    for peer in peers:
        heads += [f"{title(peer)}, us", f"speed / {title(peer)}"]
    for name in counters:
        heads += [name] + [f"{title(peer)}, {name}" for peer in peers]
    rows = []
    for key, sides in sorted(groups.items()):
        row = [str(key.size), microseconds(sides[PRODUCT])]
        for peer in peers:
            row += [microseconds(sides[peer]), speed_ratio(sides[PRODUCT], sides[peer])]
        for name in counters:
            row += [f"{getattr(sides[side], name):.0f}" for side in [PRODUCT] + peers]
        rows.append(row)
    return table(heads, rows)


def operation_table(groups):
    is_time = next(iter(groups.values()))[PRODUCT].unit == "time"
    return time_table(groups) if is_time else speed_table(groups)


def select(groups, **wanted):
    return {key: sides for key, sides in groups.items() if all(getattr(key, name) == v for name, v in wanted.items())}


def section_text(name, groups):
    head, note = SECTIONS.get(name, (name, ""))
    parts = [f"## {head}"] + ([note] if note else [])
    if any(INDEX in sides for sides in groups.values()):
        return "\n\n".join(parts + [calls_table(groups)])
    for operation in dict.fromkeys(key.operation for key in groups):
        parts += [f"### {operation}", operation_table(select(groups, operation=operation))]
    return "\n\n".join(parts)


def introduction(context):
    peer = context.get("peer")
    return "\n".join([
        "# Benchmarks",
        "",
        "Written by `bench/run`; how to read, repeat and extend it: [bench/README.md](../bench/README.md).",
        "",
        f"- Target: {context['target']}",
        f"- Processor: {context['processor']}, {context['num_cpus']} logical",
        f"- Peer (OpenBLAS): {peer}" if peer else "- Peer: none was there. bench/README.md says how to build it.",
        f"- Instruction set: {context['set']} where a row names no other; limits are measured beside each row with the row's",
        f"- Other work on the machine: {context.get('load', 'unknown')}",
        "",
        "Ratios are speeds: above 1.00 ours is the faster one. In brackets is the range of the middle half of all ratios",
        "between single repetitions. All sides of a row ran in one process, their repetitions in random order.",
    ])


def report(groups, context):
    parts = [introduction(context)]
    for section in dict.fromkeys(key.section for key in groups):
        of_section = select(groups, section=section)
        if section == "limits":
            parts.append("## What the cores can do\n\n" + limits_table(of_section))
        else:
            parts.append(section_text(section, of_section))
    return "\n\n".join(parts) + "\n"


def figure(groups):
    """An SVG: GFLOP/s of sgemm on one thread over n, ours for each instruction set, and the peer. Runs at different times
    are compared, so the best repetition counts, which other work on the machine has disturbed least."""
    lines = defaultdict(dict)
    for key, sides in select(groups, operation="sgemm", section="blas", threads=1).items():
        for side, name in (PRODUCT, key.set), ("openblas", "OpenBLAS"):
            if side in sides:
                best = sides[side].work / min(sides[side].times)
                lines[name][key.size] = max(best, lines[name].get(key.size, 0))
    sizes = sorted({n for line in lines.values() for n in line})
    top = 20 * math.ceil(max(rate for line in lines.values() for rate in line.values()) / 20)
    left, right, upper, lower = 60, 600, 30, 330

    def across(n):
        return left + (right - left) * math.log(n / sizes[0]) / math.log(sizes[-1] / sizes[0])

    def up(rate):
        return lower - (lower - upper) * rate / top

    parts = ['<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 720 380" font-family="sans-serif" font-size="13">',
             '<rect width="720" height="380" fill="white"/>',
             f'<text x="{left}" y="18">sgemm on one thread, GFLOP/s over n (best of the repetitions)</text>']
    for rate in range(0, top + 1, 20):
        parts.append(f'<path d="M{left} {up(rate):.1f}H{right}" stroke="#ddd"/>')
        parts.append(f'<text x="{left - 8}" y="{up(rate) + 4:.1f}" text-anchor="end">{rate}</text>')
    for n in (n for n in sizes if n & (n - 1) == 0):
        parts.append(f'<text x="{across(n):.1f}" y="{lower + 20}" text-anchor="middle">{n}</text>')
    colours = dict(zip(["avx512", "avx2", "sse2", "OpenBLAS"], ["#0b5394", "#3d85c6", "#76a5af", "#b45f06"]))
    label_at = upper
    for name in sorted(lines, key=lambda name: -lines[name][max(lines[name])]):
        points = " ".join(f"{across(n):.1f},{up(rate):.1f}" for n, rate in sorted(lines[name].items()))
        label_at = max(up(lines[name][max(lines[name])]) + 4, label_at + 15)
        parts.append(f'<polyline points="{points}" fill="none" stroke="{colours[name]}" stroke-width="2"/>')
        parts.append(f'<text x="{right + 8}" y="{label_at:.1f}" fill="{colours[name]}">{name}</text>')
    return "\n".join(parts + ["</svg>", ""])


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--figure", type=Path)
    parser.add_argument("results", nargs="+", type=Path)
    arguments = parser.parse_args()
    results = [json.loads(file.read_text(encoding="utf-8")) for file in arguments.results]
    groups = defaultdict(dict)
    for run in results:
        read_groups(run, groups)
    if arguments.figure:
        arguments.figure.write_text(figure(groups), encoding="utf-8")
    sys.stdout.write(report(groups, results[0]["context"]))


if __name__ == "__main__":
    main()
