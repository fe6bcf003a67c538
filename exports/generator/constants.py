"""Named constants: C enums of the public headers, and the C++ header from which the implementation takes its numbers."""

from __future__ import annotations

import json
import os
import re

from generator.model import Entry, Family, Group, ParameterArray
from generator.text import fill

NUMBER = re.compile(r"-?\d+(\.\d*)?(e-?\d+)?\Z")

HEAD = """// Generated from {table}. Do not edit.
#pragma once

#include <array>
#include <cstdint>

namespace quorin::{namespace} {{
"""


def snake_case(name: str) -> str:
    return re.sub(r"(?<=[a-z0-9])(?=[A-Z])", "_", name).lower()


# ---- C ----


def c_enum(tag: str, title: str, items: list[tuple[str, int, str]]) -> str:
    lines = [fill(f"/* {title} */", "", indent=" * "), f"enum {tag} {{\n" if tag else "enum {\n"]
    for position, (name, value, text) in enumerate(items):
        comma = "," if position + 1 < len(items) else ""
        lines.append(fill(f"  {name} = {value}{comma}" + (f" /* {text} */" if text else ""), "  ", indent="      "))
    return "".join(lines) + "};\n"


def positions(array: ParameterArray) -> str:
    where = "zero-based" if array.base == 0 else f"one-based: the first is {array.name}[0] in C"
    return f"Positions in {array.name}, {where}."


def c_enums(family: Family) -> str:
    parts = []
    for group in family.groups():
        items = [(v.name, int(v.value), v.text) for v in group.values if v.name]
        if items:
            tag = f"quorin_{family.name}_{snake_case(group.tag)}" if group.tag else ""
            parts.append(c_enum(tag, group.title + ".", items))
    for array in family.parameters.values():
        items = [(e.name, e.first, e.text) for e in array.entries if e.name != "-"]
        if items:
            parts.append(c_enum("", positions(array), items))
    return "\n".join(parts)


# ---- C++ ----


def cpp_name(prefix: str, name: str) -> str:
    """QUORIN_RCI_ZERO_NORM is kZeroNorm."""
    pieces = name.removeprefix(prefix).split("_")
    return "k" + "".join(p[:1].upper() + (p[1:].lower() if p.isupper() and len(p) > 1 else p[1:]) for p in pieces)


def common_prefix(names: list[str]) -> str:
    """What all names of a group begin with, up to a `_`: the enum class says it already."""
    shared = os.path.commonprefix(names)
    return shared[: shared.rfind("_") + 1] if len(names) > 1 else ""


def literal(number: str, type_name: str) -> str:
    if type_name in ("float", "double") and not re.search(r"[.e]", number):
        number += ".0"
    return number + "F" if type_name == "float" else number


def cpp_group(family: Family, group: Group) -> str:
    values = [value for value in group.values if value.name]
    if not values:
        return ""
    title = fill(group.title + ".", "// ")
    if group.tag:
        prefix = common_prefix([value.name for value in values]) or family.prefix
        rows = "".join(f"  {cpp_name(prefix, v.name)} = {v.value},\n" for v in values)
        return f"{title}enum class {group.tag} : std::int32_t {{\n{rows}}};\n"
    rows = "".join(f"inline constexpr std::int32_t {cpp_name(family.prefix, v.name)} = {v.value};\n" for v in values)
    return title + rows


def defaults(family: Family, array: ParameterArray) -> str:
    """One array if all entries have numbers for defaults, else a constant for each that has."""
    users = [routine.argument(array.name) for routine in family.routines]
    type_name = next(argument.type.cpp for argument in users if argument)
    rows = [e for e in array.entries if NUMBER.match(e.default)]
    covered = [position for e in rows for position in range(e.first, e.last + 1)]
    values = {position: literal(e.default, type_name) for e in rows for position in range(e.first, e.last + 1)}
    if rows and covered == list(range(array.base, array.base + len(covered))) and len(rows) == len(array.entries):
        name = array.name[0].upper() + array.name[1:]
        items = "".join(f"    {values[position]},\n" for position in covered)
        return f"inline constexpr std::array<{type_name}, {len(covered)}> k{name}Defaults = {{\n{items}}};\n"
    named = [e for e in rows if e.name != "-"]
    return "".join(
        f"inline constexpr {type_name} {cpp_name(family.prefix, e.name)}Default = {literal(e.default, type_name)};\n" for e in named
    )


def cpp_array(family: Family, array: ParameterArray) -> str:
    named: list[Entry] = [entry for entry in array.entries if entry.name != "-"]
    rows = "".join(f"inline constexpr int {cpp_name(family.prefix, e.name)} = {e.first};\n" for e in named)
    return f"// {positions(array)}\n{rows}{defaults(family, array)}"


def cpp_header(family: Family, table: str) -> str:
    """Empty for a family without constants."""
    parts = [cpp_group(family, group) for group in family.groups()]
    parts += [cpp_array(family, array) for array in family.parameters.values()]
    parts = [part for part in parts if part]
    if not parts:
        return ""
    head = HEAD.format(table=table, namespace=family.namespace)
    return "\n".join([head, *parts, f"}}  // namespace quorin::{family.namespace}\n"])


def status_texts(family: Family, table: str) -> str:
    """What each routine's statuses mean, in words. Empty for a family that does not take its statuses from the table."""
    if not any(group.tag for group in family.statuses):
        return ""
    parts = ["struct StatusText {\n  std::int32_t status;\n  const char* text;\n};\n"]
    for routine in family.routines:
        values = [value for group in family.status_groups(routine) for value in family.statuses_of(routine, group)]
        texts = {value.value: value.text for value in values}
        rows = "".join(f"    {{{value}, {json.dumps(text)}}},\n" for value, text in texts.items())
        name = "".join(part.capitalize() for part in routine.name.split("_"))
        if rows:
            parts.append(f"inline constexpr StatusText k{name}Texts[] = {{\n{rows}}};\n")
    head = HEAD.format(table=table, namespace=family.namespace).replace("#include <array>\n", "")
    return "\n".join([head, *parts, f"}}  // namespace quorin::{family.namespace}\n"])
