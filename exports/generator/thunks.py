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

def host_call(family: Family, routine: Routine) -> str:
    """The library computes with floating-point settings of its own, and host functions with the host's."""
    callbacks = {callback.c_name for callback in family.callbacks}
    calls_host = family.calls_host or any(a.type.c in callbacks for a in routine.arguments)
    return f"const quorin::platform::HostCall{'WithCallbacks' if calls_host else ''} host;"


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


def fortran_form(routine: Routine, begin: str) -> str:
    """Fortran wants the lengths of its characters behind all other arguments, and hosts pass none."""
    characters = [a for a in routine.arguments if a.type is model.TYPES["char"]]
    items = parameters(routine, "cpp", False) + ["std::size_t"] * len(characters)
    names = ["selection.function()" if a.kind == model.VALUE else a.name for a in routine.arguments]
    passed = ", ".join(names + ["1"] * len(characters))
    declaration = wrapped(f"void {routine.name}_", items, ";")
    body = f'{begin}\n  quorin::dense::LapackCall call("{routine.name.upper()}", info);\n'
    for argument in routine.arguments:
        if argument.kind == model.VALUE:
            body += f"  const quorin::dense::HostSelection selection({argument.name}, call);\n"
    if any(a.name == "lwork" for a in routine.arguments):
        body += "  const quorin::dense::KeptWhenRefused kept(work, info);\n"
    body += f"  if (call.may_begin()) {routine.name}_({passed});"
    return f"{declaration}\n{definition(routine.name, routine, False, body)}"


def plain_form(family: Family, routine: Routine) -> str:
    if not routine.implementation:
        return ""  # written by hand
    begin = host_call(family, routine)
    if routine.is_fortran:
        return fortran_form(routine, begin)
    arguments = ", ".join(call_argument(argument) for argument in routine.arguments)
    call = f"quorin::{routine.implementation}({arguments})"
    return definition(routine.name, routine, False, f"{begin}\n  {statement(routine, call)}")


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
        parts.append(plain_form(family, routine))
        parts.extend(alias(routine, name) for name in routine.aliases)
        if routine.index_name:
            parts.append(index_form(routine))
    parts.append('}  // extern "C"\n')
    return "\n".join(part for part in parts if part)


def fortran_name(routine: Routine) -> str:
    """A routine of ours under its Fortran name. Lengths that callers append to the arguments are not looked at."""
    call = f"quorin::{routine.implementation}({', '.join(call_argument(a) for a in routine.arguments)})"
    items, result, body = parameters(routine, "cpp", False), result_type(routine, "cpp"), statement(routine, call)
    if routine.result_is_argument:
        items, result = items[1:], "quorin::dense::ComplexResult"
        body = f"return quorin::dense::complex_result({call});"
    head = f"{result} {routine.name}_"
    return f"{wrapped(head, items, ' noexcept;')}\n{wrapped(head, items, ' noexcept {')}\n  {body}\n}}\n"


def fortran_names(families: list[Family], facade: str) -> str:
    """What the Fortran routines of LAPACK call: the library's own routines behind `facade`."""
    routines = [r for f in families if f.facade == facade for r in f.routines]
    ours = [fortran_name(r) for r in routines if r.has_plain and r.implementation and not r.is_fortran]
    head = f'// Generated from the export tables. Do not edit.\n#include "{facade}"\n#include "dense/lapack/fortran.hpp"\n'
    return "\n".join([head + '\nextern "C" {\n', *ours, '}  // extern "C"\n'])
