#!/usr/bin/env python3
"""Runs one of the reference BLAS's test programs in a directory of its own and judges its report.

run.py [--input FILE.in] -- COMMAND...
"""

import argparse
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

BAD = re.compile(r"FAIL|\*{5,}|NOT DETECTED|ABANDON|FATAL|SUSPECT")


def judge(report: str, has_error_exits: bool, routines: int) -> list[str]:
    """What is wrong with a report; nothing if all is well."""
    faults = [line.strip() for line in report.splitlines() if BAD.search(line)]
    if has_error_exits:
        for passed in ("PASSED THE TESTS OF ERROR-EXITS", "PASSED THE COMPUTATIONAL TESTS"):
            count = report.count(passed)
            if count != routines:
                faults.append(f"{count} of {routines} routines {passed}")
    elif "PASS" not in report:
        faults.append("nothing passed")
    return faults


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--input", type=Path)
    parser.add_argument("command", nargs="+")
    options = parser.parse_args()
    text = options.input.read_text() if options.input.exists() else ""
    # The input names every routine to test, followed by T.
    routines = len(re.findall(r"^[A-Z]\w+\s+T\b", text, re.MULTILINE))
    with tempfile.TemporaryDirectory() as directory:
        environment = dict(os.environ)
        if text:
            environment["QUORIN_CAPTURE"] = "1"
        run = subprocess.run(
            options.command, input=text, capture_output=True, text=True, cwd=directory, env=environment, check=False
        )
        summaries = [p.read_text() for p in Path(directory).glob("*.out")]
    report = "\n".join(summaries) if text else run.stdout
    faults = judge(report, bool(text), routines)
    if run.returncode != 0:
        faults.append(f"exit status {run.returncode}")
    faults.extend(line for line in run.stderr.splitlines() if "unexpected output" in line)
    for fault in faults:
        print(fault)
    if faults:
        print(report[-4000:], run.stderr[-2000:], sep="\n")
    else:
        print(f"{routines or 'all'} routines passed")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
