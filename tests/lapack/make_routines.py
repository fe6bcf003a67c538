#!/usr/bin/env python3
"""Writes every LAPACK routine as data for C++ (tests/lapack/routines.hpp): make_routines.py lapack.table routines.inc

Shapes and minima become functions of the call's scalars.
"""

import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "exports"))

from generator import expressions, model, tables  # noqa: E402

KINDS = {model.ARRAY: "kArray", model.PLAIN: "kPlainArray", model.PAIRED: "kPairedScalar", model.SCALAR: "kScalar"}
ELEMENTS = {"char": "kChar", "int": "kInt", "logical": "kInt", "float": "kFloat", "complex": "kComplex"}


def member(name: str) -> str:
    return "levels(v.m, v.n)" if name == "nlvl" else f"v.{name}"


def function(result: str, *texts: str) -> str:
    texts = [expressions.cpp(text, member, "int") for text in texts]
    parameter = "const Values& v" if any("v." in text for text in texts) else "const Values&"
    return f"+[]({parameter}) {{ return {result}{{{', '.join(texts)}}}; }}"


def shape(argument: model.Argument) -> str:
    if not argument.shape:
        return "nullptr"
    return function("Extent", *(model.SIZES.split(argument.shape) + ["1"])[:2])


def row(family: model.Family, routine: model.Routine, argument: model.Argument) -> str:
    if argument.kind == model.VALUE:
        return f'{{.name = "{argument.name}", .kind = Kind::kSelection, .element = Element::kInt}}'
    element = ELEMENTS[argument.type.text]
    items = [f'.name = "{argument.name}"', f".kind = Kind::{KINDS[argument.kind]}", f".element = Element::{element}"]
    items.append(f".direction = Direction::k{argument.direction.capitalize()}")
    minimum = family.minima(routine).get(argument.name)
    if argument.is_array:
        items.append(f".shape = {shape(argument)}")
    else:
        if element in ("kInt", "kChar"):
            items.append(f".member = &Values::{argument.name}")
        note = family.note(routine, argument.name)
        if note and note.options:
            values = [str(ord(o.value)) if element == "kChar" else o.value for o in note.options]
            items.append(f".options = k_{routine.name}_{argument.name}")
            option_arrays.append(f"constexpr int k_{routine.name}_{argument.name}[] = {{{', '.join(values)}}};\n")
    if minimum:
        items.append(f".minimum = {function('int', minimum.value)}")
    return f"{{{', '.join(items)}}}"


option_arrays: list[str] = []


def arguments(family: model.Family, routine: model.Routine) -> str:
    rows = ",\n    ".join(row(family, routine, argument) for argument in routine.arguments)
    return f"constexpr Argument k_{routine.name}[] = {{\n    {rows}}};\n"


def call(routine: model.Routine) -> str:
    name = routine.name
    return f'    {{"{name}", address(&{name}), address(&{routine.index_name}), k_{name}}},\n'


def main() -> None:
    table, out = Path(sys.argv[1]), Path(sys.argv[2])
    family = tables.parse({table: table.read_text()})[0]
    rows = "".join(arguments(family, routine) for routine in family.routines)
    scalars = {a.name: None for r in family.routines for a in r.arguments if not a.is_array and a.type.text in ("int", "char")}
    members = "".join(f"  int {name} = 0;\n" for name in scalars)
    calls = "".join(call(routine) for routine in family.routines)
    out.write_text(f"struct Values {{\n{members}}};\n\n{''.join(option_arrays)}{rows}\nconst Routine kRoutines[] = {{\n{calls}}};\n")


if __name__ == "__main__":
    main()
