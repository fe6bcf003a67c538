"""What an export table says, as data: families, sections, routines, arguments."""

from __future__ import annotations

import re
from dataclasses import dataclass, field


@dataclass(frozen=True)
class ElementType:
    """A type that rows may name."""

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
    "int_array": ElementType("int32_t*", "std::int32_t*", "array of int"),
    # The record of TAUCS, always by its address. Its C declaration stands in include/quorin/types.h.
    "ccs_matrix": ElementType("taucs_ccs_matrix*", "quorin::taucs::CcsMatrix*", "matrix"),
    "const_ccs_matrix": ElementType("const taucs_ccs_matrix*", "const quorin::taucs::CcsMatrix*", "matrix"),
    # Host functions. Their C declarations stand in include/quorin/types.h.
    "text_output_callback": ElementType(
        "quorin_text_output_callback", "quorin::base::TextOutputCallback", "text-output callback"
    ),
    "select_real": ElementType("quorin_select_real", "quorin::dense::SelectReal", "selection function"),
    "select_complex": ElementType("quorin_select_complex", "quorin::dense::SelectComplex", "selection function"),
    "select_real_pair": ElementType("quorin_select_real_pair", "quorin::dense::SelectRealPair", "selection function"),
    "select_complex_pair": ElementType(
        "quorin_select_complex_pair", "quorin::dense::SelectComplexPair", "selection function"
    ),
    "vector_function": ElementType("quorin_vector_function", "quorin::jacobi::Function", "function of a vector"),
    "vector_function_with_data": ElementType(
        "quorin_vector_function_with_data", "quorin::jacobi::FunctionWithData", "function of a vector, with data"
    ),
}

# An implementation that is no function of ours: the published LAPACK's Fortran routine of the same name.
FORTRAN = "fortran"

IN, OUT, INOUT = "in", "out", "inout"
DIRECTIONS = (IN, OUT, INOUT)

# How an argument is passed. SCALAR: its address. VALUE: itself. ARRAY: its address, with an index behind it in the index
# form. PLAIN: an array that stays an address there too. PAIRED: a scalar that gets an index all the same. IGNORED: an
# array whose index the index form takes and does not use.
SCALAR, VALUE, ARRAY, PLAIN, PAIRED, IGNORED = "scalar", "value", "array", "plain", "paired", "ignored"
KINDS = (VALUE, PLAIN, PAIRED, IGNORED)


@dataclass(frozen=True)
class Argument:
    name: str
    type: ElementType
    direction: str = IN
    kind: str = SCALAR
    shape: str = ""

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
        return re.sub(r",(?![^(]*\))", " x ", text)  # not the commas of max(m,n)


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
    sections: list[Section] = field(default_factory=list)

    @property
    def routines(self) -> list[Routine]:
        return [routine for section in self.sections for routine in section.routines]
