"""Holds the export tables against the frozen records of what was released, exports/released/*.txt.

The records were written from the published interfaces, not from the tables; the first one's head tells their syntax. Both sides
are put into the same words, those of C, and compared name by name.
"""

from __future__ import annotations

import re
from collections.abc import Iterator
from dataclasses import dataclass, field
from pathlib import Path

from generator import declarations, model
from generator.model import Argument, Callback, Family, Field, Routine

TYPE = re.compile(r"type (\w+) = (\w+)\Z")
LINE = re.compile(r"(?P<mark>\(to come\) )?(?P<names>[^:]+):(?P<items>.*?)(?: -> (?P<result>\w+)(?P<stars>\**))?\Z")
KEYED = re.compile(r"(?:stdcall )?function \w+\Z|record \w+\Z")  # names that are no exports
ITEM = re.compile(
    r"(?P<name>[\w.]+)(?P<out> out)?(?: (?P<kind>value|plain|paired|ignored))? (?P<type>\w+)(?P<stars>\**)(?P<array>\[\])?\Z"
)
OPEN = ["open"]


@dataclass
class Signature:
    items: list[str]  # arguments, or the fields of a record
    result: str = "void"
    where: str = ""  # file:line, for messages
    is_coming: bool = False
    names: list[str] = field(default_factory=list)  # all that stand for it

    def set_result(self, c: str) -> None:
        """Complex results are stored through an extra first argument."""
        if c in (model.TYPES["complex"].c, model.TYPES["dcomplex"].c):
            self.items.insert(0, f"{c}* result")
        else:
            self.result = c


def index_text(kind: str) -> str:
    return " with an unused index" if kind == model.IGNORED else " with an index"


class Reader:
    """What the records say."""

    def __init__(self) -> None:
        self.types = {"void": "void"}
        self.signatures: dict[str, Signature] = {}
        self.faults: list[str] = []

    def read(self, path: Path, text: str) -> None:
        for number, line in logical_lines(text):
            self.where = f"{path}:{number}"
            if line.startswith("["):
                continue  # a heading
            if match := TYPE.match(line):
                self.types[match[1]] = match[2]
            elif match := LINE.match(line):
                self.read_signature(match)
            else:
                self.faults.append(f"{self.where}: '{line}' is no export")

    def read_signature(self, match: re.Match[str]) -> None:
        plain_names, _, index_names = match["names"].partition("|")
        plain = [plain_names] if KEYED.match(plain_names) else plain_names.split()
        index = index_names.split()
        texts = [text.strip() for text in match["items"].split(",") if text.strip()]
        for name in plain + index:
            if name in self.signatures:
                self.faults.append(f"{self.where}: '{name}' stands at {self.signatures[name].where} already")
            items = texts if texts == OPEN else [self.item(text, name in index) for text in texts]
            self.signatures[name] = Signature(items, where=self.where, is_coming=bool(match["mark"]), names=plain + index)
            if match["result"]:
                self.signatures[name].set_result(self.c_type(match["result"], match["stars"]))

    def c_type(self, word: str, stars: str) -> str:
        if word not in self.types:
            self.faults.append(f"{self.where}: unknown type '{word}'")
        return self.types.get(word, word) + stars

    def item(self, text: str, has_index_form: bool) -> str:
        match = ITEM.match(text)
        if not match:
            if text != "...":
                self.faults.append(f"{self.where}: '{text}' is no argument")
            return text
        kind, is_array, c = match["kind"], bool(match["array"]), self.c_type(match["type"], match["stars"])
        if kind == model.VALUE:
            return f"{c} {match['name']}"
        if not match["out"]:
            c = f"{c} const" if match["stars"] else f"const {c}"
        is_open = match["type"] == "void" and not match["stars"]  # tables have no arrays of an open type
        brackets = "[]" if is_array and not is_open else ""
        has_index = has_index_form and kind != model.PLAIN and (is_array or kind == model.PAIRED)
        return f"{c}* {match['name']}{brackets}{index_text(kind) if has_index else ''}"


def logical_lines(text: str) -> Iterator[tuple[int, str]]:
    """Numbered lines without comments and empty ones, indented lines joined to the one before."""
    first, parts = 0, []
    for number, line in enumerate(text.splitlines() + ["end"], 1):
        if not line.strip() or line.startswith("#"):
            continue
        if not line[0].isspace():
            if parts:
                yield first, " ".join(parts)
            first, parts = number, []
        parts.append(line.strip())


# What the tables say.


def argument_text(argument: Argument, has_index_form: bool) -> str:
    if argument.kind == model.VALUE:
        return f"{argument.type.c} {argument.name}"
    is_array = argument.is_array and argument.shape != "1"  # that is a scalar with an index
    index = index_text(argument.kind) if has_index_form and argument.has_index else ""
    return f"{declarations.pointer(argument, 'c')}{argument.name}{'[]' if is_array else ''}{index}"


def field_text(field: Field) -> str:
    return f"{field.type.c}* {field.name}[]" if field.is_array else f"{field.type.c} {field.name}"


def signature_of(function: Routine | Callback, is_index_form: bool = False) -> Signature:
    items = [argument_text(argument, is_index_form) for argument in function.arguments]
    signature = Signature(items + ["..."] * function.is_variadic)
    if function.result:
        signature.set_result(function.result.c)
    return signature


def in_tables(families: list[Family]) -> dict[str, Signature]:
    signatures = {}
    for family in families:
        for record in family.records:
            signatures[f"record {record.c_name}"] = Signature([field_text(field) for field in record.fields])
        for callback in family.callbacks:
            convention = "stdcall " if callback.is_stdcall else ""
            signatures[f"{convention}function {callback.c_name}"] = signature_of(callback)
        for routine in family.routines:
            for name in routine.export_names:
                signatures[name] = signature_of(routine, name == routine.index_name)
                signatures[name].names = routine.export_names
    return signatures


# The comparison.


def differences(released: Signature, now: Signature) -> Iterator[str]:
    if released.result != now.result:
        yield f"its result was released as '{released.result}' and is '{now.result}'"
    if len(released.items) != len(now.items):
        yield f"it was released with {len(released.items)} arguments and has {len(now.items)}"
    for position, (before, after) in enumerate(zip(released.items, now.items), 1):
        if before != after:
            yield f"argument {position} was released as '{before}' and is '{after}'"


def faults(records: dict[Path, str], families: list[Family]) -> list[str]:
    """Everything in which the tables differ from the records' texts, a line each."""
    reader = Reader()
    for path, text in records.items():
        reader.read(path, text)
    found, tables = reader.faults, in_tables(families)
    for name, released in reader.signatures.items():
        now, where = tables.get(name), f"{released.where}: '{name}'"
        if not now:
            found += [] if released.is_coming else [f"{where} was released, and no table has it"]
        elif released.is_coming:
            found.append(f"{where} has come: take its mark away")
        elif released.items == OPEN:
            found.append(f"{where} is in the tables: write down the arguments that its interface gives it")
        elif name != (first := released.names[0]) and first in tables and name not in tables[first].names:
            found.append(f"{where} was released as another name of '{first}', and is none")
        else:
            found += [f"{where}: {difference}" for difference in differences(released, now)]
    strangers = [name for name in tables if name not in reader.signatures]
    return found + [f"'{name}' is in the tables and in no record of a release" for name in strangers]


def read(root: Path) -> dict[Path, str]:
    paths = sorted((root / "exports/released").glob("*.txt"))
    return {path.relative_to(root): path.read_text() for path in paths}
