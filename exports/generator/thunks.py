"""The entry points themselves: C++ for one family, linked into the product."""

from __future__ import annotations

from generator import model
from generator.declarations import parameters, result_type, wrapped
from generator.model import Family, Routine

HEAD = """// Generated from {table}. Do not edit.
#include "exports/entry.hpp"
{facade}
extern "C" {{
"""


def call_argument(argument: model.Argument) -> str:
    return f"*{argument.name}" if argument.is_dereferenced else argument.name


def indexed_argument(argument: model.Argument) -> str:
    if argument.kind in (model.ARRAY, model.PAIRED):
        return f"element({argument.name}, {argument.name}_index)"
    return argument.name


def parameter_list(routine: Routine, is_index_form: bool) -> list[str]:
    """As declared, with the index that is taken and not used left unnamed."""
    unused = {f"std::int32_t {a.name}_index" for a in routine.arguments if a.kind == model.IGNORED}
    return [p.rsplit(" ", 1)[0] if p in unused else p for p in parameters(routine, "cpp", is_index_form)]


def statement(routine: Routine, call: str) -> str:
    if routine.result_is_argument:
        return f"*result = {call};"
    return f"return {call};" if routine.result else f"{call};"


def definition(name: str, routine: Routine, is_index_form: bool, body: str) -> str:
    head = f"{result_type(routine, 'cpp')} quorin_{name}"
    items = parameter_list(routine, is_index_form)
    declaration = wrapped(head, items, f" noexcept QUORIN_EXPORT({name});")
    return f"{declaration}\n{wrapped(head, items, ' noexcept {')}\n  {body}\n}}\n"


def plain_form(routine: Routine) -> str:
    if not routine.implementation:
        return ""  # written by hand
    arguments = ", ".join(call_argument(argument) for argument in routine.arguments)
    call = f"quorin::{routine.implementation}({arguments})"
    return definition(routine.name, routine, False, statement(routine, call))


def index_form(routine: Routine) -> str:
    passed = [indexed_argument(argument) for argument in routine.arguments]
    if routine.result_is_argument:
        passed.insert(0, "result")
    call = f"quorin_{routine.name}({', '.join(passed)})"
    return_word = "return " if result_type(routine, "cpp") != "void" else ""
    return definition(routine.index_name, routine, True, f"{return_word}{call};")


def alias(routine: Routine, name: str) -> str:
    return f"extern decltype(quorin_{routine.name}) quorin_{name} QUORIN_EXPORT_ALIAS({name}, {routine.name});\n"


def source(family: Family, table: str) -> str:
    facade = f'#include "{family.facade}"\n' if family.facade else ""
    parts = [HEAD.format(table=table, facade=facade)]
    for routine in family.routines:
        parts.append(plain_form(routine))
        parts.extend(alias(routine, name) for name in routine.aliases)
        if routine.index_name:
            parts.append(index_form(routine))
    parts.append('}  // extern "C"\n')
    return "\n".join(part for part in parts if part)
