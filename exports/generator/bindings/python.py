"""bindings/python/quorin_lapacks/_exports.py: the exports as data, from which the package makes its functions."""

from __future__ import annotations

from generator import model
from generator.bindings import names
from generator.bindings.names import Parameter
from generator.model import Callback, ElementType, Family, Record
from generator.product import LIBRARY

HEAD = '''"""What {library} exports. Generated from the export tables. Do not edit.

A parameter is a name and a type: `i` int32, `f` float, `d` double, `c` float complex, `z` double complex, `b` char, `p` an address,
or a callback's name in brackets. Behind it, nothing: by value; `&` one value, read; `&!` one value, written; `*` an array, read;
`*!` an array, written; `?` may be None; `~` its address is used after the call.
"""
'''

TYPES = {"int32_t": "i", "float": "f", "double": "d", "quorin_complex": "c", "quorin_double_complex": "z", "char": "b"}


def code(type_: ElementType, callbacks: set[str]) -> str:
    base = type_.c.removeprefix("const ")
    if base in callbacks:
        return f"[{base}]"
    return TYPES.get(base, "p")


def parameter(item: Parameter, callbacks: set[str]) -> str:
    text = f"{item.name}:{code(item.type, callbacks)}"
    if item.passing in (names.REFERENCE, names.ADDRESS):
        is_one = item.passing == names.REFERENCE or not item.argument.is_array
        text += ("&" if is_one else "*") + ("" if item.is_input else "!")
    if item.argument is not None and item.passing != names.INDEX:
        text += ("?" if item.argument.is_nullable else "") + ("~" if item.is_kept else "")
    return text


def answer(routine, callbacks: set[str]) -> str:
    result = names.result(routine)
    return code(result, callbacks) if result else ""


def callback(item: Callback) -> str:
    codes = [code(p.type, set()) + ("" if p.passing == names.VALUE else "*") for p in names.parameters(item)]
    convention = "stdcall" if item.is_stdcall else "cdecl"
    return f'    "{item.c_name}": ("{convention}", "{answer(item, set())}", "{" ".join(codes)}"),\n'


def record(item: Record) -> str:
    fields = []
    for union, members in names.by_union(item.fields):
        for field in [members[0]] if union else members:
            fields.append(f"{union or field.name}:{'p' if union or field.is_array else code(field.type, set())}")
    return f'    "{item.c_name}": "{" ".join(fields)}",\n'


def source(families: list[Family]) -> str:
    callbacks = {item.c_name for family in families for item in family.callbacks}
    parts = [HEAD.format(library=LIBRARY), f'\nLIBRARY = "{LIBRARY}"\n']
    parts += ["\nCALLBACKS = {\n", *(callback(item) for family in families for item in family.callbacks), "}\n"]
    parts += ["\nRECORDS = {\n", *(record(item) for family in families for item in family.records), "}\n"]
    parts.append("\nCONSTANTS = {\n")
    for family in families:
        for _, items in names.constants(family):
            parts += [f'    "{name}": {value},\n' for name, value, _ in items]
    parts.append("}\n\n# Name, result, parameters, what it does.\nROUTINES = [\n")
    for family in families:
        for routine, name, is_index_form in names.exports(family):
            items = " ".join(parameter(p, callbacks) for p in names.parameters(routine, is_index_form))
            parts.append(f'    ("{name}", "{answer(routine, callbacks)}", "{items}", {routine.summary!r}),\n')
    return "".join(parts) + "]\n"
