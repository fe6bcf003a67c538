"""The reference manual, one page for each family, or for each section of a large one; routines that differ only in type share an entry."""

from __future__ import annotations

import re
from collections.abc import Callable

from generator import model
from generator.declarations import callback, parameters, record, result_type, wrapped
from generator.model import Family, Group, ParameterArray, Routine, Section


def signature(name: str, routine: Routine, is_index_form: bool) -> str:
    items = parameters(routine, "c", is_index_form)
    return wrapped(f"{result_type(routine, 'c')} {name}", items, ";", width=110)


def cell(text: str) -> str:
    return text.replace("|", "\\|")


def row(cells: list[str]) -> str:
    return "|" + "".join(f" {cell} |" if cell else " |" for cell in cells)


def meaning(family: Family, routine: Routine, argument: model.Argument) -> str:
    note = family.note(routine, argument.name)
    parts = [note.text] if note and note.text else []
    if argument.is_nullable:
        parts.append("may be null")
    text = "; ".join(parts)
    minimum = family.minima(routine).get(argument.name)
    lines = [f"at least `{minimum.value}`" + (" elements" if argument.is_array else "")] if minimum else []
    for option in note.options if note else []:
        lines.append(f"`{option.value}`" + (f" `{option.name}`" if option.name else "") + f": {option.text}")
    if argument.is_kept:
        lines.append("**Kept**: later calls use the address; it must stay valid until the object is deleted or another takes its place.")
    return cell("<br>".join([text] * bool(text) + lines))


def argument_row(family: Family, routine: Routine, argument: model.Argument, types: list[str]) -> str:
    passed = {
        model.SCALAR: "by reference",
        model.ADDRESS: "by reference",
        model.VALUE: "by value",
        model.ARRAY: "array",
        model.PLAIN: "array; no index in the index form",
        model.PAIRED: "by reference; with an index in the index form",
        model.IGNORED: "array; its index is ignored in the index form",
    }[argument.kind]
    if argument.kind == model.PLAIN and not routine.index_name:
        passed = "array"
    size = argument.size_text() or ("1" if not argument.is_array else "")
    what = meaning(family, routine, argument)
    return row([f"`{argument.name}`", argument.direction, ", ".join(types), cell(size), passed, what])


def argument_table(family: Family, routines: list[Routine]) -> str:
    first = routines[0]
    rows = ["| argument | direction | type | size | passed | meaning |", "|---|---|---|---|---|---|"]
    for position, argument in enumerate(first.arguments):
        types = dict.fromkeys(routine.arguments[position].type.text for routine in routines)
        rows.append(argument_row(family, first, argument, list(types)))
    return "\n".join(rows)


def value_table(head: str, values: list[model.Value]) -> str:
    has_names = any(value.name for value in values)
    names = "constant | " if has_names else ""
    rows = [f"| {head} | {names}meaning |", "|---|---|---|" if has_names else "|---|---|"]
    for value in values:
        cells = [f"`{cell(value.value)}`", f"`{value.name}`" if value.name else "", cell(value.text)]
        rows.append(row(cells if has_names else [cells[0], cells[2]]))
    return "\n".join(rows) + "\n"


def place_name(group: Group) -> str:
    return "result" if group.place == model.RESULT else f"`{group.place}`"


def enumeration(names: list[str], conjunction: str) -> str:
    return ", ".join(names[:-1]) + f" {conjunction} {names[-1]}" if len(names) > 1 else names[0]


def not_finite(check: model.FiniteCheck) -> model.Value:
    examined, filled = ([part.array for part in parts] for parts in (check.examined, check.filled))
    verb = "holds" if len(examined) == 1 else "hold"
    large = f" or an element above {check.limit}" if check.limit else ""
    text = f"or: {enumeration(examined, 'or')} {verb} an infinity or a NaN{large}, or a step inside met one: "
    if filled:
        text += f"{enumeration(filled, 'and')} {'is' if len(filled) == 1 else 'are'} NaN, and the other "
    return model.Value(check.status, "", text + "results are of no use")


def status_tables(family: Family, routine: Routine, head_page: str) -> list[str]:
    """The statuses that are not those of every routine, and a reference to these."""
    parts = []
    for group in family.status_groups(routine):
        statuses = family.statuses_of(routine, group)
        own = [value for value in statuses if value.routines or value not in group.values]
        if (check := family.finite(routine)) and group.place == "info":
            own.append(not_finite(check))
            statuses.append(own[-1])
        if own:
            parts.append(value_table(place_name(group), own))
        if len(own) < len(statuses):
            common = ", ".join(f"`{value.value}`" for value in statuses if value not in own)
            parts.append(f"{'Also ' if own else ''}{place_name(group)} {common}: see [{group.title}]({head_page}{anchor(group.title)}).\n")
    return parts


def anchor(title: str) -> str:
    """GitHub's name for a heading."""
    return "#" + re.sub(r"[^\w -]", "", title.lower()).replace(" ", "-")


def entry(family: Family, routines: list[Routine], head_page: str) -> str:
    names = [name for routine in routines for name in ([routine.name] if routine.has_plain else []) + routine.aliases]
    names = names or [routine.index_name for routine in routines]
    lines = []
    for routine in routines:
        if routine.has_plain:
            lines.append(signature(routine.name, routine, False))
        if routine.index_name:
            lines.append(signature(routine.index_name, routine, True))
    title = ", ".join(f"`{name}`" for name in names)
    first = routines[0]
    parts = [f"### {title}\n", first.summary + "\n", "```c\n" + "\n".join(lines) + "\n```\n"]
    if first.arguments:
        parts.append(argument_table(family, routines) + "\n")
    if result := family.note(first, model.RESULT):
        parts.append(f"Result: {result.text}.\n")
    if any(routine.result_is_argument for routine in routines):
        parts.append("A complex result is stored through the extra first argument `result`.\n")
    return "\n".join(parts + status_tables(family, first, head_page))


def parameter_table(array: ParameterArray) -> str:
    has_scope = any(item.routines for item in array.entries)
    scope = " for |" if has_scope else ""
    base = "zero-based" if array.base == 0 else "one-based"
    rows = [f"| position, {base} | constant | meaning | default |{scope}", "|---|---|---|---|" + ("---|" if has_scope else "")]
    for item in array.entries:
        position = str(item.first) if item.first == item.last else f"{item.first} to {item.last}"
        name = f"`{item.name}`" if item.name != "-" else ""
        cells = [position, name, cell(item.text), item.default]
        rows.append(row(cells + ([" ".join(f"`{name}`" for name in item.routines)] if has_scope else [])))
    return "\n".join(rows) + "\n"


def type_declarations(family: Family) -> list[str]:
    items = [record(item) for item in family.records] + [callback(item) for item in family.callbacks]
    return ["## Types\n", "```c\n" + "\n".join(items) + "```\n"] if items else []


def shared_tables(family: Family) -> list[str]:
    """What concerns more than one routine: types, constants, statuses, parameter arrays, names in sizes."""
    parts = type_declarations(family)
    for group in family.constants:
        parts += [f"## {group.title}\n", value_table("value", group.values)]
    for group in family.statuses:
        general = [value for value in group.values if not value.routines]
        parts += [f"## {group.title}\n", value_table(place_name(group), general)] if general else []
    for array in family.parameters.values():
        parts += [f"## The array `{array.name}`\n", array.text + "\n", parameter_table(array)]
    if family.quantities:
        quantities = [f"| `{name}` | {cell(item.text)} |\n" for name, item in family.quantities.items()]
        parts += ["## Names in sizes\n", "| name | meaning |\n|---|---|\n" + "".join(quantities)]
    return parts


# A page that is longer is split by section.
LONGEST_PAGE = 2000


def slug(title: str) -> str:
    return anchor(title)[1:]


def is_split(family: Family) -> bool:
    return sum(len(section_text(family, section, "").splitlines()) for section in family.sections) > LONGEST_PAGE


def link(family: Family, section: Section) -> str:
    """Where a section stands, seen from the manual's first page."""
    return f"{family.name}-{slug(section.title)}.md" if is_split(family) else f"{family.name}.md{anchor(section.title)}"


def section_text(family: Family, section: Section, head_page: str) -> str:
    """`head_page` is where the tables are that all routines share, if not on the same page."""
    return "\n".join(entry(family, group, head_page) for group in family.twins(section))


def pages(family: Family, table: str, example: str = "") -> dict[str, str]:
    """File names and texts: one page, or one with what all sections share and one for each section. `example` is a C program."""
    mark = f"<!-- Generated from {table}. Do not edit. -->\n"
    parts = [f"# {family.title}\n", mark, *(paragraph + "\n" for paragraph in family.text)]
    parts += [f"## Example\n\n```c\n{example}```\n"] * bool(example)
    texts = {}
    if is_split(family):
        parts.append("## Sections\n")
        for section in family.sections:
            names = ", ".join(f"`{routine.export_names[0]}`" for routine in section.routines)
            parts.append(f"[{section.title}]({link(family, section)}): {names}\n")
            head_page = f"{family.name}.md"
            head = f"# {family.title}: {section.title}\n\n{mark}\nWhat all sections share: [{family.title}]({head_page}).\n\n"
            texts[link(family, section)] = head + section_text(family, section, head_page)
        parts.extend(shared_tables(family))
    else:
        parts.extend(shared_tables(family))
        for section in family.sections:
            parts += [f"## {section.title}\n", section_text(family, section, "")]
    return {f"{family.name}.md": "\n".join(parts)} | texts


# What GitHub calls the languages whose names are not the endings of their files.
LANGUAGES = {"cs": "csharp", "pas": "pascal", "f90": "fortran", "py": "python", "bas": "vb"}


def language(text: str, origin: str, read: Callable[[str], str]) -> str:
    """A page about hosts in one language; a line {FILE} stands for that program."""

    def program(match: re.Match[str]) -> str:
        ending = match[1].rpartition(".")[2]
        return f"```{LANGUAGES.get(ending, ending)}\n{read(match[1])}```"

    head, _, rest = text.partition("\n")
    return f"{head}\n\n<!-- Generated from {origin}. Do not edit. -->\n" + re.sub(r"^\{(.+)\}$", program, rest, flags=re.MULTILINE)


def a_to_z(families: list[Family]) -> str:
    """Every export, with its index form beside it and the section that describes it."""
    rows = []
    for family in families:
        for section in family.sections:
            for routine in section.routines:
                where = f"[{family.title}: {section.title}]({link(family, section)})"
                plain = [f"`{name}`" for name in ([routine.name] if routine.has_plain else []) + routine.aliases]
                key = (plain or [f"`{routine.index_name}`"])[0].strip("`").lower()
                rows.append((key, row([", ".join(plain), f"`{routine.index_name}`" if routine.index_name else "", where])))
    head = "# All exports from A to Z\n\n<!-- Generated from the export tables. Do not edit. -->\n\n"
    return head + "| plain | index form | where |\n|---|---|---|\n" + "".join(f"{text}\n" for _, text in sorted(rows))


def contents(families: list[Family], head: str) -> str:
    """The manual's first page: `head`, then all pages with their routines."""
    parts = [head.rstrip() + "\n", "## Pages\n"]
    rows = ["| page | header | exports |", "|---|---|---|"]
    for family in families:
        exports = sum(len(routine.export_names) for routine in family.routines)
        rows.append(f"| [{family.title}]({family.name}.md) | `quorin/{family.name}.h` | {exports} |")
    parts.append("\n".join(rows) + "\n")
    for family in families:
        parts.append(f"## {family.title}\n")
        for section in family.sections:
            names = ", ".join(f"`{routine.export_names[0]}`" for routine in section.routines)
            parts.append(f"[{section.title}]({link(family, section)}): {names}\n")
    return "\n".join(parts)
