"""C and C++ parameter lists of the plain and the index form of a routine."""

from __future__ import annotations

from generator import model
from generator.model import Argument, Routine


def pointer(argument: Argument, language: str) -> str:
    type_name = getattr(argument.type, language)
    constant = "const " if argument.direction == model.IN else ""
    if type_name.endswith("*"):
        return f"{type_name} const* " if constant else f"{type_name}* "
    return f"{constant}{type_name}* "


def parameters(routine: Routine, language: str, is_index_form: bool) -> list[str]:
    integer = getattr(model.TYPES["int"], language)
    items = []
    if routine.result_is_argument:
        items.append(f"{getattr(routine.result, language)}* result")
    for argument in routine.arguments:
        if argument.kind == model.VALUE:
            items.append(f"{getattr(argument.type, language)} {argument.name}")
            continue
        items.append(pointer(argument, language) + argument.name)
        if is_index_form and argument.has_index:
            items.append(f"{integer} {argument.name}_index")
    if routine.is_variadic:
        items.append("...")
    return items


def result_type(routine: Routine, language: str) -> str:
    if routine.result is None or routine.result_is_argument:
        return "void"
    return getattr(routine.result, language)


def wrapped(head: str, items: list[str], tail: str, width: int = 120) -> str:
    """`head(items)tail`, broken behind commas and aligned to the parenthesis."""
    indent = " " * (len(head) + 1)
    lines, line = [], head + "("
    for position, item in enumerate(items):
        piece = item + ("," if position + 1 < len(items) else ")" + tail)
        space = "" if line.endswith("(") or not line.strip() else " "
        if len(line) + len(space) + len(piece) > width and line.strip() and not line.endswith("("):
            lines.append(line.rstrip())
            line, space = indent, ""
        line += space + piece
    if not items:
        line += ")" + tail
    return "\n".join(lines + [line])
