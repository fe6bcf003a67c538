#!/usr/bin/env python3
"""Writes valid calls of every LAPACK routine, as data for C++: make_calls.py lapack.table calls.inc

Dimensions are the same in all calls, so that the sizes of arrays follow from the shapes in the table. There is one call of each
routine with more work space than it needs, and those with the least that the table states, for each option that this depends on.
"""

import re
import sys
from dataclasses import dataclass, field
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


@dataclass
class Choice:
    """What distinguishes a call from the others of its routine."""

    letters: dict[str, str] = field(default_factory=dict)  # options
    lengths: dict[str, int] = field(default_factory=dict)  # of work arrays, by their own names or those of their lengths


def integer(name: str, choice: Choice) -> int:
    return choice.lengths.get(name) or INTEGERS.get(name, ORDER + 2 if name.startswith("ld") else ORDER)


def letter(routine: model.Routine, name: str, choice: Choice) -> str:
    return choice.letters.get(name) or EXCEPTIONS.get((routine.name[1:], name)) or CHARACTERS[name]


def extent(text: str, choice: Choice) -> int:
    """A dimension: arithmetic over argument names; a | b is one or the other."""
    text = re.sub(r"(\w+)\|(\w+)", r"max(\1,\2)", text)
    names = {name: integer(name, choice) for name in re.findall(r"[a-z]\w*", text)}
    return int(eval(text, {"__builtins__": {}}, {**names, "max": max, "min": min}))  # noqa: S307


def shape(argument: model.Argument, choice: Choice) -> tuple[int, int]:
    if not argument.is_array:
        return 1, 1
    if argument.name in choice.lengths:
        return choice.lengths[argument.name], 1
    if not argument.shape:
        return 900, 1
    parts = re.split(r",(?![^(]*\))", argument.shape)
    return extent(parts[0], choice), extent(parts[1], choice) if len(parts) > 1 else 1


def value(routine: model.Routine, argument: model.Argument, choice: Choice) -> str:
    text = argument.type.text
    if text == "char":
        return str(ord(letter(routine, argument.name, choice)))
    return str(integer(argument.name, choice) if text == "int" else REALS.get(argument.name, 1))


def row(routine: model.Routine, argument: model.Argument, choice: Choice) -> str:
    if argument.kind == model.VALUE:
        return f'{{"{argument.name}", Kind::kSelection, Element::kInt, 1, 1, false, 0}}'
    element = {"char": "kChar", "int": "kInt", "logical": "kInt", "float": "kFloat", "complex": "kComplex"}
    rows, columns = shape(argument, choice)
    is_output = "false" if argument.direction == model.IN else "true"
    return (
        f'{{"{argument.name}", Kind::{KINDS[argument.kind]}, Element::{element[argument.type.text]}, '
        f"{rows}, {columns}, {is_output}, {value(routine, argument, choice)}}}"
    )


def least_choices(family: model.Family, routine: model.Routine) -> list[Choice]:
    """The usual options, and one by one all those that the least lengths depend on."""
    minima = {name: minimum.value for name, minimum in family.minima(routine).items()}
    named = set(re.findall(r"[a-z]\w*", " ".join(minima.values())))
    characters = [a.name for a in routine.arguments if a.name in named and a.type.text == "char"]
    choices = [Choice()] if minima else []
    for name in characters:
        # Condition numbers are those of vectors that are asked for.
        others = {"sense": "N"} if name.startswith("jobv") and routine.argument("sense") else {}
        choices += [Choice({name: option.value, **others}) for option in family.note(routine, name).options]
    for choice in choices:
        names = {name: integer(name, choice) for name in named} | {name: letter(routine, name, choice) for name in characters}
        names |= {"max": max, "min": min, "nlvl": 0}  # levels, for matrices as small as these
        choice.lengths = {name: eval(text, {"__builtins__": {}}, names) for name, text in minima.items()}  # noqa: S307
    return choices


def calls(name: str, family: model.Family, choices_of) -> str:
    """An array of calls with that name, and before it those of their arguments."""
    tables_of_arguments, calls = "", ""
    for routine in family.routines:
        for number, choice in enumerate(choices_of(routine)):
            array = f"{name}_{routine.name}_{number}"
            rows = ",\n    ".join(row(routine, argument, choice) for argument in routine.arguments)
            tables_of_arguments += f"constexpr Argument {array}[] = {{\n    {rows}}};\n"
            title = " ".join([routine.name, *(f"{key}={value}" for key, value in choice.letters.items())])
            calls += f'    {{"{title}", address(&{routine.name}), address(&{routine.index_name}), {array}}},\n'
    return f"{tables_of_arguments}\nconst Routine {name}[] = {{\n{calls}}};\n"


def main() -> None:
    table, out = Path(sys.argv[1]), Path(sys.argv[2])
    family = tables.parse({table: table.read_text()})[0]
    least = calls("kLeastCalls", family, lambda routine: least_choices(family, routine))
    out.write_text(calls("kRoutines", family, lambda _: [Choice()]) + least)


if __name__ == "__main__":
    main()
