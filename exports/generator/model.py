"""What an export table says, as data: families, sections, routines, arguments."""

from __future__ import annotations

import re
from dataclasses import dataclass, field, replace
from fnmatch import fnmatchcase
from itertools import groupby
from pathlib import PurePath


@dataclass(frozen=True)
class ElementType:
    """A type that rows may name. Tables add records and host functions of their own."""

    c: str  # in the public headers
    cpp: str  # in the library
    text: str  # in the manual


TYPES = {
    "char": ElementType("char", "char", "char"),
    "int": ElementType("int32_t", "std::int32_t", "int"),
    "float": ElementType("float", "float", "float"),
    "double": ElementType("double", "double", "double"),
    "complex": ElementType("quorin_complex", "std::complex<float>", "complex"),
    "dcomplex": ElementType("quorin_double_complex", "std::complex<double>", "double complex"),
    "logical": ElementType("int32_t", "std::int32_t", "logical"),  # zero is false
    "pointer": ElementType("void*", "void*", "pointer"),
    "const_pointer": ElementType("const void*", "const void*", "pointer"),
    "text": ElementType("char*", "char*", "text"),
    "int_array": ElementType("int32_t*", "std::int32_t*", "array of int"),
    "double_array": ElementType("double*", "double*", "array of double"),
    "dcomplex_array": ElementType("quorin_double_complex*", "std::complex<double>*", "array of double complex"),
}

# What stands between the dimensions of a shape: not the commas of max(m,n).
SIZES = re.compile(r",(?![^(]*\))")

# An implementation that is no function of ours: the published LAPACK's Fortran routine of the same name.
FORTRAN = "fortran"

# The place of a status that a routine returns.
RESULT = "result"

IN, OUT, INOUT = "in", "out", "inout"
DIRECTIONS = (IN, OUT, INOUT)

# How an argument is passed. SCALAR: its address. ADDRESS: the same, and the implementation gets the address, too. VALUE:
# itself. ARRAY: its address, with an index behind it in the index form. PLAIN: an array that stays an address there too.
# PAIRED: a scalar that gets an index all the same. IGNORED: an array whose index the index form takes and does not use.
SCALAR, ADDRESS, VALUE, ARRAY, PLAIN, PAIRED, IGNORED = "scalar", "address", "value", "array", "plain", "paired", "ignored"
KINDS = (ADDRESS, VALUE, PLAIN, PAIRED, IGNORED)


@dataclass(frozen=True)
class Argument:
    name: str
    type: ElementType
    direction: str = IN
    kind: str = SCALAR
    shape: str = ""
    is_kept: bool = False  # its address is used after the call has returned
    is_nullable: bool = False

    @property
    def has_index(self) -> bool:
        return self.kind in (ARRAY, PAIRED, IGNORED)

    @property
    def is_array(self) -> bool:
        return self.kind in (ARRAY, PLAIN, IGNORED)

    @property
    def is_dereferenced(self) -> bool:
        """Whether the implementation gets the value instead of the address."""
        return self.kind in (SCALAR, PAIRED) and self.direction == IN

    def size_text(self) -> str:
        """The shape in words: "n, stride incx", "lda x n"."""
        text = self.shape.replace("|", " or ")
        if ";" in text:
            return text.replace(";", ", stride ")
        return SIZES.sub(" x ", text)


@dataclass
class Value:
    """A value that an argument or a result may have, or a named constant."""

    value: str  # an integer; for a character its letter; for a status also an expression, such as -i
    name: str  # of the constant in the headers, or ""
    text: str = ""
    routines: list[str] = field(default_factory=list)  # patterns of the routines that it concerns; empty: all
    place: str = ""  # of a routine's own status: the argument that shows it, or RESULT
    where: str = ""

    def concerns(self, routine_name: str) -> bool:
        return not self.routines or any(fnmatchcase(routine_name, pattern) for pattern in self.routines)


@dataclass
class Note:
    """What an argument means."""

    text: str
    options: list[Value] = field(default_factory=list)
    where: str = ""


@dataclass
class Group:
    """Constants that belong together. A status group also tells which argument (or RESULT) shows them."""

    title: str
    tag: str = ""  # of the C++ enum class and the C enum; without one, plain constants
    place: str = ""
    values: list[Value] = field(default_factory=list)


@dataclass
class Entry:
    first: int
    last: int
    name: str
    text: str = ""
    default: str = ""
    routines: list[str] = field(default_factory=list)
    where: str = ""


@dataclass
class ParameterArray:
    name: str  # of the arguments
    base: int  # position of the first entry
    text: str = ""
    entries: list[Entry] = field(default_factory=list)


@dataclass
class Field:
    name: str  # with a dot: member of a union
    type: ElementType
    is_array: bool
    shape: str
    text: str = ""


@dataclass(frozen=True)
class Part:
    """What of an array is looked at or filled: all of it; of the side that `uplo` names the triangle or, with `rows` as the
    number of diagonals, the band; the upper Hessenberg part."""

    array: str
    rows: str
    columns: str
    form: str = ""  # empty, "uplo" or "hessenberg"

    @property
    def sizes(self) -> list[str]:
        return [size for size in (self.rows, self.columns) if size]


@dataclass
class FiniteCheck:
    """Input that must be finite, and what a call leaves that finds it is not."""

    examined: list[Part]
    limit: str = ""  # of the magnitudes
    status: str = ""  # an expression
    filled: list[Part] = field(default_factory=list)
    where: str = ""


@dataclass
class Record:
    c_name: str
    text: str = ""
    fields: list[Field] = field(default_factory=list)


@dataclass
class Callback:
    """The type of a host function."""

    c_name: str
    arguments: list[Argument]
    result: ElementType | None
    text: str = ""
    is_stdcall: bool = False
    is_variadic: bool = False
    result_is_argument: bool = False


@dataclass
class Routine:
    name: str
    implementation: str  # C++ function below namespace quorin, FORTRAN, or "" if it is written by hand
    arguments: list[Argument]
    result: ElementType | None
    where: str  # file:line, for messages
    summary: str = ""
    aliases: list[str] = field(default_factory=list)
    index_name: str | None = None  # None: there is no index form
    has_plain: bool = True
    is_variadic: bool = False
    like: str = ""  # the routine from which it takes what it does not say itself
    notes: dict[str, Note] = field(default_factory=dict)
    minima: dict[str, Value] = field(default_factory=dict)
    own_statuses: list[Value] = field(default_factory=list)
    finite: FiniteCheck | None = None
    sound: list[tuple[str, str, list[str]]] = field(default_factory=list)  # an array, what it must be, with which arguments
    never_none: tuple[str, str] | None = None  # a count that the published routine does not stand to be 0, and its array
    # A work array behind whose published end the published routine writes, and what it needs beyond its published length.
    spare: tuple[str, str] | None = None
    keeps_host_settings: bool = False  # it sees to the floating-point settings itself, where they matter

    def argument(self, name: str) -> Argument | None:
        return next((argument for argument in self.arguments if argument.name == name), None)

    @property
    def result_is_argument(self) -> bool:
        """Complex results are stored through an extra first argument."""
        return self.result in (TYPES["complex"], TYPES["dcomplex"])

    @property
    def is_fortran(self) -> bool:
        return self.implementation == FORTRAN

    @property
    def export_names(self) -> list[str]:
        names = ([self.name] if self.has_plain else []) + self.aliases
        return names + ([self.index_name] if self.index_name else [])


@dataclass
class Section:
    title: str
    routines: list[Routine] = field(default_factory=list)


@dataclass
class Family:
    name: str
    title: str
    facade: str = ""  # the header with the implementations
    text: list[str] = field(default_factory=list)  # paragraphs of the header's and the manual's introduction
    has_index_forms: bool = True
    calls_host: bool = False  # all its routines may call host functions; else those that get one do
    prefix: str = ""  # of the names of its constants
    sections: list[Section] = field(default_factory=list)
    notes: dict[str, Note] = field(default_factory=dict)
    quantities: dict[str, Value] = field(default_factory=dict)  # names in sizes that are no arguments
    constants: list[Group] = field(default_factory=list)
    statuses: list[Group] = field(default_factory=list)
    parameters: dict[str, ParameterArray] = field(default_factory=dict)
    records: list[Record] = field(default_factory=list)
    callbacks: list[Callback] = field(default_factory=list)

    @property
    def routines(self) -> list[Routine]:
        return [routine for section in self.sections for routine in section.routines]

    @property
    def namespace(self) -> str:
        """That of the implementation, which is the facade's name."""
        return PurePath(self.facade).stem

    def routine(self, name: str) -> Routine | None:
        return next((routine for routine in self.routines if routine.name == name), None)

    def sources(self, routine: Routine) -> list[Routine]:
        """The routine, and the one that it is like: where to look for what it means."""
        other = self.routine(routine.like) if routine.like else None
        return [routine, other] if other else [routine]

    def note(self, routine: Routine, name: str) -> Note | None:
        found = [source.notes[name] for source in self.sources(routine) if name in source.notes]
        return found[0] if found else self.notes.get(name)

    def minima(self, routine: Routine) -> dict[str, Value]:
        minima: dict[str, Value] = {}
        for source in reversed(self.sources(routine)):
            minima.update((name, value) for name, value in source.minima.items() if routine.argument(name))
        return minima

    def finite(self, routine: Routine) -> FiniteCheck | None:
        return next((source.finite for source in self.sources(routine) if source.finite), None)

    def keeps_host_settings(self, routine: Routine) -> bool:
        return any(source.keeps_host_settings for source in self.sources(routine))

    def sound(self, routine: Routine) -> list[tuple[str, str, list[str]]]:
        return next((source.sound for source in self.sources(routine) if source.sound), [])

    def status_groups(self, routine: Routine) -> list[Group]:
        """The groups whose place the routine has."""
        places = {argument.name for argument in routine.arguments if argument.direction != IN}
        if routine.result is TYPES["int"]:
            places.add(RESULT)
        return [group for group in self.statuses if group.place in places]

    def statuses_of(self, routine: Routine, group: Group) -> list[Value]:
        """What the routine may show at the group's place: the routine's own word counts most, a general one least."""
        chosen: dict[str, Value] = {}
        concerning = [value for value in group.values if value.concerns(routine.name)]
        ranked = sorted(concerning, key=lambda value: bool(value.routines))
        for source in reversed(self.sources(routine)):
            ranked += [value for value in source.own_statuses if value.place == group.place]
        for value in ranked:
            general = chosen.get(value.value)
            chosen[value.value] = replace(value, name=general.name) if general and not value.name else value
        return list(chosen.values())

    @staticmethod
    def entries_of(routine: Routine, array: ParameterArray) -> list[Entry]:
        return [e for e in array.entries if not e.routines or any(fnmatchcase(routine.name, p) for p in e.routines)]

    def option_groups(self) -> list[Group]:
        """The named options of arguments, as constants."""
        notes = list(self.notes.items()) + [item for routine in self.routines for item in routine.notes.items()]
        groups = [Group(f"Values of {name}: {note.text}", place=name, values=[v for v in note.options if v.name]) for name, note in notes]
        return [group for group in groups if group.values]

    def groups(self) -> list[Group]:
        """All groups of constants but the positions of parameter arrays."""
        return self.constants + self.statuses + self.option_groups()

    def named(self) -> list[Value | Entry]:
        """Everything that is a constant of the headers."""
        values = [value for group in self.groups() for value in group.values if value.name]
        return values + [entry for array in self.parameters.values() for entry in array.entries if entry.name != "-"]

    def content(self, routine: Routine):
        """All that is said of a routine but its name and types."""
        arguments = tuple((a.name, a.direction, a.kind, a.shape, a.is_nullable, a.is_kept) for a in routine.arguments)
        notes = [self.note(routine, argument.name) for argument in routine.arguments]
        meanings = tuple((note.text, tuple((o.value, o.text) for o in note.options)) if note else None for note in notes)
        minima = {name: minimum.value for name, minimum in self.minima(routine).items()}
        groups = [self.statuses_of(routine, group) for group in self.status_groups(routine)]
        statuses = tuple((value.value, value.text) for group in groups for value in group)
        finite = self.finite(routine)
        checks = (tuple(finite.examined), finite.status, tuple(finite.filled)) if finite else None
        return routine.summary, routine.implementation, arguments, meanings, minima, statuses, checks

    def twins(self, section: Section) -> list[list[Routine]]:
        """A section's routines; neighbours that differ only in type are together."""
        return [list(group) for _, group in groupby(section.routines, key=self.content)]
