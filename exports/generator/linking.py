"""What the linkers need: .def files, the version script, the name list, and a C file that uses every export."""

from __future__ import annotations

from generator import model
from generator.declarations import parameters, result_type, wrapped
from generator.model import Argument, Family, Routine
from generator.product import LIBRARY


def export_names(families: list[Family]) -> list[str]:
    return sorted(name for family in families for routine in family.routines for name in routine.export_names)


def internal_names(families: list[Family]) -> dict[str, str]:
    """Public name to internal name; an alias shares its routine's."""
    names = {}
    for family in families:
        for routine in family.routines:
            names.update({name: f"quorin_{name}" for name in routine.export_names})
            names.update({name: f"quorin_{routine.name}" for name in routine.aliases})
    return names


def public_definition(families: list[Family]) -> str:
    rows = "".join(f"    {name}\n" for name in export_names(families))
    return f'LIBRARY "{LIBRARY}"\nEXPORTS\n{rows}'


def link_definition(families: list[Family]) -> str:
    rows = "".join(f"    {name} = {internal}\n" for name, internal in sorted(internal_names(families).items()))
    return f'LIBRARY "{LIBRARY}"\nEXPORTS\n{rows}'


def version_script(families: list[Family]) -> str:
    rows = "".join(f"    {name};\n" for name in export_names(families))
    return f"{{\n  global:\n{rows}  local:\n    *;\n}};\n"


def name_list(families: list[Family]) -> str:
    return "".join(f"{name}\n" for name in export_names(families))


def reference_everything(families: list[Family]) -> str:
    """Compiled as C against the public headers and linked against the import library."""
    includes = "".join(f'#include "quorin/{family.name}.h"\n' for family in families)
    names = export_names(families)
    rows = "".join(f'    {{"{name}", (any_function)&{name}}},\n' for name in names)
    return (
        "/* Generated from the export tables. Do not edit. */\n"
        f"{includes}\n#include <stdio.h>\n\n"
        "typedef void (*any_function)(void);\n"
        "static const struct { const char* name; any_function address; } exports[] = {\n"
        f"{rows}}};\n\n"
        "int main(void) {\n"
        "  const size_t count = sizeof exports / sizeof exports[0];\n"
        "  size_t missing = 0;\n"
        "  for (size_t i = 0; i < count; ++i) {\n"
        "    if (exports[i].address == 0) {\n"
        '      printf("missing: %s\\n", exports[i].name);\n'
        "      ++missing;\n"
        "    }\n"
        "  }\n"
        '  printf("%u exports, %u missing\\n", (unsigned)count, (unsigned)missing);\n'
        f"  return count != {len(names)} || missing != 0;\n"
        "}\n"
    )


# Elements by which Fortran-callable names of index forms shift an array's base, to be taken back by the index.
SHIFT = 5


def forwarded(argument: Argument, through_index: bool) -> str:
    if not (through_index and argument.has_index):
        return argument.name
    constant = "const " if argument.direction == model.IN else ""
    base = f"({constant}{argument.type.c}*)((uintptr_t){argument.name} - {SHIFT} * sizeof *{argument.name})"
    return f"{base}, {SHIFT}"


def fortran_name(routine: Routine, through_index: bool) -> str:
    items = parameters(routine, "c", False)
    passed = [forwarded(argument, through_index) for argument in routine.arguments]
    result, keep, give = result_type(routine, "c"), "", ""
    if routine.result_is_argument:
        result, keep, give = "float _Complex", "quorin_complex result;\n  ", "  return __builtin_complex(result.re, result.im);\n"
        items, passed = items[1:], ["&result"] + passed
    elif routine.result:
        keep, give = f"const {result} result = ", "  return result;\n"
    target = routine.index_name if through_index else routine.name
    head = wrapped(f"{result} {routine.name}_", items, " {")
    return f"{head}\n  {keep}{target}({', '.join(passed)});\n  quorin_after_call();\n{give}}}\n"


def fortran_names(family: Family, through_index: bool) -> str:
    """Routines under the names that Fortran test programs call, each forwarding to an export."""
    routines = [routine for routine in family.routines if routine.has_plain and routine.index_name]
    parts = ["/* Generated from the export tables. Do not edit. */", f'#include "quorin/{family.name}.h"\n']
    parts.append("void quorin_after_call(void);\n")
    parts.extend(fortran_name(routine, through_index) for routine in routines)
    return "\n".join(parts)
