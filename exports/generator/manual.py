"""The reference manual, one page for each family; routines that differ only in type share an entry."""

from __future__ import annotations

from itertools import groupby

from generator import model
from generator.declarations import parameters, result_type, wrapped
from generator.model import Family, Routine


def signature(name: str, routine: Routine, is_index_form: bool) -> str:
    items = parameters(routine, "c", is_index_form)
    return wrapped(f"{result_type(routine, 'c')} {name}", items, ";", width=110)


def argument_row(argument: model.Argument, types: list[str]) -> str:
    passed = {
        model.SCALAR: "by reference",
        model.VALUE: "by value",
        model.ARRAY: "array",
        model.PLAIN: "array; no index in the index form",
        model.PAIRED: "by reference; with an index in the index form",
        model.IGNORED: "array; its index is ignored in the index form",
    }[argument.kind]
    size = argument.size_text() or ("1" if not argument.is_array else "")
    return f"| `{argument.name}` | {argument.direction} | {', '.join(types)} | {size} | {passed} |"


def argument_table(routines: list[Routine]) -> str:
    first = routines[0]
    rows = ["| argument | direction | type | size | passed |", "|---|---|---|---|---|"]
    for position, argument in enumerate(first.arguments):
        types = []
        for routine in routines:
            text = routine.arguments[position].type.text
            if text not in types:
                types.append(text)
        rows.append(argument_row(argument, types))
    return "\n".join(rows)


def shape_key(routine: Routine):
    arguments = tuple((a.name, a.direction, a.kind, a.shape) for a in routine.arguments)
    return routine.summary, routine.implementation, arguments


def entry(routines: list[Routine]) -> str:
    names = [name for routine in routines for name in ([routine.name] if routine.has_plain else []) + routine.aliases]
    names = names or [routine.index_name for routine in routines]
    lines = []
    for routine in routines:
        if routine.has_plain:
            lines.append(signature(routine.name, routine, False))
        if routine.index_name:
            lines.append(signature(routine.index_name, routine, True))
    title = ", ".join(f"`{name}`" for name in names)
    parts = [f"### {title}\n", routines[0].summary + "\n", "```c\n" + "\n".join(lines) + "\n```\n"]
    if routines[0].arguments:
        parts.append(argument_table(routines) + "\n")
    if routines[0].result_is_argument:
        parts.append("The result is stored through the extra first argument `result`.\n")
    return "\n".join(parts)


def page(family: Family, table: str) -> str:
    parts = [f"# {family.title}\n", f"<!-- Generated from {table}. Do not edit. -->\n"]
    parts.extend(paragraph + "\n" for paragraph in family.text)
    for section in family.sections:
        parts.append(f"## {section.title}\n")
        parts.extend(entry(list(group)) for _, group in groupby(section.routines, key=shape_key))
    return "\n".join(parts)
