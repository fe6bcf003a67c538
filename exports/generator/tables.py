"""Reads the export tables. docs/adding-an-export.md describes their syntax.

Every fault is reported as file:line: reason, all of them at once.
"""

from __future__ import annotations

import re
from pathlib import Path

from generator import checks, model
from generator.model import Argument, Callback, ElementType, Entry, Family, Field, Group, Note, ParameterArray, Record
from generator.model import Routine, Section, Value

NAME = re.compile(r"[A-Za-z]\w*\Z")
ROW = re.compile(r"(?P<name>\w+)\s*(?:=\s*(?P<implementation>[\w:<>]+)\s*)?(?P<arguments>(?:\s.*?)?)(?:\s*->\s*(?P<result>\w+))?\Z")
CALLBACK = re.compile(r"(?P<name>\w+)\s*=\s*(?P<c>\w+)\s+(?P<cpp>[\w:]+)(?P<arguments>(?:\s.*?)?)(?:\s*->\s*(?P<result>\w+))?\Z")
CONTINUATION = re.compile(r"\s+\w+:")
TYPE = re.compile(r"(?P<type>\w+)(?:\[(?P<shape>[^\]]*)\])?\Z")
TOKEN = re.compile(r'"[^"]*"|[^\s"]+|"')
PART = re.compile(r"(?P<array>\w+)\[(?:(?P<form>uplo|hessenberg):)?(?P<sizes>[^\[\]]+)\]\Z")
FLAGS = ("kept", "nullable")


class TableError(Exception):
    """One or more faults, a line each."""


class Reader:
    def __init__(self) -> None:
        self.faults: list[str] = []
        self.where = ""
        self.types = dict(model.TYPES)

    def fault(self, reason: str) -> None:
        self.faults.append(f"{self.where}: {reason}")

    def read_family(self, path: Path, text: str) -> Family:
        family = Family(name=path.stem, title="")
        self.owner = None  # what indented lines belong to: a routine, an argument's note, a record, a callback
        self.last = None  # the object whose text a line of text continues
        for number, line in self.logical_lines(text):
            self.where = f"{path}:{number}"
            if line[0].isspace():
                self.read_attribute(family, line.strip())
            else:
                self.read_directive(family, line)
        self.where = str(path)
        if not family.title:
            self.fault("the table has no 'title'")
        return family

    @staticmethod
    def logical_lines(text: str) -> list[tuple[int, str]]:
        """Numbered lines without comments and empty ones, a row's further lines of arguments joined to its first."""
        lines: list[tuple[int, str]] = []
        for number, line in enumerate(text.splitlines(), 1):
            line = "" if line.lstrip().startswith("#") else line.rstrip()
            if lines and CONTINUATION.match(line):
                lines[-1] = (lines[-1][0], f"{lines[-1][1]} {line.strip()}")
            elif line:
                lines.append((number, line))
        return lines

    # ---- lines of their own ----

    def read_directive(self, family: Family, line: str) -> None:
        word, _, rest = line.partition(" ")
        rest = rest.strip()
        reader = None if rest.startswith("=") else getattr(self, "directive_" + word.replace("-", "_"), None)
        self.owner = self.last = None
        if reader:
            reader(family, rest)
            return
        routine = self.read_row(family, line)
        if routine and not family.sections:
            self.fault("a routine stands before the first section")
        elif routine:
            family.sections[-1].routines.append(routine)

    def directive_title(self, family: Family, rest: str) -> None:
        family.title = self.quoted(rest)

    def directive_facade(self, family: Family, rest: str) -> None:
        family.facade = self.quoted(rest)

    def directive_text(self, family: Family, rest: str) -> None:
        family.text.append(self.quoted(rest))

    def directive_section(self, family: Family, rest: str) -> None:
        family.sections.append(Section(self.quoted(rest)))

    def directive_no_index_forms(self, family: Family, _: str) -> None:
        family.has_index_forms = False

    def directive_calls_host(self, family: Family, _: str) -> None:
        family.calls_host = True

    def directive_prefix(self, family: Family, rest: str) -> None:
        family.prefix = rest

    def directive_quantity(self, family: Family, rest: str) -> None:
        words, text, _ = self.words_and_text(rest, 1)
        family.quantities[words[0]] = self.last = Value("", words[0], text)

    def directive_constants(self, family: Family, rest: str) -> None:
        """constants [TAG] "title" """
        words, text, _ = self.words_and_text(rest, 0, 1)
        family.constants.append(Group(text, tag="".join(words)))

    def directive_constant(self, family: Family, rest: str) -> None:
        """constant NAME VALUE "text" """
        words, text, _ = self.words_and_text(rest, 2)
        if not family.constants:
            family.constants.append(Group("Constants"))
        self.last = Value(str(self.integer(words[1])), words[0], text, where=self.where)
        family.constants[-1].values.append(self.last)

    def directive_statuses(self, family: Family, rest: str) -> None:
        """statuses PLACE [TAG] "title" """
        words, text, _ = self.words_and_text(rest, 1, 2)
        family.statuses.append(Group(text, tag="".join(words[1:]), place=words[0]))

    def directive_status(self, family: Family, rest: str) -> None:
        """status VALUE [NAME] "cause" [for PATTERN ...] """
        words, text, after = self.words_and_text(rest, 1, 2)
        if not family.statuses:
            self.fault("a status stands before the first 'statuses'")
            return
        if len(words) > 1 and not checks.INTEGER.match(words[0]):
            self.fault(f"'{words[0]}' is no integer, and cannot be the constant '{words[1]}'")
        self.last = Value(words[0], "".join(words[1:]), text, self.patterns(after), where=self.where)
        family.statuses[-1].values.append(self.last)

    def directive_parameters(self, family: Family, rest: str) -> None:
        """parameters ARRAY base 0|1 "text" """
        words, text, _ = self.words_and_text(rest, 3)
        if words[1] != "base" or words[2] not in "01":
            self.fault("expected 'parameters ARRAY base 0|1 \"text\"'")
        elif words[0] in family.parameters:
            self.fault(f"the parameter array '{words[0]}' stands twice")
        else:
            self.last = family.parameters[words[0]] = ParameterArray(words[0], int(words[2]), text)

    def directive_entry(self, family: Family, rest: str) -> None:
        """entry ARRAY POSITION[-POSITION] NAME "meaning" [default VALUE] [for PATTERN ...] """
        words, text, after = self.words_and_text(rest, 3)
        if words[0] not in family.parameters:
            self.fault(f"no 'parameters {words[0]}' stands above")
            return
        default = ""
        if after[:1] == ["default"] and len(after) > 1:
            default, after = after[1].strip('"'), after[2:]
        first, _, last = words[1].partition("-")
        self.last = Entry(self.integer(first), self.integer(last or first), words[2], text, default, where=self.where)
        self.last.routines = self.patterns(after)
        family.parameters[words[0]].entries.append(self.last)

    def directive_argument(self, family: Family, rest: str) -> None:
        words, text, _ = self.words_and_text(rest, 1)
        if words[0] in family.notes:
            self.fault(f"the argument '{words[0]}' is explained twice")
        self.owner = self.last = family.notes[words[0]] = Note(text, where=self.where)

    def directive_record(self, family: Family, rest: str) -> None:
        """record NAME = C_NAME CPP_NAME "text" """
        words, text, _ = self.words_and_text(rest, 4)
        if words[1] != "=":
            self.fault("expected 'record NAME = C_NAME CPP_NAME \"text\"'")
            return
        self.owner = self.last = Record(words[2], text)
        family.records.append(self.owner)
        cpp = f"quorin::{words[3]}*"
        self.types[words[0]] = ElementType(words[2] + "*", cpp, words[2])
        self.types["const_" + words[0]] = ElementType(f"const {words[2]}*", f"const {cpp}", words[2])

    def directive_callback(self, family: Family, rest: str) -> None:
        """callback NAME = C_NAME CPP_NAME  arguments -> result"""
        match = CALLBACK.match(rest)
        if not match:
            self.fault("expected 'callback NAME = C_NAME CPP_NAME  argument:type ... -> result'")
            return
        arguments = self.read_arguments(match["arguments"].split())
        self.owner = self.last = Callback(match["c"], arguments, self.result(match["result"]))
        family.callbacks.append(self.owner)
        text = match["name"].replace("_", " ")
        self.types[match["name"]] = ElementType(match["c"], "quorin::" + match["cpp"], text)

    # ---- pieces of lines ----

    def quoted(self, text: str) -> str:
        if len(text) < 2 or text[0] != '"' or text[-1] != '"':
            self.fault(f'expected a text in double quotes, found {text or "nothing"}')
            return text
        return text[1:-1]

    def words_and_text(self, rest: str, least: int, most: int | None = None) -> tuple[list[str], str, list[str]]:
        """The words before a text, the text, and the words behind it."""
        tokens = TOKEN.findall(rest)
        place = next((k for k, token in enumerate(tokens) if token[0] == '"'), len(tokens))
        words, after = tokens[:place], tokens[place + 1 :]
        if not least <= len(words) <= (least if most is None else most):
            self.fault(f"found {len(words)} words before the text")
            words = (words + ["0"] * least)[: max(least, len(words))]
        return words, self.quoted(tokens[place]) if place < len(tokens) else self.quoted(""), after

    def patterns(self, words: list[str]) -> list[str]:
        if words and (words[0] != "for" or len(words) == 1):
            self.fault(f"expected 'for ROUTINE ...', found '{' '.join(words)}'")
        return words[1:]

    def integer(self, word: str) -> int:
        if checks.INTEGER.match(word):
            return int(word)
        self.fault(f"'{word}' is no integer")
        return 0

    # ---- indented lines ----

    def read_attribute(self, family: Family, text: str) -> None:
        word, _, rest = text.partition(" ")
        if text.startswith('"'):
            self.read_text(family, text)
        elif word == "option" and isinstance(self.owner, (Note, Routine)):
            self.read_option(rest)
        elif isinstance(self.owner, Record) and word == "field":
            self.read_field(rest)
        elif isinstance(self.owner, Callback) and text == "stdcall":
            self.owner.is_stdcall = True
        elif isinstance(self.owner, Routine):
            self.read_routine_attribute(self.owner, word, rest.strip())
        elif self.owner is None:
            self.fault("an indented line stands below no routine")
        else:
            self.fault(f"unknown attribute '{word}'")

    def read_text(self, family: Family, text: str) -> None:
        """Continues the text of the line above; a routine's first text is its summary."""
        if isinstance(self.last, Routine):
            self.last.summary = (self.last.summary + " " + self.quoted(text)).strip()
        elif self.last is not None:
            self.last.text = (self.last.text + " " + self.quoted(text)).strip()
        elif self.owner is None and family.text and not family.sections:
            family.text[-1] += " " + self.quoted(text)
        else:
            self.fault("a text stands below nothing that it could continue")

    def read_routine_attribute(self, routine: Routine, word: str, rest: str) -> None:
        if word == "alias" and NAME.match(rest):
            routine.aliases.append(rest)
        elif word == "index" and rest == "none":
            routine.index_name = None
        elif word == "index" and NAME.match(rest):
            routine.index_name = rest
        elif word == "plain" and rest == "none":
            routine.has_plain = False
        elif word == "like" and NAME.match(rest):
            routine.like = rest
        elif word == "host-settings" and not rest:
            routine.keeps_host_settings = True
        elif word == "arg":
            words, text, _ = self.words_and_text(rest, 1)
            if words[0] in routine.notes:
                self.fault(f"the argument '{words[0]}' is explained twice")
            self.last = routine.notes[words[0]] = Note(text, where=self.where)
        elif word == "minimum":
            words, text, _ = self.words_and_text(rest, 1)
            self.last = None
            routine.minima[words[0]] = Value(text, words[0], where=self.where)
        elif word == "status":
            self.read_own_status(routine, rest)
        elif word == "finite":
            parts, _, limit = rest.partition(" below ")
            routine.finite = model.FiniteCheck(self.read_parts(parts.split()), limit.strip(), where=self.where)
        elif word == "sound" and len(rest.split()) > 1:
            array, form, *names = rest.split()
            routine.sound.append((array, form, names))
        elif word == "never-none" and len(rest.split()) == 2:
            count, array = rest.split()
            routine.never_none = (count, array)
        elif word == "spare" and len(rest.split()) == 2:
            array, further = rest.split()
            routine.spare = (array, further)
        elif word == "else" and routine.finite and "=" in rest:
            status, *filled = rest.split()
            routine.finite.status = status.partition("=")[2]
            routine.finite.filled = self.read_parts(filled)
        else:
            self.fault(f"unknown attribute '{word}'")

    def read_parts(self, words: list[str]) -> list[model.Part]:
        """ARRAY[ROWS,COLUMNS], ARRAY[SIZE], ARRAY[uplo:ORDER], ARRAY[uplo:DIAGONALS,ORDER], ARRAY[hessenberg:ORDER]"""
        parts = []
        for word in words:
            match = PART.match(word)
            if not match:
                self.fault(f"'{word}' names no part of an array")
                continue
            sizes = model.SIZES.split(match["sizes"])
            rows = sizes[0] if len(sizes) > 1 or not match["form"] else ""
            columns = sizes[-1] if len(sizes) > 1 or match["form"] else "1"
            parts.append(model.Part(match["array"], rows, columns, match["form"] or ""))
        return parts

    def read_own_status(self, routine: Routine, rest: str) -> None:
        """status [PLACE] VALUE ["cause"]"""
        if '"' in rest:
            words, text, _ = self.words_and_text(rest, 1, 2)
        else:
            words, text = rest.split(), ""
        self.last = Value(words[-1] if words else "", "", text, place="".join(words[:-1]), where=self.where)
        routine.own_statuses.append(self.last)

    def read_option(self, rest: str) -> None:
        """option VALUE [NAME] "text" of the argument above"""
        note = self.owner if isinstance(self.owner, Note) else next(reversed(self.owner.notes.values()), None)
        words, text, _ = self.words_and_text(rest, 1, 2)
        if note is None:
            self.fault("an option stands below no 'arg'")
            return
        if words[0] in [option.value for option in note.options]:
            self.fault(f"the option '{words[0]}' stands twice")
        self.last = Value(words[0], "".join(words[1:]), text, where=self.where)
        note.options.append(self.last)

    def read_field(self, rest: str) -> None:
        """field NAME:TYPE[SHAPE] "text" """
        words, text, _ = self.words_and_text(rest, 1)
        name, _, type_word = words[0].partition(":")
        match = TYPE.match(type_word)
        if not match or match["type"] not in self.types:
            self.fault(f"field '{name}': unknown type '{type_word}'")
            return
        shape = match["shape"]
        self.last = Field(name, self.types[match["type"]], shape is not None, shape or "", text)
        self.owner.fields.append(self.last)

    # ---- rows ----

    def result(self, name: str | None) -> ElementType | None:
        if name and name not in self.types:
            self.fault(f"unknown result type '{name}'")
        return self.types.get(name) if name else None

    def read_row(self, family: Family, line: str) -> Routine | None:
        match = ROW.match(line)
        if not match or not NAME.match(match["name"]):
            self.fault("expected 'name = implementation  argument:type ... -> result'")
            return None
        words = match["arguments"].split()
        is_variadic = bool(words) and words[-1] == "..."
        if is_variadic:
            words.pop()
        routine = Routine(
            name=match["name"],
            implementation=match["implementation"] or "",
            arguments=self.read_arguments(words),
            result=self.result(match["result"]),
            where=self.where,
            index_name=match["name"] + "_Idx" if family.has_index_forms else None,
            is_variadic=is_variadic,
        )
        self.owner = self.last = routine
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
        direction, kind, flags = model.IN, None, []
        for word in words[:-1]:
            if word in model.DIRECTIONS:
                direction = word
            elif word in model.KINDS:
                kind = word
            elif word in FLAGS:
                flags.append(word)
            else:
                self.fault(f"argument '{name}': unknown word '{word}'")
        match = TYPE.match(words[-1])
        if not match or match["type"] not in self.types:
            self.fault(f"argument '{name}': unknown type '{words[-1]}'")
            return None
        shape = match["shape"]
        if kind is None:
            kind = model.SCALAR if shape is None else model.ARRAY
        if (shape is not None) != (kind in (model.ARRAY, model.PLAIN, model.IGNORED)):
            self.fault(f"argument '{name}': '{kind}' and '{words[-1]}' do not go together")
        if kind == model.VALUE and direction != model.IN:
            self.fault(f"argument '{name}': a value cannot be '{direction}'")
        element = self.types[match["type"]]
        return Argument(name, element, direction, kind, shape or "", "kept" in flags, "nullable" in flags)


def parse(texts: dict[Path, str], need_meanings: bool = True) -> list[Family]:
    reader = Reader()
    families = [reader.read_family(path, text) for path, text in texts.items()]
    faults = reader.faults + checks.faults(families, need_meanings)
    if faults:
        raise TableError("\n".join(faults))
    return families


def read(directory: Path, root: Path) -> list[Family]:
    paths = sorted(directory.glob("*.table"))
    return parse({path.relative_to(root): path.read_text() for path in paths})
