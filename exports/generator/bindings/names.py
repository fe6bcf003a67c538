"""What the bindings share: parameters as they are on the stack, and names that a language accepts."""

from __future__ import annotations

from collections.abc import Callable, Iterator
from dataclasses import dataclass
from itertools import groupby

from generator import model
from generator.model import Argument, Callback, ElementType, Family, Note, Routine

# How a parameter is passed: by value; the address of one value; the address of an array, or of one value that may be
# missing; the index behind it.
VALUE, REFERENCE, ADDRESS, INDEX = "value", "reference", "address", "index"


@dataclass(frozen=True)
class Parameter:
    name: str
    type: ElementType
    passing: str
    is_input: bool  # only read
    argument: Argument | None = None  # None for a complex result's place

    @property
    def is_kept(self) -> bool:
        return self.argument is not None and self.argument.is_kept

    @property
    def is_text(self) -> bool:
        return self.passing == ADDRESS and self.type is model.TYPES["char"]


def of(argument: Argument) -> Parameter:
    is_input = argument.direction == model.IN
    if argument.kind == model.VALUE:
        return Parameter(argument.name, argument.type, VALUE, is_input, argument)
    passing = ADDRESS if argument.is_array or argument.is_nullable else REFERENCE
    return Parameter(argument.name, argument.type, passing, is_input, argument)


def parameters(routine: Routine | Callback, is_index_form: bool = False) -> list[Parameter]:
    items = [Parameter("result", routine.result, REFERENCE, False)] if routine.result_is_argument else []
    for argument in routine.arguments:
        items.append(of(argument))
        if is_index_form and argument.has_index:
            items.append(Parameter(f"{argument.name}_index", model.TYPES["int"], INDEX, True, argument))
    return items


def result(routine: Routine | Callback) -> ElementType | None:
    return None if routine.result_is_argument else routine.result


def distinct(names: list[str], is_taken: Callable[[str], bool], key: Callable[[str], str] = str) -> list[str]:
    """The names, with `_` behind those that are taken or, by `key`, equal to an earlier one."""
    chosen: list[str] = []
    for name in names:
        while is_taken(name) or key(name) in map(key, chosen):
            name += "_"
        chosen.append(name)
    return chosen


def meaning(argument: Argument, note: Note | None) -> str:
    """What an argument is, in one line."""
    direction = {model.IN: "", model.OUT: "out", model.INOUT: "in, out"}[argument.direction]
    size = f"[{argument.size_text()}]" if argument.is_array and argument.shape else ""
    passed = ", ".join(part for part in (direction, size, "may be null" if argument.is_nullable else "") if part)
    text = note.text if note else ""
    if note and note.options:
        text += " (" + "; ".join(f"{o.name or o.value} {o.text}" for o in note.options) + ")"
    if argument.is_kept:
        text += "; kept: the address must stay valid, pinned, until the object is deleted"
    return ": ".join(part for part in (passed, text) if part)


def exports(family: Family) -> Iterator[tuple[Routine, str, bool]]:
    """Every export that a fixed argument list describes, and whether it is an index form."""
    for routine in family.routines:
        if routine.is_variadic:
            continue
        for name in ([routine.name] if routine.has_plain else []) + routine.aliases:
            yield routine, name, False
        if routine.index_name:
            yield routine, routine.index_name, True


def caseless_exports(families: list[Family]) -> Iterator[tuple[Family, Routine, str, bool]]:
    """The same of all families for a language that ignores case: names that differ in nothing else come once."""
    seen: set[str] = set()
    for family in families:
        for routine, name, is_index_form in exports(family):
            if name.lower() not in seen:
                seen.add(name.lower())
                yield family, routine, name, is_index_form


def constants(family: Family) -> list[tuple[str, list[tuple[str, int, str]]]]:
    """Named constants by group: the group's title, and name, value and meaning of each."""
    groups = [(group.title, [(v.name, int(v.value), v.text) for v in group.values if v.name]) for group in family.groups()]
    for array in family.parameters.values():
        origin = "zero-based" if array.base == 0 else "one-based"
        groups.append((f"Positions in {array.name}, {origin}", [(e.name, e.first, e.text) for e in array.entries if e.name != "-"]))
    return [(title, items) for title, items in groups if items]


def wrapped(head: str, items: list[str], tail: str, separator: str, width: int, indent: str, continued: str = "") -> str:
    """`head` items `tail` in lines of at most `width`, broken behind separators; `continued` ends a line that goes on."""
    lines, line = [], head
    pieces = [item + (separator if position + 1 < len(items) else tail) for position, item in enumerate(items)] or [tail]
    for piece in pieces:
        space = " " if line[-1:] not in ("(", " ", "") else ""
        if len(line) + len(space) + len(piece) + len(continued) > width and line.strip():
            lines.append(line.rstrip() + continued)
            line, space = indent, ""
        line += space + piece
    return "\n".join([*lines, line]) + "\n"


def by_union(fields: list[model.Field]) -> list[tuple[str, list[model.Field]]]:
    """Fields by the union that they are members of, "" for none."""
    return [(name, list(items)) for name, items in groupby(fields, key=lambda field: field.name.rpartition(".")[0])]
