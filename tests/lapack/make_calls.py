#!/usr/bin/env python3
"""Writes a valid call of every LAPACK routine, as data for C++: make_calls.py lapack.table calls.inc

Dimensions are the same in all calls, so that the sizes of arrays follow from the shapes in the table.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "exports"))

from generator import model, tables  # noqa: E402

ORDER = 6
INTEGERS = {"ilo": 1, "il": 1, "iu": 3, "itype": 1, "isgn": 1, "nrhs": 3, "lwork": 3000, "lrwork": 900, "liwork": 300}
INTEGERS.update(dict.fromkeys(("kl", "ku", "kd", "ka", "kb"), 1))
CHARACTERS = {
    "uplo": "U", "trans": "N", "trana": "N", "tranb": "N", "diag": "N", "side": "L", "jobz": "V", "range": "A",
    "norm": "1", "jobu": "A", "jobvt": "A", "jobvl": "V", "jobvr": "V", "jobvs": "V", "jobvsl": "V", "jobvsr": "V",
    "balanc": "B", "sense": "B", "sort": "S", "compz": "I", "howmny": "A", "vect": "Q", "order": "B", "job": "B",
    "fact": "N", "equed": "N",
}  # fmt: skip
EXCEPTIONS = {
    ("ggsvd", "jobu"): "U", ("ggsvd", "jobv"): "V", ("ggsvd", "jobq"): "Q", ("gesdd", "jobz"): "A",
    ("hseqr", "job"): "S", ("trevc", "side"): "B", ("gebak", "side"): "R",
}  # fmt: skip
REALS = {"rcond": -1, "anorm": 10, "vl": -100, "vu": 100, "abstol": 0}
KINDS = {model.ARRAY: "kArray", model.PLAIN: "kPlainArray", model.PAIRED: "kPairedScalar", model.SCALAR: "kScalar"}


def integer(name: str) -> int:
    return INTEGERS.get(name, ORDER + 2 if name.startswith("ld") else ORDER)


def extent(text: str) -> int:
    """A dimension: arithmetic over argument names; a | b is one or the other."""
    text = re.sub(r"(\w+)\|(\w+)", r"max(\1,\2)", text)
    names = {name: integer(name) for name in re.findall(r"[a-z]\w*", text)}
    return int(eval(text, {"__builtins__": {}}, {**names, "max": max, "min": min}))  # noqa: S307


def shape(argument: model.Argument) -> tuple[int, int]:
    if not argument.is_array:
        return 1, 1
    if not argument.shape:
        return 900, 1
    parts = re.split(r",(?![^(]*\))", argument.shape)
    return extent(parts[0]), extent(parts[1]) if len(parts) > 1 else 1


def value(routine: model.Routine, argument: model.Argument) -> str:
    text = argument.type.text
    if text == "char":
        option = EXCEPTIONS.get((routine.name[1:], argument.name)) or CHARACTERS[argument.name]
        return str(ord(option))
    return str(integer(argument.name) if text == "int" else REALS.get(argument.name, 1))


def row(routine: model.Routine, argument: model.Argument) -> str:
    if argument.kind == model.VALUE:
        return f'{{"{argument.name}", Kind::kSelection, Element::kInt, 1, 1, false, 0}}'
    element = {"char": "kChar", "int": "kInt", "logical": "kInt", "float": "kFloat", "complex": "kComplex"}
    rows, columns = shape(argument)
    is_output = "false" if argument.direction == model.IN else "true"
    return (
        f'{{"{argument.name}", Kind::{KINDS[argument.kind]}, Element::{element[argument.type.text]}, '
        f"{rows}, {columns}, {is_output}, {value(routine, argument)}}}"
    )


def arguments(routine: model.Routine) -> str:
    rows = ",\n    ".join(row(routine, argument) for argument in routine.arguments)
    return f"constexpr Argument k_{routine.name}[] = {{\n    {rows}}};\n"


def call(routine: model.Routine) -> str:
    name = routine.name
    return f'    {{"{name}", address(&{name}), address(&{routine.index_name}), k_{name}}},\n'


def main() -> None:
    table, out = Path(sys.argv[1]), Path(sys.argv[2])
    family = tables.parse({table: table.read_text()})[0]
    tables_of_arguments = "".join(arguments(routine) for routine in family.routines)
    calls = "".join(call(routine) for routine in family.routines)
    out.write_text(f"{tables_of_arguments}\nconst Routine kRoutines[] = {{\n{calls}}};\n")


if __name__ == "__main__":
    main()
