"""bindings/csharp: a static class for each family, with P/Invoke declarations and XML documentation."""

from __future__ import annotations

from xml.sax.saxutils import escape

from generator import model
from generator.bindings import names
from generator.bindings.names import Parameter
from generator.model import Callback, ElementType, Family, Record, Routine
from generator.text import fill

WIDTH = 140

TYPES = {
    "int32_t": "int",
    "float": "float",
    "double": "double",
    "char": "byte",
    "quorin_complex": "FloatComplex",
    "quorin_double_complex": "DoubleComplex",
}

KEYWORDS = {"in", "out", "ref", "params", "is", "as", "base", "lock", "event", "object", "string", "float", "double", "int"}

HEAD = """// {title}. Generated from the export tables. Do not edit.
using System;
using System.Runtime.InteropServices;

namespace Quorin.Lapacks
{{
"""


def camel(name: str) -> str:
    return "".join(part[:1].upper() + part[1:] for part in name.split("_"))


def option_enums(families: list[Family]) -> dict[str, dict[str, str]]:
    """The letters of character arguments by argument name, over all routines, each with its first meaning."""
    enums: dict[str, dict[str, str]] = {}
    for family in families:
        for routine in family.routines:
            for argument in routine.arguments:
                note = family.note(routine, argument.name)
                if argument.type is not model.TYPES["char"] or argument.is_array or not note:
                    continue
                for option in note.options:
                    if option.value.isalpha():
                        enums.setdefault(argument.name.lower(), {}).setdefault(option.value, option.text)
    return enums


class Writer:
    def __init__(self, families: list[Family]):
        self.enums = option_enums(families)
        self.callbacks = {item.c_name for family in families for item in family.callbacks}

    def type_name(self, type_: ElementType) -> str:
        base = type_.c.removeprefix("const ")
        if base in self.callbacks:
            return camel(base)
        return TYPES.get(base, "IntPtr")

    def declaration(self, item: Parameter, name: str) -> str:
        type_ = self.type_name(item.type)
        if item.passing in (names.VALUE, names.INDEX):
            return f"{type_} {name}"
        if item.is_kept:
            return f"IntPtr {name}"
        if item.is_text and item.is_input:
            return f"[MarshalAs(UnmanagedType.LPStr)] string {name}"
        if item.passing == names.ADDRESS:
            direction = "[In] " if item.is_input else "[In, Out] "
            return f"{direction}{type_}[] {name}"
        if item.type is model.TYPES["char"] and item.name.lower() in self.enums:
            type_ = camel(item.name.lower())
        if item.is_input:
            return f"in {type_} {name}"
        is_output = item.argument is None or item.argument.direction == model.OUT
        return f"{'out' if is_output and 'IntPtr' not in type_ else 'ref'} {type_} {name}"

    def method(self, routine: Routine, name: str, is_index_form: bool) -> str:
        parameters = names.parameters(routine, is_index_form)
        chosen = names.distinct([p.name for p in parameters], lambda taken: False)
        items = [self.declaration(p, f"@{n}" if n in KEYWORDS else n) for p, n in zip(parameters, chosen)]
        result = names.result(routine)
        head = f"        public static extern {self.type_name(result) if result else 'void'} {name}("
        attribute = '        [DllImport(Library.Name, CallingConvention = CallingConvention.Cdecl)]\n'
        return attribute + names.wrapped(head, items, ");", ",", WIDTH, " " * 12)

    def documentation(self, family: Family, routine: Routine, is_index_form: bool) -> str:
        lines = [self.line("summary", routine.summary)]
        for argument in routine.arguments:
            note = family.note(routine, argument.name)
            lines.append(self.line("param", names.meaning(argument, note), argument.name))
            if is_index_form and argument.has_index:
                text = "ignored" if argument.kind == model.IGNORED else f"element of {argument.name} with which it begins"
                lines.append(self.line("param", text, f"{argument.name}_index"))
        return "".join(lines)

    @staticmethod
    def line(tag: str, text: str, name: str = "") -> str:
        attribute = f' name="{name}"' if name else ""
        return fill(f"/// <{tag}{attribute}>{escape(text)}</{tag}>", "        ", WIDTH, "        /// ")

    def callback(self, item: Callback) -> str:
        convention = "StdCall" if item.is_stdcall else "Cdecl"
        items = []
        for p in names.parameters(item):
            by_value = p.passing == names.VALUE
            type_ = self.type_name(p.type)
            items.append(f"{type_} {p.name}" if by_value else f"IntPtr {p.name}" if p.passing == names.ADDRESS else f"ref {type_} {p.name}")
        result = names.result(item)
        text = self.line("summary", item.text).replace("        ///", "    ///")
        head = f"    public delegate {self.type_name(result) if result else 'void'} {camel(item.c_name)}("
        return f"{text}    [UnmanagedFunctionPointer(CallingConvention.{convention})]\n" + names.wrapped(
            head, items, ");", ",", WIDTH, " " * 8
        )

    def record(self, item: Record) -> str:
        rows = []
        for union, fields in names.by_union(item.fields):
            for field in [fields[0]] if union else fields:
                type_ = "IntPtr" if union or field.is_array else self.type_name(field.type)
                rows.append(f"        public {type_} {union or field.name}; // {field.text}\n")
        text = self.line("summary", item.text).replace("        ///", "    ///")
        return f"{text}    [StructLayout(LayoutKind.Sequential)]\n    public struct {camel(item.c_name)}\n    {{\n{''.join(rows)}    }}\n"

    def family(self, family: Family) -> str:
        parts = [HEAD.format(title=family.title)]
        parts += [self.record(item) + "\n" for item in family.records] + [self.callback(item) + "\n" for item in family.callbacks]
        parts.append(f"    /// <summary>{escape(family.title)}.</summary>\n    public static class {camel(family.name)}\n    {{\n")
        seen: set[str] = set()
        for title, items in names.constants(family):
            parts.append(fill(f"// {title}.", "        ", WIDTH))
            for name, value, text in items:
                if name not in seen:
                    parts.append((self.line("summary", text) if text else "") + f"        public const int {name} = {value};\n")
                seen.add(name)
        for routine, name, is_index_form in names.exports(family):
            parts.append("\n" + self.documentation(family, routine, is_index_form) + self.method(routine, name, is_index_form))
        return "".join(parts) + "    }\n}\n"

    def options(self) -> str:
        parts = [HEAD.format(title="Letters of options")]
        for name, letters in sorted(self.enums.items()):
            parts.append(f"    /// <summary>Values of {name}; the routine's documentation tells which it takes.</summary>\n")
            parts.append(f"    public enum {camel(name)} : byte\n    {{\n")
            parts += [self.line("summary", text) + f"        {letter} = (byte)'{letter}',\n" for letter, text in letters.items()]
            parts.append("    }\n\n")
        return "".join(parts).rstrip() + "\n}\n"


def files(families: list[Family]) -> dict[str, str]:
    writer = Writer(families)
    texts = {f"{camel(family.name)}.cs": writer.family(family) for family in families}
    texts["Options.cs"] = writer.options()
    return texts
