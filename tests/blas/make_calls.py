#!/usr/bin/env python3
"""Writes what the calls of every BLAS routine look like, as data for C++: make_calls.py blas.table calls.inc"""

import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "exports"))

from generator import model, tables  # noqa: E402

ELEMENTS = {"char": "kChar", "int": "kInt", "float": "kFloat", "complex": "kComplex"}
RESULTS = {"int": "kInt", "float": "kFloat", "complex": "kComplex"}
NO_REFERENCE = ("isamin", "icamin")  # and the sparse routines


def dimension(routine: model.Routine, argument: model.Argument, text: str) -> str:
    """`n`, or `k|m`: the first as op() or the side has it, the second transposed or from the other side."""
    names = [other.name for other in routine.arguments]
    places = [names.index(name) for name in text.split("|")]
    if len(places) == 1:
        return f"{{{places[0]}, -1, -1}}"
    own = "trans" + argument.name  # of the routines with two options
    option = next(name for name in ("side", own, "trans", "transa") if name in names)
    return f"{{{places[0]}, {places[1]}, {names.index(option)}}}"


def rows(routine: model.Routine, columns: str) -> str:
    """A leading dimension hides the number of rows."""
    if "|" in columns:
        return columns if routine.argument("side") else "|".join(reversed(columns.split("|")))
    return "m" if routine.argument("m") else "n"


def shape(routine: model.Routine, argument: model.Argument) -> str:
    """Form, rows, columns, and the place of the stride or the leading dimension."""
    none, names = "{-1, -1, -1}", [other.name for other in routine.arguments]
    if not argument.is_array:
        return f"Form::kScalar, {none}, {none}, -1"
    if argument.shape == "5":
        return f"Form::kFive, {none}, {none}, -1"
    if argument.shape == "max(indx)":
        return f"Form::kSpread, {dimension(routine, argument, 'nz')}, {none}, -1"
    if ";" in argument.shape:
        length, stride = argument.shape.split(";")
        return f"Form::kVector, {dimension(routine, argument, length)}, {none}, {names.index(stride)}"
    if "," in argument.shape:
        lead, columns = argument.shape.split(",")
        count = dimension(routine, argument, rows(routine, columns))
        return f"Form::kMatrix, {count}, {dimension(routine, argument, columns)}, {names.index(lead)}"
    return f"Form::kVector, {dimension(routine, argument, argument.shape)}, {none}, -1"


def row(family: model.Family, routine: model.Routine, argument: model.Argument) -> str:
    note = family.note(routine, argument.name)
    options = "".join(option.value for option in note.options) if argument.type.text == "char" else ""
    flags = [argument.has_index, argument.direction != model.OUT, argument.direction != model.IN]
    return (
        f'{{"{argument.name}", Element::{ELEMENTS[argument.type.text]}, {shape(routine, argument)}, "{options}", '
        + ", ".join(str(flag).lower() for flag in flags)
        + "}"
    )


def main() -> None:
    table, out = Path(sys.argv[1]), Path(sys.argv[2])
    family = tables.parse({table: table.read_text()})[0]
    references, arguments, calls = [], [], []
    for section in family.sections:
        for routine in section.routines:
            name = routine.name
            has_reference = not section.title.startswith("Sparse") and name not in NO_REFERENCE
            if has_reference:
                references.append(f"void {name}_();\n")
            rows = ",\n    ".join(row(family, routine, argument) for argument in routine.arguments)
            arguments.append(f"constexpr Argument k_{name}[] = {{\n    {rows}}};\n")
            result = RESULTS[routine.result.text] if routine.result else "kChar"
            reference = f"&reference::{name}_" if has_reference else "nullptr"
            calls.append(
                f'    {{"{name}", address(&{name}), address(&{routine.index_name}), {reference}, Element::{result}, k_{name}}},\n'
            )
    out.write_text(
        f'namespace reference {{\nextern "C" {{\n{"".join(references)}}}\n}}\n'
        f"{''.join(arguments)}const Routine kRoutines[] = {{\n{''.join(calls)}}};\n"
    )


if __name__ == "__main__":
    main()
