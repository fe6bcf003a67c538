"""bindings/go: a package for GOOS=windows GOARCH=386 without cgo. Functions with a floating-point result are called through the stdcall
library, which stores it: Go cannot take it from the FPU's stack."""

from __future__ import annotations

from generator import model
from generator.bindings import names
from generator.bindings.names import Parameter
from generator.bindings.visual_basic import STDCALL, suffixed
from generator.model import ElementType, Family, Record, Routine
from generator.product import LIBRARY
from generator.text import fill

WIDTH = 120

# What syscall takes.
MOST_WORDS = 42

TYPES = {
    "char": "byte",
    "int32_t": "int32",
    "float": "float32",
    "double": "float64",
    "quorin_complex": "complex64",
    "quorin_double_complex": "complex128",
}

RESERVED = set(
    """break case chan const continue default defer else fallthrough for func go goto if import interface map package range return select
    struct switch type var address answer r math unsafe byte int32 float32 float64 complex64 complex128 uintptr string len""".split()
)

HEAD = """// Code generated from the export tables. DO NOT EDIT.

package lapacks

import (
\t"math"
\t"unsafe"
)

const (
\tlibraryName = "{library}"
\tstdcallName = "{stdcall}.dll"
)
"""


def camel(name: str) -> str:
    return "".join(part[:1].upper() + part[1:] for part in name.split("_"))


def public(name: str) -> str:
    return name[:1].upper() + name[1:]


def sliced(parameters: list[Parameter], chosen: list[str]) -> list[str]:
    """Arguments of the plain form: each array from its index on."""
    items: list[str] = []
    for item, name in zip(parameters, chosen):
        if item.passing == names.INDEX:
            items[-1] += f"[{name}:]"
        else:
            items.append(name)
    return items


class Writer:
    def __init__(self, families: list[Family]):
        self.callbacks = {item.c_name for family in families for item in family.callbacks}
        self.records = {item.c_name for family in families for item in family.records}

    def type_name(self, type_: ElementType) -> str:
        base = type_.c.removeprefix("const ")
        if base in TYPES:
            return TYPES[base]
        if base in self.callbacks:
            return "uintptr"
        return f"*{camel(base.rstrip('*'))}" if base.rstrip("*") in self.records else "unsafe.Pointer"

    def declaration(self, item: Parameter, name: str) -> str:
        type_ = self.type_name(item.type)
        if item.passing in (names.VALUE, names.INDEX) or (item.passing == names.REFERENCE and item.is_input):
            return f"{name} {type_}"
        if item.is_text and item.is_input:
            return f"{name} string"
        is_array = item.argument is not None and item.argument.is_array
        return f"{name} {'[]' if is_array else '*'}{type_}"

    def words(self, item: Parameter, name: str) -> list[str]:
        """What is pushed. A conversion to uintptr in the list of arguments keeps what it points to alive."""
        type_ = self.type_name(item.type)
        if item.passing in (names.VALUE, names.INDEX):
            if type_ == "float64":
                return [f"uintptr(uint32(math.Float64bits({name})))", f"uintptr(math.Float64bits({name})>>32)"]
            if type_ == "float32":
                return [f"uintptr(math.Float32bits({name}))"]
            return [f"uintptr(unsafe.Pointer({name}))" if type_.startswith("*") else f"uintptr({name})"]
        if item.is_text and item.is_input:
            return [f"uintptr(address(Text({name})))"]
        if item.passing == names.REFERENCE and item.is_input:
            return [f"uintptr(unsafe.Pointer(&{name}))"]
        is_array = item.argument is not None and item.argument.is_array
        return [f"uintptr(address({name}))" if is_array else f"uintptr(unsafe.Pointer({name}))"]

    def answer(self, type_: ElementType) -> str:
        name = self.type_name(type_)
        if name == "int32":
            return "\treturn int32(r)\n"
        # Not unsafe.Pointer(r), for what looks like a number that was made an address.
        return f"\treturn *(*{name})(unsafe.Pointer(&r))\n"

    def function(self, family: Family, routine: Routine, name: str, is_index_form: bool) -> str:
        parameters = names.parameters(routine, is_index_form)
        chosen = names.distinct([p.name for p in parameters], RESERVED.__contains__)
        result = names.result(routine)
        is_stored = result in (model.TYPES["float"], model.TYPES["double"])
        words = [word for p, n in zip(parameters, chosen) for word in self.words(p, n)]
        own, library = (suffixed(name), "stdcall") if is_stored else (name, "library")
        texts = [fill(f"// {public(name)}: {routine.summary}", "", WIDTH, "// ")]
        for argument in routine.arguments:
            text = names.meaning(argument, family.note(routine, argument.name))
            texts.append(fill(f"- {argument.name}: {text}", "//   ", WIDTH, "//     "))
        items = [self.declaration(p, n) for p, n in zip(parameters, chosen)]
        head = f"func {public(name)}({', '.join(items)})"
        variable = f"proc_{name}"
        texts.append(f"{head} {self.type_name(result)} {{\n" if result else f"{head} {{\n")
        if len(words) > MOST_WORDS:
            return "".join(texts) + f"\t{public(routine.name)}({', '.join(sliced(parameters, chosen))})\n}}\n"
        if is_stored:
            texts.append(f"\tvar answer {self.type_name(result)}\n")
            words.append("uintptr(unsafe.Pointer(&answer))")
        call = f"{variable}.Call({', '.join(words)})"
        texts.append(f"\tr, _, _ := {call}\n" if result and not is_stored else f"\t{call}\n")
        if is_stored:
            texts.append("\treturn answer\n")
        elif result:
            texts.append(self.answer(result))
        return f'var {variable} = bind({library}, "{own}")\n\n' + "".join(texts) + "}\n"

    def record(self, item: Record) -> str:
        texts = [fill(f"// {camel(item.c_name)}: {item.text}", "", WIDTH, "// "), f"type {camel(item.c_name)} struct {{\n"]
        for union, fields in names.by_union(item.fields):
            for field in [fields[0]] if union else fields:
                type_ = "unsafe.Pointer" if union or field.is_array else self.type_name(field.type)
                texts.append(f"\t// {field.text}\n\t{camel(union or field.name)} {type_}\n")
        return "".join(texts) + "}\n"


def constants(families: list[Family]) -> str:
    seen: set[str] = set()
    parts = []
    for family in families:
        for title, items in names.constants(family):
            rows = [(name, value) for name, value, _ in items if name not in seen]
            widest = max((len(name) for name, _ in rows), default=0)
            seen.update(name for name, _, _ in items)
            if rows:
                lines = "".join(f"\t{name:{widest}} = {value}\n" for name, value in rows)
                parts.append(f"// {family.title}: {title}.\nconst (\n{lines})\n")
    return "\n".join(parts)


def source(families: list[Family]) -> str:
    writer = Writer(families)
    parts = [HEAD.format(library=LIBRARY, stdcall=STDCALL), constants(families)]
    parts += [writer.record(item) for family in families for item in family.records]
    for family in families:
        parts += [writer.function(family, routine, name, is_index_form) for routine, name, is_index_form in names.exports(family)]
    return "\n".join(parts)
