#!/usr/bin/env python3
"""Runs LAPACK's own test programs on their inputs and holds their reports against the published LAPACK's own.

run.py --inputs DIR --programs PREFIX --known FILE [--emulator COMMAND] [--totals FILE] NAME...

For each input DIR/NAME.in the programs PREFIX_reference, PREFIX_plain and PREFIX_index run. The last two must run as many
tests as the first, pass every test of the error exits, and fail no test that it passes, except for those in FILE.
"""

import argparse
import os
import re
import subprocess
import sys
import tempfile
from dataclasses import dataclass, field
from pathlib import Path

PASSED = re.compile(r"All tests for (.+?) +(?:routines |drivers )?passed the threshold \( *(\d+) tests run\)|"
                    r"(\w+) (?:routines|drivers) +passed the tests of the error exits")
COUNT = re.compile(r"^ *(\S.*?): +(\d+) out of +(\d+) tests failed to pass the threshold")
# The routines that balance print their largest error instead.
ERROR = re.compile(r"(?:value|ratio) of largest test error *= *(\S+)")
WRONG = re.compile(r"(?:number of examples where|example number where) .* = *(\d+)")
FAILED = re.compile(r"(?:test\( *\d+\)=|result +\d+ is|test +\d+|ratio =) *[\d.E+-]+$|^ *M=|^ *N=|Matrix order=")
BAD = re.compile(r"\*\*\*|FAILED|error messages|ILLEGAL|abnormal|Invalid|End of file|SIG[A-Z]{3}", re.IGNORECASE)


@dataclass
class Report:
    tests: int = 0
    failures: list[str] = field(default_factory=list)  # one line for each failed test
    counted_failures: int = 0
    error_exits: int = 0
    errors: list[float] = field(default_factory=list)
    wrong: int = 0
    bad: list[str] = field(default_factory=list)


def parse(text: str) -> Report:
    report = Report()
    for line in text.splitlines():
        line = " ".join(line.split())
        if match := COUNT.search(line):
            report.counted_failures += int(match[2])
            report.tests += int(match[3])
        elif match := PASSED.search(line):
            report.tests += int(match[2] or 0)
            report.error_exits += 1 if match[3] else 0
        elif match := ERROR.search(line):
            report.errors.append(float(match[1]))
        elif match := WRONG.search(line):
            report.wrong += int(match[1])
        elif re.search(r"seed=? ?\d", line) and FAILED.search(line) or re.search(r"type \d+, .*(test|ratio)", line):
            report.failures.append(line)
        elif BAD.search(line):
            report.bad.append(line)
    return report


def run(command: list[str], source: Path) -> Report:
    environment = dict(os.environ, QUORIN_CAPTURE="1", GFORTRAN_STDOUT_UNIT="77")
    # To files, not pipes: processes that Wine leaves behind would keep a pipe open.
    with tempfile.TemporaryDirectory() as directory, source.open() as text, tempfile.TemporaryFile("w+") as messages:
        process = subprocess.run(
            command, stdin=text, stdout=messages, stderr=messages, cwd=directory, env=environment, check=False
        )
        messages.seek(0)
        errors = messages.read()
        written = Path(directory, "fort.6")  # unit 6, once it is not standard output
        report = parse(written.read_text() if written.exists() else "")
    if process.returncode != 0:
        report.bad.append(f"exit status {process.returncode}: {errors[-1500:]}")
    report.bad.extend(line for line in errors.splitlines() if "unexpected output" in line)
    return report


def faults(report: Report, reference: Report, known: set[str]) -> list[str]:
    found = [line for line in report.bad if line not in known]
    ended_early = len(report.bad) - len(found)  # an error that is known ends the tests of its matrix
    excused = set(reference.failures) | known
    found.extend(line for line in report.failures if line not in excused)
    if report.counted_failures > len(report.failures) + ended_early:
        found.append(f"{report.counted_failures} tests failed, {len(report.failures)} are listed")
    lacking = reference.tests - report.tests
    if not 0 <= lacking <= 5 * ended_early or report.error_exits != reference.error_exits:
        found.append(
            f"{report.tests} tests and {report.error_exits} error exits ran, "
            f"{reference.tests} and {reference.error_exits} for the reference"
        )
    if report.tests == 0 and not report.errors:
        found.append("nothing was tested")
    if report.wrong > reference.wrong or any(e > 2 * r for e, r in zip(report.errors, reference.errors, strict=True)):
        found.append(f"largest errors {report.errors}, {report.wrong} wrong; reference {reference.errors}, {reference.wrong}")
    return found


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--inputs", type=Path, required=True)
    parser.add_argument("--programs", required=True)
    parser.add_argument("--known", type=Path, required=True)
    parser.add_argument("--emulator", default="")
    parser.add_argument("--totals", type=Path)
    parser.add_argument("names", nargs="+")
    options = parser.parse_args()
    known = {line.strip() for line in options.known.read_text().splitlines() if line.strip() and line[0] != "#"}
    status, totals = 0, []
    for name in options.names:
        source = options.inputs / f"{name}.in"
        reports = {}
        for form in ("reference", "plain", "index"):
            program = options.programs.replace("@", form)
            reports[form] = run(([options.emulator] if options.emulator else []) + [program], source)
        reference = reports["reference"]
        for form in ("plain", "index"):
            for fault in faults(reports[form], reference, known):
                print(f"{name}, {form}: {fault}")
                status = 1
        failed = {form: report.counted_failures for form, report in reports.items()}
        totals.append(
            f"{name}: {reference.tests or len(reference.errors)} tests, {reference.error_exits} sets of error exits; failed: "
            + ", ".join(f"{count} {form}" for form, count in failed.items())
        )
        print(totals[-1], flush=True)
    if options.totals:
        options.totals.write_text("".join(f"{line}\n" for line in totals))
    return status


if __name__ == "__main__":
    sys.exit(main())
