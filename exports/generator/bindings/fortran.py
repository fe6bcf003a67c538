"""bindings/fortran/quorin_lapacks.f90: interfaces of Fortran 2003, one module for each family and one of all."""

from __future__ import annotations

from generator import model
from generator.bindings import names
from generator.bindings.names import Parameter
from generator.model import Callback, ElementType, Family, Record, Routine
from generator.product import LIBRARY
from generator.text import fill

WIDTH = 120

TYPES = {
    "char": "character(kind=c_char)",
    "int32_t": "integer(c_int32_t)",
    "float": "real(c_float)",
    "double": "real(c_double)",
    "quorin_complex": "complex(c_float_complex)",
    "quorin_double_complex": "complex(c_double_complex)",
}

HEAD = """! Everything that {library} exports, as interfaces of Fortran 2003.
!
! `use quorin_lapacks` brings all of it, `use quorin_<family>` a part. Arrays are assumed-size, texts end with c_null_char,
! addresses and procedures are c_ptr and c_funptr (c_loc, c_funloc). An array that a routine keeps (its comment says so)
! needs the target attribute and must outlive its object. Complex results come first among the arguments.
! Fortran does not tell upper from lower case: names that differ in nothing else are here once.
!
! Generated from the export tables. Do not edit.
"""


def type_name(type_: ElementType) -> str:
    base = type_.c.removeprefix("const ")
    if base in TYPES:
        return TYPES[base]
    return "type(c_funptr)" if "*" not in base else "type(c_ptr)"


def declaration(parameter: Parameter, name: str) -> str:
    type_ = type_name(parameter.type)
    if parameter.passing in (names.VALUE, names.INDEX):
        return f"{type_}, value :: {name}"
    if parameter.argument is not None and parameter.argument.is_nullable:
        # A missing actual argument is the null address (Fortran 2018, 18.3.6).
        intent = "in" if parameter.is_input else "inout"
        return f"{type_}, intent({intent}), optional :: {name}" + ("(*)" if parameter.argument.is_array else "")
    intent = "in" if parameter.is_input else "inout"
    suffix = "(*)" if parameter.passing == names.ADDRESS else ""
    target = ", target" if parameter.is_kept else ""
    return f"{type_}, intent({intent}){target} :: {name}{suffix}"


def interface(routine: Routine | Callback, name: str, is_index_form: bool, is_abstract: bool = False) -> str:
    parameters = names.parameters(routine, is_index_form)
    result = names.result(routine)
    own = name.lower()
    chosen = names.distinct([p.name for p in parameters], lambda taken: taken.lower() in (own, "answer"), str.lower)
    binding = "bind(c)" if is_abstract else f"bind(c, name='{name}')"
    kind = "function" if result else "subroutine"
    tail = f") {binding}" + (" result(answer)" if result else "")
    text = names.wrapped(f"    {kind} {own}(", chosen, tail, ",", WIDTH, "      ", " &").replace(" &", " &")
    lines = [text, "      import\n"]
    lines += [f"      {declaration(parameter, name)}\n" for parameter, name in zip(parameters, chosen)]
    if result:
        lines.append(f"      {type_name(result)} :: answer\n")
    return "".join(lines) + f"    end {kind}\n"


def record(item: Record) -> str:
    lines = [fill(f"! {item.text}", "  ", indent="  ! "), f"  type, bind(c) :: {item.c_name}\n"]
    for union, fields in names.by_union(item.fields):
        for field in [fields[0]] if union else fields:
            type_ = "type(c_ptr)" if union or field.is_array else type_name(field.type)
            lines.append(f"    {type_} :: {union or field.name} ! {field.text}\n")
    return "".join(lines) + f"  end type {item.c_name}\n"


def comment(text: str) -> str:
    return fill(f"! {text}", "    ", width=WIDTH, indent="    ! ")


def module(family: Family, taken: set[str]) -> str:
    parts = [f"! {family.title}.\nmodule quorin_{family.name}\n  use, intrinsic :: iso_c_binding\n  implicit none\n  public\n\n"]
    parts += map(record, family.records)
    for title, items in names.constants(family):
        parts.append(fill(f"! {title}.", "  ", indent="  ! "))
        for name, value, _ in items:
            while name.lower() in taken:
                name += "_"
            taken.add(name.lower())
            parts.append(f"  integer(c_int32_t), parameter :: {name.lower()} = {value}\n")
    if family.callbacks:
        parts.append("\n  abstract interface\n")
        for item in family.callbacks:
            parts += [comment(item.text), interface(item, item.c_name, False, is_abstract=True)]
        parts.append("  end interface\n")
    parts.append("\n  interface\n")
    last = None
    for routine, name, is_index_form in names.exports(family):
        if name.lower() in taken:
            continue
        taken.add(name.lower())
        if routine is not last:
            kept = [argument.name for argument in routine.arguments if argument.is_kept]
            parts.append(comment(routine.summary + (f" Keeps the address of {', '.join(kept)}." if kept else "")))
        last = routine
        parts.append(interface(routine, name, is_index_form))
    return "".join(parts) + f"  end interface\nend module quorin_{family.name}\n"


def source(families: list[Family]) -> str:
    taken: set[str] = set()
    parts = [HEAD.format(library=LIBRARY), *(module(family, taken) for family in families)]
    uses = "".join(f"  use quorin_{family.name}\n" for family in families)
    return "\n".join([*parts, f"! All families.\nmodule quorin_lapacks\n{uses}end module quorin_lapacks\n"])
