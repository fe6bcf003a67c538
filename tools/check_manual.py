#!/usr/bin/env python3
"""Proves that the pages of the manual suffice: reads them as a user does, without the tables that they are made from.

  tools/check_manual.py               fails if a page leaves an argument, an option, a size, a work space or a status unexplained
  tools/check_manual.py --self-test   proves on spoilt pages that each check can fail

For every export: each parameter of its prototype has a row with a meaning; each option character has its letters explained; each array
has a size made of arguments or of names that the page explains; each work space whose length is an argument has a least length; each
status has a table of values and causes, or a reference to one that is there.
"""

from __future__ import annotations

import argparse
import re
import sys
from dataclasses import dataclass, field
from functools import cache
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
PAGES = ROOT / "docs/manual"

PROTOTYPE = re.compile(r"(?:^|\n)(?P<result>[\w ]+?[ *]+)(?P<name>\w+)\((?P<parameters>[^;]*)\);")
PARAMETER = re.compile(r"(?P<type>.*?[ *])(?P<name>\w+)\Z")
OPTION = re.compile(r"<br>`(?P<value>[^`]+)`(?: `\w+`)?: \S")
NAME = re.compile(r"[A-Za-z]\w*")
REFERENCE = re.compile(r"^(?:Also )?(?P<place>result|`\w+`) (?P<values>`.*`): see \[.*?\]\((?P<target>[^)]*)\)", re.MULTILINE)
STATUS = re.compile(r"info|ierr|IERR|error|RCI_[rR]equest")
WORK_SPACE = re.compile(r"work ?space")
LENGTH = re.compile(r"(its )?length")
# What the meaning of an untyped address says if it is one of an array.
ARRAY = re.compile(r"vector|solution|right-hand side|permut|entries|diagonal of|the (product|sum)")
ARRAY_SIZE = re.compile(r"elements|numbers| x |triangular matrix")
LEAST = re.compile(r"<br>at least `([^`]*)`")
WORDS = {"max", "min", "or", "and", "if", "else", "in", "stride", "x"}


@dataclass
class Row:
    direction: str
    type: str
    size: str
    passed: str
    meaning: str


@dataclass
class Entry:
    where: str
    heading: str
    results: dict[str, str] = field(default_factory=dict)  # by name of the export
    parameters: dict[str, list[tuple[str, str]]] = field(default_factory=dict)  # type and name, by name of the export
    rows: dict[str, Row] = field(default_factory=dict)
    values: dict[str, dict[str, str]] = field(default_factory=dict)  # by place, "`info`" or "result": causes by value
    references: list[tuple[str, list[str], str]] = field(default_factory=list)  # place, values, target
    text: str = ""


def cells(line: str) -> list[str]:
    return [cell.strip().replace("\\|", "|") for cell in re.split(r"(?<!\\)\|", line)[1:-1]]


def tables(text: str) -> list[tuple[list[str], list[list[str]]]]:
    """Heads and rows."""
    found = []
    for block in re.findall(r"(?:^\|.*\n)+", text, re.MULTILINE):
        head, _, *rows = block.splitlines()
        found.append((cells(head), [cells(row) for row in rows]))
    return found


@cache
def entry_of(where: str, heading: str, text: str) -> Entry:
    entry = Entry(where, heading, text=text)
    code = re.search(r"```c\n(.*?)```", text, re.DOTALL)
    for match in PROTOTYPE.finditer(code[1] if code else ""):
        items = [" ".join(item.split()) for item in match["parameters"].split(",")]
        pairs = [PARAMETER.match(item) for item in items if item not in ("", "void", "...")]
        entry.results[match["name"]] = match["result"].strip()
        entry.parameters[match["name"]] = [(pair["type"].strip(), pair["name"]) for pair in pairs]
    for head, rows in tables(text):
        if head[0] == "argument":
            entry.rows = {row[0].strip("`"): Row(*row[1:]) for row in rows}
        else:
            entry.values.setdefault(head[0], {}).update((row[0].strip("`"), row[-1]) for row in rows)
    for match in REFERENCE.finditer(text):
        entry.references.append((match["place"], re.findall(r"`([^`]*)`", match["values"]), match["target"]))
    return entry


class Manual:
    def __init__(self, pages: dict[str, str]):
        self.pages = pages
        self.entries: list[Entry] = []
        self.sections: dict[str, dict[str, str]] = {}  # causes by value, by page#anchor
        self.sizes: dict[str, set[str]] = {}  # names that a page explains: those in sizes, and fields of records
        for page, text in pages.items():
            self.read_page(page, text)

    def read_page(self, page: str, text: str) -> None:
        for section in re.split(r"^## ", text, flags=re.MULTILINE)[1:]:
            title, _, body = section.partition("\n")
            anchor = re.sub(r"[^\w -]", "", title.lower()).replace(" ", "-")
            parts = re.split(r"^### ", body, flags=re.MULTILINE)
            shared = {row[0].strip("`"): row[-1] for _, rows in tables(parts[0]) for row in rows}
            self.sections[f"{page}#{anchor}"] = shared
            if title in ("Names in sizes", "Types"):
                self.sizes.setdefault(page, set()).update(shared if shared else NAME.findall(body))
        for part in re.split(r"^### ", re.sub(r"^## .*$", "", text, flags=re.MULTILINE), flags=re.MULTILINE)[1:]:
            heading, _, body = part.partition("\n")
            self.entries.append(entry_of(page, heading, body))

    def explained(self, page: str) -> set[str]:
        """Names that the page, or its family's first one, explains for sizes."""
        head_page = page.split("-")[0].removesuffix(".md") + ".md"
        return self.sizes.get(page, set()) | self.sizes.get(head_page, set())

    def faults(self, exports: set[str]) -> list[str]:
        faults = []
        known: set[str] = set()
        for entry in self.entries:
            names = set(re.findall(r"`(\w+)`", entry.heading)) | set(entry.results)
            known |= names
            faults += [f"{entry.where}, {entry.heading}: {fault}" for fault in self.entry_faults(entry)]
        faults += [f"no page describes {name}" for name in sorted(exports - known)]
        return faults

    def entry_faults(self, entry: Entry):
        if not entry.results:
            yield "no prototype"
        for name, parameters in entry.parameters.items():
            for type_, parameter in parameters:
                of_index = type_ == "int32_t" and parameter.endswith("_index") and parameter[: -len("_index")] in entry.rows
                of_result = parameter == "result" and "extra first argument `result`" in entry.text
                if not (of_index or of_result or parameter in entry.rows):
                    yield f"{name}: nothing is said of {parameter}"
        for name, row in entry.rows.items():
            yield from (f"{name}: {fault}" for fault in self.row_faults(entry, name, row))
        yield from self.status_faults(entry)

    def row_faults(self, entry: Entry, name: str, row: Row):
        if not re.sub(r"<br>.*", "", row.meaning):
            yield "no meaning"
        is_array = row.passed.startswith("array")
        sizes = [row.size] * is_array + [re.sub("'[^']*'", "", text) for text in LEAST.findall(row.meaning)]
        if unknown := {word for size in sizes for word in NAME.findall(size)} - WORDS - set(entry.rows) - self.explained(entry.where):
            yield f"its size names {', '.join(sorted(unknown))}, which the page does not explain"
        if row.type == "char" and not is_array and len(OPTION.findall("<br>" + row.meaning)) < 2:
            yield "an option whose letters are not explained"
        if is_array:
            if not row.size and not re.search("<br>at least|ended by a (zero|null)", row.meaning):
                yield "an array without a size"
            length = entry.rows.get(row.size)
            if length and WORK_SPACE.match(row.meaning) and LENGTH.match(length.meaning) and "<br>at least" not in row.meaning + length.meaning:
                yield f"a work space with no least {row.size}"
        elif row.type == "pointer" and ARRAY.search(row.meaning) and not ARRAY_SIZE.search(row.meaning):
            yield "an array of any type without a size"

    def status_faults(self, entry: Entry):
        places = [f"`{name}`" for name, row in entry.rows.items() if STATUS.fullmatch(name) and row.direction != "in"]
        if "int32_t" in entry.results.values() and not re.search(r"^Result: \S", entry.text, re.MULTILINE):
            places.append("result")
        for place in places:
            causes = dict(entry.values.get(place, {}))
            for other, values, target in entry.references:
                if other == place:
                    page, _, anchor = target.partition("#")
                    shared = self.sections.get(f"{page or entry.where}#{anchor}", {})
                    causes.update((value, shared.get(value, "")) for value in values)
            if not causes:
                yield f"{place}: a status without values"
            yield from (f"{place}: nothing is said of {value}" for value, cause in causes.items() if not cause)


def read_pages() -> dict[str, str]:
    return {path.name: path.read_text() for path in sorted(PAGES.glob("*.md")) if path.name not in ("README.md", "a-to-z.md")}


def exports() -> set[str]:
    return {line for line in (ROOT / "exports/names.txt").read_text().splitlines() if line and not line.startswith("#")}


# What of a page is spoilt, by what, and the fault that must be found.
SPOILT = (
    ("blas.md", r"^(saxpy|void saxpy)\(const int32_t\* n", r"\1(const int32_t* count", "saxpy: nothing is said of count"),
    ("blas.md", r"<br>`U`: upper<br>`L`: lower", "", "an option whose letters are not explained"),
    ("lapack-singular-values.md", r"\| `s` \| out \| float \| min\(m,n\)", "| `s` | out | float |", "s: an array without a size"),
    ("feast.md", r"^\| `nnz` .*\n", "", "its size names nnz, which the page does not explain"),
    ("lapack-singular-values.md", r"(length of work[^|]*?)<br>at least [^|]*", r"\1 ", "work: a work space with no least lwork"),
    ("umfpack.md", r"<br>at least `5\*n[^|]*", "", "W: an array without a size"),
    ("amos.md", r"^(\| `0` .*\|) done \|$", r"\1 |", "`ierr`: nothing is said of 0"),
    ("lapack.md", r"^## How a call ended$", "## What became of it", "`info`: nothing is said of 0"),
    ("signal.md", r"^### `REMEZ`[\s\S]*?(?=^## )", "", "no page describes REMEZ"),
    ("taucs.md", r"(\| `x` \|[^|\n]*\| pointer \|[^|\n]*\|[^|\n]*\|) n elements", r"\1 a vector", "x: an array of any type without a size"),
    ("rci.md", r"(\| `n` \|[^\n]*by reference \|)[^\n|]*\|", r"\1 |", "n: no meaning"),
)


def self_test() -> int:
    pages, names, failed = read_pages(), exports(), 0
    for page, pattern, replacement, fault in SPOILT:
        text, count = re.subn(pattern, replacement, pages[page], flags=re.MULTILINE)
        found = Manual(pages | {page: text}).faults(names)
        if count == 0 or not any(fault in line for line in found):
            failed += 1
            print(f"{page} was spoilt in {count} places, and not found: {fault}", file=sys.stderr)
    print(f"{len(SPOILT) - failed} of {len(SPOILT)} spoilt pages were found")
    return 1 if failed else 0


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--self-test", action="store_true")
    options = parser.parse_args()
    if options.self_test:
        return self_test()
    manual = Manual(read_pages())
    faults = manual.faults(exports())
    print("".join(f"{fault}\n" for fault in faults), end="", file=sys.stderr)
    rows = [row for entry in manual.entries for row in entry.rows.values()]
    arrays = sum(row.passed.startswith("array") for row in rows)
    work = sum(bool(WORK_SPACE.match(row.meaning)) for row in rows)
    options_ = sum(len(OPTION.findall(row.meaning)) for row in rows)
    statuses = sum(len(values) for entry in manual.entries for values in entry.values.values())
    print(f"{len(exports())} exports in {len(manual.entries)} entries: {options_} options, {arrays} arrays ({work} work spaces), ", end="")
    print(f"{statuses} statuses of their own, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
