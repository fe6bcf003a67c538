"""C and C++ parameter lists of the plain and the index form of a routine."""

from __future__ import annotations

from itertools import groupby

from generator import model
from generator.model import Argument, Callback, Field, Record, Routine
from generator.text import fill


def pointer(argument: Argument, language: str) -> str:
    type_name = getattr(argument.type, language)
    constant = "const " if argument.direction == model.IN else ""
    if type_name.endswith("*"):
        return f"{type_name} const* " if constant else f"{type_name}* "
    return f"{constant}{type_name}* "


def parameters(routine: Routine | Callback, language: str, is_index_form: bool) -> list[str]:
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


def result_type(routine: Routine | Callback, language: str) -> str:
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


def field_declaration(item: Field) -> str:
    name = item.name.rpartition(".")[2]
    star = "*" if item.is_array else ""
    return f"{item.type.c}{star} {name};" + (f" /* {item.text} */" if item.text else "")


def record(item: Record) -> str:
    lines = [fill(f"/* {item.text} */", "", indent=" * "), f"typedef struct {item.c_name} {{\n"]
    for union, fields in groupby(item.fields, key=lambda field: field.name.rpartition(".")[0]):
        rows = [field_declaration(field) for field in fields]
        if union:
            rows = ["union {", *(f"  {row}" for row in rows), f"}} {union};"]
        lines.extend(f"  {row}\n" for row in rows)
    return "".join(lines) + f"}} {item.c_name};\n"


def callback(item: Callback) -> str:
    convention = "QUORIN_CALLBACK" if item.is_stdcall else "QUORIN_CDECL"
    text = item.text + (" It is called with the stdcall convention." if item.is_stdcall else "")
    head = f"typedef {result_type(item, 'c')}({convention}* {item.c_name})"
    return fill(f"/* {text} */", "", indent=" * ") + wrapped(head, parameters(item, "c", False) or ["void"], ";") + "\n"
