"""The public C headers, one for each family."""

from __future__ import annotations

from generator import model
from generator.declarations import parameters, result_type, wrapped
from generator.model import Family, Routine

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


def fill(text: str, prefix: str, width: int = 120) -> str:
    lines, line = [], prefix
    for word in text.split():
        if len(line) + 1 + len(word) > width and line != prefix:
            lines.append(line.rstrip())
            line = prefix
        line += (" " if line != prefix else "") + word
    return "\n".join(lines + [line.rstrip()]) + "\n"


def argument_note(argument: model.Argument) -> str:
    note = {"in": "", "out": "out", "inout": "in, out"}[argument.direction]
    if argument.is_array:
        note = f"{argument.size_text() or 'array'}{', ' if note else ''}{note}"
    return f"{argument.name}: {note}" if note else ""


def comment(routine: Routine) -> str:
    notes = [note for argument in routine.arguments if (note := argument_note(argument))]
    text = f"/* {routine.summary}"
    if notes:
        text += f" -- {'; '.join(notes)}"
    return fill(text + " */", "").replace("\n", "\n   ").rstrip() + "\n"


def prototype(name: str, routine: Routine, is_index_form: bool) -> str:
    items = parameters(routine, "c", is_index_form) or ["void"]
    return wrapped(f"QUORIN_API {result_type(routine, 'c')} QUORIN_CDECL {name}", items, ";") + "\n"


def declarations(routine: Routine) -> str:
    text = comment(routine)
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
    for section in family.sections:
        parts.append(f"/* ---- {section.title} ---- */\n")
        parts.extend(declarations(routine) for routine in section.routines)
    return "\n".join(parts) + TAIL


def umbrella(families: list[Family]) -> str:
    includes = "".join(f'#include "quorin/{family.name}.h"\n' for family in families)
    return (
        "/* Everything that Quorin.Lapacks.6.2.dll exports. Generated from the export tables. Do not edit. */\n"
        f"#ifndef QUORIN_QUORIN_H\n#define QUORIN_QUORIN_H\n\n{includes}\n#endif\n"
    )
