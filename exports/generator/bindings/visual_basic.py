"""bindings/vb: a module of declarations for Visual Basic 6 and VBA, and the library of stdcall functions that it needs.

Visual Basic calls stdcall functions only, and takes no result from st(0) of a Declare that it does not know; so every function with a
result also has a form that stores it."""

from __future__ import annotations

from generator import model
from generator.bindings import names
from generator.bindings.names import Parameter
from generator.declarations import parameters as c_parameters
from generator.declarations import result_type, wrapped
from generator.model import ElementType, Family, Routine
from generator.product import LIBRARY, PRODUCT

STDCALL = f"{PRODUCT}.Stdcall"

# The compiler's longest logical line is 1,023 characters, in 25 lines.
WIDTH = 950

TYPES = {"int32_t": "Long", "float": "Single", "double": "Double", "quorin_complex": "QuorinComplex", "quorin_double_complex": "QuorinDoubleComplex"}

RESERVED = set(
    """addressof alias and any as boolean byref byte byval call case cbool cbyte ccur cdate cdbl cint clng const csng currency date
    declare dim do double each else elseif empty end enum eqv erase error event exit false for friend function get global gosub goto if
    imp implements in input integer is let lib like lock long loop lset me mod new next not nothing null on open option optional or
    paramarray print private property public put raiseevent redim rem resume return rset seek select set single static step stop
    string sub tab then to true type typeof unlock until wend while with write xor""".split()
)


def suffixed(name: str) -> str:
    """Of the form of a function that stores its result."""
    return name + "_Ref"


def variants(routine: Routine, name: str) -> list[tuple[str, bool]]:
    """Names, and whether the result is stored."""
    has_floating_result = names.result(routine) in (model.TYPES["float"], model.TYPES["double"])
    return [(name, False)] + ([(suffixed(name), True)] if has_floating_result else [])


# ---- the library ----


def function(routine: Routine, name: str, own: str, is_stored: bool, is_index_form: bool) -> str:
    items = c_parameters(routine, "c", is_index_form)
    passed = [names.distinct([p.name], lambda _: False)[0] for p in names.parameters(routine, is_index_form)]
    type_ = result_type(routine, "c")
    call = f"{name}({', '.join(passed)})"
    body = f"*answer = {call};" if is_stored else call + ";" if type_ == "void" else f"return {call};"
    items = items + ([f"{type_}* answer"] if is_stored else [])
    head = f"{'void' if is_stored else type_} __stdcall stdcall_{own}"
    return wrapped(head, items or ["void"], " {") + f"\n  {body}\n}}\n"


def library_source(families: list[Family]) -> str:
    parts = [f'/* Stdcall forms of what {LIBRARY} exports. Generated from the export tables. */\n#include "quorin/quorin.h"\n']
    for family in families:
        for routine, name, is_index_form in names.exports(family):
            parts += [function(routine, name, own, stored, is_index_form) for own, stored in variants(routine, name)]
    return "\n".join(parts)


def stack_bytes(routine: Routine, is_index_form: bool, is_stored: bool) -> int:
    items = names.parameters(routine, is_index_form)
    sizes = [8 if p.passing == names.VALUE and p.type is model.TYPES["double"] else 4 for p in items]
    return sum(sizes) + 4 * is_stored


def library_definition(families: list[Family]) -> str:
    rows = []
    for family in families:
        for routine, name, is_index_form in names.exports(family):
            for own, stored in variants(routine, name):
                rows.append(f"  {own} = stdcall_{own}@{stack_bytes(routine, is_index_form, stored)}\n")
    return f'LIBRARY "{STDCALL}.dll"\nEXPORTS\n' + "".join(rows)


# ---- the module ----


def type_name(type_: ElementType) -> str:
    return TYPES.get(type_.c.removeprefix("const "), "Long")


def declaration(item: Parameter, name: str) -> str:
    if item.type is model.TYPES["char"]:
        return f"ByVal {name} As String"
    if item.passing in (names.VALUE, names.INDEX):
        return f"ByVal {name} As {type_name(item.type)}"
    if item.argument is not None and item.argument.is_nullable:
        return f"ByRef {name} As Any"
    return f"ByRef {name} As {type_name(item.type)}"


def declare(routine: Routine, name: str, own: str, is_stored: bool, is_index_form: bool) -> str:
    items = names.parameters(routine, is_index_form)
    chosen = names.distinct([p.name for p in items], lambda taken: taken.lower() in RESERVED, str.lower)
    texts = [declaration(item, chosen_name) for item, chosen_name in zip(items, chosen)]
    result = None if is_stored else names.result(routine)
    if is_stored:
        texts.append(f"ByRef answer As {type_name(routine.result)}")
    kind = "Function" if result else "Sub"
    tail = f") As {type_name(result)}" if result else ")"
    alias = f' Alias "{name if not is_stored else own}"'
    head = f'Public Declare {kind} {own.lstrip("_")} Lib "{STDCALL}.dll"{alias} ('
    return names.wrapped(head, texts, tail, ",", WIDTH, "    ", " _")


def module(families: list[Family]) -> str:
    parts = [
        'Attribute VB_Name = "QuorinLapacks"\n',
        f"' Everything that {LIBRARY} exports, for Visual Basic 6 and VBA of 32 bits, through {STDCALL}.dll.\n",
        "' An array is passed by its first element: x(0). For an argument As Any that is to be missing: ByVal 0&.\n",
        "' Addresses of VBA's procedures (AddressOf) fit where a table says stdcall alone: the text output.\n",
        "' Generated from the export tables.\nOption Explicit\n\n",
        "Public Type QuorinComplex\n    Re As Single\n    Im As Single\nEnd Type\n\n",
        "Public Type QuorinDoubleComplex\n    Re As Double\n    Im As Double\nEnd Type\n\n",
    ]
    seen: set[str] = set()
    for family in families:
        for title, items in names.constants(family):
            parts.append(f"' {family.title}: {title}.\n")
            for name, value, _ in items:
                if name.lower() not in seen:
                    seen.add(name.lower())
                    parts.append(f"Public Const {name} As Long = {value}\n")
    last = None
    for family, routine, name, is_index_form in names.caseless_exports(families):
        if routine is not last:
            parts.append(f"\n' {routine.summary}\n")
        last = routine
        for own, stored in variants(routine, name):
            shown = own if own.lower() not in seen else own + "_"
            seen.add(shown.lower())
            parts.append(declare(routine, name, own, stored, is_index_form).replace(f" {own} Lib", f" {shown} Lib"))
    return "".join(parts)


def files(families: list[Family]) -> dict[str, str]:
    return {"QuorinLapacks.bas": module(families), "stdcall.c": library_source(families), "stdcall.def": library_definition(families)}
