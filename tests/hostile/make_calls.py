#!/usr/bin/env python3
"""Writes a function for each export that calls it with drawn arguments (tests/hostile/draw.hpp): make_calls.py calls.inc TABLE...

LAPACK's routines have a campaign of their own (tests/lapack/test_hostile_input.cpp).
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "exports"))

from generator import expressions, model, tables  # noqa: E402

# What takes more than drawn arguments to call, or is called by others here.
LEFT_OUT = {
    "taucs_printf": "variadic",
    "taucs_ccs_free": "frees what other calls return",
    "taucs_dccs_free": "the same routine",
}
SCALARS = ("int", "char", "logical")
DIRECTIONS = {model.IN: "Direction::kIn", model.OUT: "Direction::kOut", model.INOUT: "Direction::kInOut"}


def size(family: model.Family, routine: model.Routine, argument: model.Argument) -> str:
    """The number of elements, from the integers that the call has drawn and quantities of what it works on."""
    minimum = family.minima(routine).get(argument.name)
    shape = minimum.value if minimum and argument.shape in ("LENW", "LENIW") else argument.shape
    inputs = {a.name for a in routine.arguments if not a.is_array and a.direction != model.OUT and a.type.text == "int"}
    shape = re.sub(r"\bipar\(15\)", "restart", re.sub(r"\bia\(n\+1\)-1|\bmax\(indx\)", "nz", shape)).replace("A.", "")
    shape = re.sub(r"(?<!/)/(?!/)", "//", re.sub(r"\b(NL|NU|ND)\b", "NELT", shape))
    if not shape:
        return f'd.quantity("{argument.name}")'

    def member(name: str) -> str:
        return f"std::int64_t{{drawn_{name}}}" if name in inputs else f'd.quantity("{name}")'

    if ";" in shape:
        count, stride = (expressions.cpp(text, member, "std::int64_t") for text in shape.split(";"))
        return f"d.strided({count}, {stride})"
    sizes = [expressions.cpp(text, member, "std::int64_t") for text in model.SIZES.split(shape)]
    return " * ".join(f"d.at_least_0({text})" for text in sizes)


def options(family: model.Family, routine: model.Routine, argument: model.Argument) -> str:
    note = family.note(routine, argument.name)
    values = [option.value for option in note.options] if note else []
    if argument.type.text == "char":
        values = [f"'{value}'" for value in values if len(value) == 1]
    return f"{{{', '.join(values)}}}"


def is_size(family: model.Family, routine: model.Routine, name: str) -> bool:
    """Whether arrays are as long as it says."""
    texts = [argument.shape for argument in routine.arguments] + [minimum.value for minimum in family.minima(routine).values()]
    return any(re.search(rf"\b{name}\b", text) for text in texts)


def is_handle(family: model.Family, argument: model.Argument) -> bool:
    names = ("L", "F", "factor") if family.name == "taucs" else ("handle", "Symbolic", "Numeric")
    return argument.type is model.TYPES["pointer"] and argument.name in names


def expression(family: model.Family, routine: model.Routine, argument: model.Argument) -> str:
    """What is passed."""
    name, text = argument.name, argument.type.text
    direction, nullable = DIRECTIONS[argument.direction], str(argument.is_nullable).lower()
    if routine.name in ("taucs_ccs_solve_llt", "taucs_ccs_solve_ldlt") and name == "L":
        return "d.triangle()"
    if argument.type is model.TYPES["text"]:
        return f"d.settings({texts(family, routine, argument)})"
    if name == "opt_arg":
        return "d.setting_values()"
    if family.name == "pardiso" and name in ("a", "b", "x", "df", "da"):
        direction = "Direction::kInOut" if argument.type is model.TYPES["pointer"] else direction
        element = "void" if text == "pointer" else argument.type.c
        return f'd.values<{element}>("{name}", {direction})'
    if is_handle(family, argument):
        way = {model.IN: "handle", model.OUT: "new_handle", model.INOUT: "handle_place"}[argument.direction]
        return f'd.{way}("{name}")'
    if any(argument.type.c.startswith(callback.c_name) for callback in family.callbacks):
        return f'd.host_function<{argument.type.c}>()'
    if "ccs_matrix" in argument.type.c:
        return "d.new_matrix()" if argument.direction == model.OUT else "d.matrix()"
    if argument.type is model.TYPES["int_array"]:
        return "d.new_array()"
    if text == "pointer" and not argument.is_array:  # a vector of what the flags say
        return f'd.array<double>("{name}", d.quantity("vector"), Direction::kInOut, {nullable})'
    if text == "char" and argument.is_array:
        return f'd.text("{name}", {texts(family, routine, argument)})'
    if argument.is_array:
        kept = ", true" if argument.is_kept else ""
        return f'd.array<{argument.type.c}>("{name}", {size(family, routine, argument)}, {direction}, {nullable}{kept})'
    if text in SCALARS:
        if argument.direction == model.OUT:
            return f'd.array<{argument.type.c}>("{name}", 1, {direction}, {nullable})'
        if argument.kind == model.VALUE:
            return f"drawn_{name}"
        return f'd.place<{argument.type.c}>("{name}", drawn_{name}, {direction}, {nullable})'
    if argument.kind == model.VALUE:
        return f"d.number<{argument.type.c}>()"
    return f'd.array<{argument.type.c}>("{name}", 1, {direction}, {nullable})'


def texts(family: model.Family, routine: model.Routine, argument: model.Argument) -> str:
    note = family.note(routine, argument.name)
    values = [f'"{option.value}"' for option in note.options] if note else []
    return f"{{{', '.join(values)}}}"


def body(family: model.Family, routine: model.Routine) -> str:
    lines = [f'  d.begin("{family.name}", "{routine.name}");']
    for argument in routine.arguments:
        is_scalar = argument.type.text in SCALARS and not argument.is_array
        if is_scalar and argument.direction != model.OUT:
            sized = str(is_size(family, routine, argument.name)).lower()
            values = options(family, routine, argument)
            lines.append(
                f'  const auto drawn_{argument.name} = d.scalar<{argument.type.c}>("{argument.name}", {sized}, {values});'
            )
    passed = [] if not routine.result_is_argument else [f'd.array<{routine.result.c}>("result", 1, Direction::kOut, false)']
    based = passed.copy()
    for position, argument in enumerate(routine.arguments, 3):
        name = f"arg_{argument.name}"
        lines.append(f"  auto const {name} = {expression(family, routine, argument)};")
        passed.append(name)
        based.append(f"base({name}, {position}), {position}" if argument.kind in (model.ARRAY, model.PAIRED) else name)
        if argument.kind == model.IGNORED:
            based.append(str(position))
    calls = [f"{routine.name}({', '.join(passed)})"] if routine.has_plain else []
    if routine.index_name:
        calls.append(f"{routine.index_name}({', '.join(based)})")
    if routine.result and not routine.result_is_argument:
        calls = [f"d.take({call})" for call in calls]
    lines.append("  d.announce();")
    lines.append(f"  {calls[0]};" if len(calls) == 1 else f"  if (d.is_indexed()) {{ {calls[1]}; }} else {{ {calls[0]}; }}")
    lines.append("  d.finish();")
    return "\n".join(lines)


def main() -> None:
    out, paths = Path(sys.argv[1]), [Path(path) for path in sys.argv[2:]]
    functions, rows, seen = [], [], set()
    for family in tables.parse({path: path.read_text() for path in paths}):
        for routine in family.routines:
            if routine.name in LEFT_OUT or routine.is_fortran:
                seen.add(routine.name)
                continue
            functions.append(f"void call_{routine.name}(Draw& d) {{\n{body(family, routine)}\n}}\n")
            rows.append(f'    {{"{family.name}", "{routine.name}", call_{routine.name}}},\n')
    missing = LEFT_OUT.keys() - seen
    if missing:
        sys.exit(f"no such exports: {', '.join(sorted(missing))}")
    includes = "".join(f'#include "quorin/{path.stem}.h"\n' for path in paths)
    out.write_text(f"{includes}\n{''.join(functions)}\nconstexpr Call kCalls[] = {{\n{''.join(rows)}}};\n")


if __name__ == "__main__":
    main()
