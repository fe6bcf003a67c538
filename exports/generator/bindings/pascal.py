"""bindings/pascal: a unit for Free Pascal and Delphi, and for each of them a file with the routines, because they spell a
value that is passed by reference and only read in different ways."""

from __future__ import annotations

from dataclasses import dataclass

from generator.bindings import names
from generator.bindings.names import Parameter
from generator.model import Callback, ElementType, Family, Record, Routine
from generator.product import LIBRARY, PRODUCT
from generator.text import fill

WIDTH = 120

RESERVED = set(
    """absolute and array as asm begin case class const constructor destructor div do downto else end except exports external
    file finalization finally for function goto if implementation in inherited initialization inline interface is label
    library mod nil not object of on operator or out packed procedure program property raise record repeat result
    resourcestring set shl shr string then threadvar to try type unit until uses var while with xor""".split()
)

# A value, and its address.
TYPES = {
    "char": ("AnsiChar", "PAnsiChar"),
    "int32_t": ("Int32", "PInt32"),
    "float": ("Single", "PSingle"),
    "double": ("Double", "PDouble"),
    "quorin_complex": ("TQuorinComplex", "PQuorinComplex"),
    "quorin_double_complex": ("TQuorinDoubleComplex", "PQuorinDoubleComplex"),
    "void": ("", "Pointer"),
}

HEAD = """{{ Everything that {library} exports, for Free Pascal and Delphi, 32 bits.

  Scalars that are only read may be numbers as well as variables: sscal(3, 2.0, @x[0], 1). Arrays are addresses, such as
  @x[0]. An address that a routine keeps (its comment says so) must stay valid until its object is deleted: no SetLength.
  No exception may leave a callback. Names that differ in case alone are here once.

  Generated from the export tables. Do not edit. }}
unit QuorinLapacks;

{{$IFDEF FPC}}
  {{$MODE DELPHI}}
  {{$PACKRECORDS C}}
{{$ENDIF}}
{{$IFNDEF CPU32BITS}}{{$IFNDEF CPUX86}}{{$IFDEF MSWINDOWS}}
  {{$MESSAGE ERROR 'Quorin Lapacks is a library of 32 bits: compile for Win32.'}}
{{$ENDIF}}{{$ENDIF}}{{$ENDIF}}

interface

const
{{$IFDEF MSWINDOWS}}
  QuorinLibrary = '{library}';
{{$ELSE}}
  QuorinLibrary = '{product}'; {{ lib and .so around it }}
{{$ENDIF}}

type
{{$IFNDEF FPC}}
  PInt32 = ^Int32;
{{$ENDIF}}
  {{ Two consecutive numbers, the real part first. }}
  TQuorinComplex = record
    re, im: Single;
  end;
  PQuorinComplex = ^TQuorinComplex;

  TQuorinDoubleComplex = record
    re, im: Double;
  end;
  PQuorinDoubleComplex = ^TQuorinDoubleComplex;
"""


def camel(c_name: str) -> str:
    return "".join(part[:1].upper() + part[1:] for part in c_name.split("_"))


def type_name(type_: ElementType, stars: int = 0) -> str:
    """Of a C type with so many stars more: Single, PSingle, Pointer, ^PSingle as PPointer."""
    base = type_.c.removeprefix("const ").rstrip("*").strip()
    depth = type_.c.count("*") + stars
    if base in TYPES:
        value, address = TYPES[base]
        return [value, address, "PPointer"][depth]
    return ["T", "P", "PP"][depth] + camel(base)


@dataclass(frozen=True)
class Compiler:
    """How a value is declared that is passed by reference and only read."""

    name: str
    reference: str


COMPILERS = (Compiler("fpc", "constref"), Compiler("delphi", "const [ref]"))

# What either compiler understands, for functions of the host, which are passed no constants.
CALLBACKS = Compiler("either", "var")


def declaration(parameter: Parameter, name: str, compiler: Compiler) -> str:
    if parameter.passing in (names.VALUE, names.INDEX):
        return f"{name}: {type_name(parameter.type)}"
    if parameter.passing == names.ADDRESS:
        return f"{name}: {type_name(parameter.type, 1)}"
    if parameter.is_input:
        return f"{compiler.reference} {name}: {type_name(parameter.type)}"
    return f"var {name}: {type_name(parameter.type)}"


def prototype(head: str, routine: Routine | Callback, is_index_form: bool, tail: str, compiler: Compiler) -> str:
    parameters = names.parameters(routine, is_index_form)
    chosen = names.distinct([p.name for p in parameters], lambda name: name.lower() in RESERVED, str.lower)
    items = [declaration(parameter, name, compiler) for parameter, name in zip(parameters, chosen)]
    result = names.result(routine)
    answer = f"): {type_name(result)}{tail}" if result else f"){tail}"
    return names.wrapped(f"{head}(", items, answer, ";", WIDTH, "    ").replace("()", "")


def kind(routine: Routine | Callback) -> str:
    return "function" if names.result(routine) else "procedure"


def comment(text: str, indent: str = "") -> str:
    return fill(f"{{ {text.replace('}', ')').replace('{', '(')} }}", indent, indent=indent + "  ")


def record(item: Record) -> str:
    lines = [comment(item.text, "  "), f"  {type_of_record(item)} = record\n"]
    for union, fields in names.by_union(item.fields):
        if union:
            # A Pascal record has one variant part, at its end; of a union of addresses the untyped one is enough.
            lines.append(f"    {union}: Pointer; {{ {fields[0].text} }}\n")
            continue
        for field in fields:
            lines.append(f"    {field.name}: {type_name(field.type, field.is_array)}; {{ {field.text} }}\n")
    name = camel(item.c_name)
    return "".join(lines) + f"  end;\n  P{name} = ^T{name};\n  PP{name} = ^P{name};\n"


def type_of_record(item: Record) -> str:
    return "T" + camel(item.c_name)


def callback(item: Callback) -> str:
    convention = "stdcall" if item.is_stdcall else "cdecl"
    head = f"  {type_of_record(item)} = {kind(item)}"
    return comment(item.text, "  ") + prototype(head, item, False, f"; {convention};", CALLBACKS)


def remarks(routine: Routine) -> str:
    kept = [argument.name for argument in routine.arguments if argument.is_kept]
    text = f" Keeps the address of {', '.join(kept)}." if kept else ""
    return comment(routine.summary + text)


def constants(families: list[Family], seen: set[str]) -> str:
    parts = ["\nconst\n"]
    for family in families:
        for title, items in names.constants(family):
            parts.append(comment(f"{family.title}: {title}.", "  "))
            for name, value, text in items:
                chosen = caseless(name, seen)
                parts.append(f"  {chosen} = {value};" + (f" {{ {text} }}" if len(text) < 80 and text else "") + "\n")
    return "".join(parts)


def caseless(name: str, seen: set[str]) -> str:
    """A name that no other one equals where case does not count."""
    while name.lower() in seen:
        name += "_"
    seen.add(name.lower())
    return name


def files(families: list[Family]) -> dict[str, str]:
    head = HEAD.format(library=LIBRARY, product=PRODUCT)
    types = [text for family in families for text in [*map(record, family.records), *map(callback, family.callbacks)]]
    seen: set[str] = set()
    unit = [head, *types, constants(families, seen), "\n"]
    unit += ["{$IFDEF FPC}{$I quorin_fpc.inc}{$ELSE}{$I quorin_delphi.inc}{$ENDIF}\n", "\nimplementation\n\nend.\n"]
    texts = {"QuorinLapacks.pas": "".join(unit)}
    for compiler in COMPILERS:
        texts[f"quorin_{compiler.name}.inc"] = routines(families, compiler, set(seen))
    return texts


def routines(families: list[Family], compiler: Compiler, seen: set[str]) -> str:
    parts = ["{ Generated from the export tables. Do not edit. }\n"]
    last_family = last_routine = None
    for family, routine, name, is_index_form in names.caseless_exports(families):
        if family is not last_family:
            parts.append(f"\n{{ ---- {family.title} ---- }}\n\n")
        if routine is not last_routine:
            parts.append(remarks(routine))
        last_family, last_routine = family, routine
        head = f"{kind(routine)} {caseless(name, seen)}"
        parts.append(prototype(head, routine, is_index_form, f"; cdecl; external QuorinLibrary name '{name}';", compiler))
    return "".join(parts)
