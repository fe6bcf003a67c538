"""Reads the export tables. docs/adding-an-export.md describes their syntax.

Every fault is reported as file:line: reason, all of them at once.
"""

from __future__ import annotations

import re
from pathlib import Path

from generator import model
from generator.model import Argument, Family, Routine, Section

NAME = re.compile(r"[A-Za-z]\w*\Z")
ROW = re.compile(r"(?P<name>\w+)\s*(?:=\s*(?P<implementation>[\w:]+)\s*)?(?P<arguments>(?:\s.*?)?)(?:\s*->\s*(?P<result>\w+))?\Z")
CONTINUATION = re.compile(r"\s+\w+:")
TYPE = re.compile(r"(?P<type>\w+)(?:\[(?P<shape>[^\]]*)\])?\Z")


class TableError(Exception):
    """One or more faults, a line each."""


class Reader:
    def __init__(self) -> None:
        self.faults: list[str] = []
        self.where = ""

    def fault(self, reason: str) -> None:
        self.faults.append(f"{self.where}: {reason}")

    def read_family(self, path: Path, text: str) -> Family:
        family = Family(name=path.stem, title="")
        routine: Routine | None = None
        for number, line in self.logical_lines(text):
            self.where = f"{path}:{number}"
            if line[0].isspace():
                self.read_attribute(family, routine, line.strip())
            elif not self.read_directive(family, line):
                routine = self.read_row(family, line)
                if routine and not family.sections:
                    self.fault("a routine stands before the first section")
                elif routine:
                    family.sections[-1].routines.append(routine)
        self.where = str(path)
        if not family.title:
            self.fault("the table has no 'title'")
        return family

    @staticmethod
    def logical_lines(text: str) -> list[tuple[int, str]]:
        """Numbered lines without comments and empty ones, a row's further lines of arguments joined to its first."""
        lines: list[tuple[int, str]] = []
        for number, line in enumerate(text.splitlines(), 1):
            line = line.split(" #", 1)[0].rstrip() if not line.lstrip().startswith("#") else ""
            if lines and CONTINUATION.match(line):
                lines[-1] = (lines[-1][0], f"{lines[-1][1]} {line.strip()}")
            elif line:
                lines.append((number, line))
        return lines

    def read_directive(self, family: Family, line: str) -> bool:
        word, _, rest = line.partition(" ")
        rest = rest.strip()
        if rest.startswith("=") or word not in ("title", "facade", "text", "section", "no-index-forms"):
            return False
        if word == "title":
            family.title = self.quoted(rest)
        elif word == "facade":
            family.facade = self.quoted(rest)
        elif word == "text":
            family.text.append(self.quoted(rest))
        elif word == "section":
            family.sections.append(Section(self.quoted(rest)))
        else:
            family.has_index_forms = False
        return True

    def quoted(self, text: str) -> str:
        if len(text) < 2 or text[0] != '"' or text[-1] != '"':
            self.fault(f'expected a text in double quotes, found {text or "nothing"}')
            return text
        return text[1:-1]

    def read_attribute(self, family: Family, routine: Routine | None, text: str) -> None:
        if routine is None:
            self.fault("an indented line stands below no routine")
            return
        word, _, rest = text.partition(" ")
        if text.startswith('"'):
            routine.summary = (routine.summary + " " + self.quoted(text)).strip()
        elif word == "alias" and NAME.match(rest):
            routine.aliases.append(rest)
        elif word == "index" and rest == "none":
            routine.index_name = None
        elif word == "index" and NAME.match(rest):
            routine.index_name = rest
        elif text == "plain none":
            routine.has_plain = False
        else:
            self.fault(f"unknown attribute '{text}'")

    def read_row(self, family: Family, line: str) -> Routine | None:
        match = ROW.match(line)
        if not match or not NAME.match(match["name"]):
            self.fault("expected 'name = implementation  argument:type ... -> result'")
            return None
        words = match["arguments"].split()
        is_variadic = bool(words) and words[-1] == "..."
        if is_variadic:
            words.pop()
        result = None
        if match["result"]:
            result = model.TYPES.get(match["result"])
            if result is None:
                self.fault(f"unknown result type '{match['result']}'")
        routine = Routine(
            name=match["name"],
            implementation=match["implementation"] or "",
            arguments=self.read_arguments(words),
            result=result,
            where=self.where,
            index_name=match["name"] + "_Idx" if family.has_index_forms else None,
            is_variadic=is_variadic,
        )
        self.check_shapes(routine)
        return routine

    def read_arguments(self, words: list[str]) -> list[Argument]:
        # A word with a colon opens an argument; words without one continue it.
        groups: list[list[str]] = []
        for word in words:
            if ":" in word:
                name, _, first = word.partition(":")
                groups.append([name] + ([first] if first else []))
            elif groups:
                groups[-1].append(word)
            else:
                self.fault(f"'{word}' stands before the first argument")
        arguments = [argument for group in groups if (argument := self.read_argument(group[0], group[1:]))]
        names = [argument.name for argument in arguments]
        for name in {name for name in names if names.count(name) > 1}:
            self.fault(f"argument '{name}' stands twice")
        return arguments

    def read_argument(self, name: str, words: list[str]) -> Argument | None:
        if not NAME.match(name):
            self.fault(f"'{name}' is no name for an argument")
        if not words:
            self.fault(f"argument '{name}' has no type")
            return None
        direction, kind = model.IN, None
        for word in words[:-1]:
            if word in model.DIRECTIONS:
                direction = word
            elif word in model.KINDS:
                kind = word
            else:
                self.fault(f"argument '{name}': unknown word '{word}'")
        match = TYPE.match(words[-1])
        if not match or match["type"] not in model.TYPES:
            self.fault(f"argument '{name}': unknown type '{words[-1]}'")
            return None
        shape = match["shape"]
        if kind is None:
            kind = model.SCALAR if shape is None else model.ARRAY
        if (shape is not None) != (kind in (model.ARRAY, model.PLAIN, model.IGNORED)):
            self.fault(f"argument '{name}': '{kind}' and '{words[-1]}' do not go together")
        if kind == model.VALUE and direction != model.IN:
            self.fault(f"argument '{name}': a value cannot be '{direction}'")
        return Argument(name, model.TYPES[match["type"]], direction, kind, shape or "")

    def check_shapes(self, routine: Routine) -> None:
        known = {argument.name for argument in routine.arguments} | {"max", "min"}
        for argument in routine.arguments:
            for name in re.findall(r"(?<![\w.])[A-Za-z]\w*", argument.shape):
                if name not in known:
                    self.fault(f"argument '{argument.name}': its shape names '{name}', which is no argument")

    def check_whole(self, families: list[Family]) -> None:
        seen: dict[str, str] = {}
        for family in families:
            for routine in family.routines:
                self.where = routine.where
                if not routine.summary:
                    self.fault(f"'{routine.name}' has no summary")
                if routine.is_fortran and (routine.result or not any(a.name == "info" for a in routine.arguments)):
                    self.fault("a Fortran routine must have an argument 'info' and no result")
                if routine.implementation and not family.facade:
                    self.fault("the table names no 'facade' for its implementations")
                for name in routine.export_names:
                    if name in seen:
                        self.fault(f"'{name}' is exported at {seen[name]} already")
                    seen[name] = routine.where


def parse(texts: dict[Path, str]) -> list[Family]:
    reader = Reader()
    families = [reader.read_family(path, text) for path, text in texts.items()]
    reader.check_whole(families)
    if reader.faults:
        raise TableError("\n".join(reader.faults))
    return families


def read(directory: Path, root: Path) -> list[Family]:
    paths = sorted(directory.glob("*.table"))
    return parse({path.relative_to(root): path.read_text() for path in paths})
