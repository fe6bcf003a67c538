"""The public C headers, one for each family."""

from __future__ import annotations

from generator import constants, model
from generator.declarations import callback, parameters, record, result_type, wrapped
from generator.model import Family, Routine
from generator.product import LIBRARY
from generator.text import fill

# Longer lists of options are given by their names alone.
LONGEST_OPTIONS = 150

HEAD = """/* {title}.
 *
{text} *
 * Generated from {table}. Do not edit. */
#ifndef QUORIN_{guard}_H
#define QUORIN_{guard}_H

#include "quorin/types.h"

#ifdef __cplusplus
extern "C" {{
#endif
"""

TAIL = """
#ifdef __cplusplus
}  /* extern "C" */
#endif

#endif
"""


def argument_line(family: Family, routine: Routine, argument: model.Argument) -> str:
    """`name: in, out [lda x n]: what it means (U upper, L lower)`; nothing for an argument about which nothing is known."""
    direction = {"in": "", "out": "out", "inout": "in, out"}[argument.direction]
    size = f"[{argument.size_text()}]" if argument.is_array and argument.shape else ""
    note = family.note(routine, argument.name)
    meaning = note.text if note else ""
    if note and note.options:
        texts = "; ".join(f"{option.value} {option.text}" for option in note.options)
        names = ", ".join(option.name or option.value for option in note.options)
        meaning += f" ({texts if len(texts) <= LONGEST_OPTIONS else names})"
    if argument.is_kept:
        meaning += "; kept: its address is used by later calls"
    passed = ", ".join(part for part in (direction, size, "may be null" if argument.is_nullable else "") if part)
    rest = ": ".join(part for part in (passed, meaning) if part)
    return f"{argument.name}: {rest}" if rest else ""


def comment(family: Family, routine: Routine) -> str:
    text = fill(routine.summary, "/* ", indent="   ")
    for argument in routine.arguments:
        if line := argument_line(family, routine, argument):
            text += fill(line, "     ", indent="         ")
    return text.rstrip() + " */\n"


def prototype(name: str, routine: Routine, is_index_form: bool) -> str:
    items = parameters(routine, "c", is_index_form) or ["void"]
    return wrapped(f"QUORIN_API {result_type(routine, 'c')} QUORIN_CDECL {name}", items, ";") + "\n"


def declarations(family: Family, routines: list[Routine]) -> str:
    """Routines that differ only in type share a comment."""
    text = comment(family, routines[0])
    for routine in routines:
        if routine.has_plain:
            text += prototype(routine.name, routine, False)
        for name in routine.aliases:
            text += prototype(name, routine, False)
        if routine.index_name:
            text += prototype(routine.index_name, routine, True)
    return text


def header(family: Family, table: str) -> str:
    text = " *\n".join(fill(paragraph, " * ") for paragraph in family.text)
    parts = [HEAD.format(title=family.title, text=text, table=table, guard=family.name.upper())]
    parts.extend(record(item) for item in family.records)
    parts.extend(callback(item) for item in family.callbacks)
    if enums := constants.c_enums(family):
        parts.append(enums)
    for section in family.sections:
        parts.append(f"/* ---- {section.title} ---- */\n")
        parts.extend(declarations(family, group) for group in family.twins(section))
    return "\n".join(parts) + TAIL


def umbrella(families: list[Family]) -> str:
    includes = "".join(f'#include "quorin/{family.name}.h"\n' for family in families)
    return (
        f"/* Everything that {LIBRARY} exports. Generated from the export tables. Do not edit. */\n"
        f"#ifndef QUORIN_QUORIN_H\n#define QUORIN_QUORIN_H\n\n{includes}\n#endif\n"
    )
