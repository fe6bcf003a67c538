"""Quorin Lapacks for Python: every export as a function, by ctypes.

    import quorin_lapacks
    lapacks = quorin_lapacks.load("Quorin.Lapacks.6.2.dll")
    x = lapacks.array("f", [1, 2, 3])
    lapacks.sscal(3, 2.0, x, 1)

The DLL wants a 32-bit Python for Windows; the library of the Linux build any Python of its kind.

Values that are only read are numbers (a character is a text of length 1). Values that are written are ctypes objects of the right type,
arrays of one element, or anything of the buffer protocol. Arrays are ctypes arrays, array.array or NumPy arrays: of the right element
type, contiguous in C's or Fortran's order, and writable where the routine writes; everything else raises TypeError before the call.
Text that is only read may be bytes or str. None is the null address where a routine takes one, and an int an address. An array that a
routine keeps is held by `kept` of the library until forget() is called with it.

Callbacks are made by `callback(name, function)`; keep the object as long as the library may call it.
"""

from __future__ import annotations

import ctypes
import struct
from typing import Any

from quorin_lapacks import _exports

__all__ = ["Library", "load", "DoubleComplex", "FloatComplex"]


class FloatComplex(ctypes.Structure):
    """Two floats, the real part first."""

    _fields_ = [("re", ctypes.c_float), ("im", ctypes.c_float)]

    def __complex__(self) -> complex:
        return complex(self.re, self.im)


class DoubleComplex(ctypes.Structure):
    """Two doubles, the real part first."""

    _fields_ = [("re", ctypes.c_double), ("im", ctypes.c_double)]

    def __complex__(self) -> complex:
        return complex(self.re, self.im)


_TYPES: dict[str, Any] = {
    "i": ctypes.c_int32,
    "f": ctypes.c_float,
    "d": ctypes.c_double,
    "c": FloatComplex,
    "z": DoubleComplex,
    "b": ctypes.c_char,
    "p": ctypes.c_void_p,
}

# Formats of the buffer protocol for each element type; array.array has no complex numbers and stores their parts.
_FORMATS = {"i": {"i", "l"}, "f": {"f"}, "d": {"d"}, "c": {"Zf", "f"}, "z": {"Zd", "d"}, "b": {"c", "b", "B"}}


class _Parameter:
    """Turns what a caller passes into what ctypes passes on."""

    def __init__(self, text: str, library: "Library"):
        self.name, _, rest = text.partition(":")
        self.is_kept = rest.endswith("~")
        rest = rest.rstrip("~")
        self.is_nullable = rest.endswith("?")
        rest = rest.rstrip("?")
        self.is_written = rest.endswith("!")
        rest = rest.rstrip("!")
        self.is_value = rest[-1] not in "&*"
        self.is_array = rest.endswith("*")
        code = rest.rstrip("&*")
        self.code = code
        self.type = library.callback_types[code[1:-1]] if code.startswith("[") else _TYPES[code]

    def fail(self, why: str) -> TypeError:
        return TypeError(f"{self.name}: {why}")

    def scalar(self, value: Any) -> Any:
        if isinstance(value, self.type):
            return value
        if self.code == "b":
            data = value.encode("latin-1") if isinstance(value, str) else value
            return ctypes.c_char(data)
        if self.code in "cz":
            number = complex(value)
            return self.type(number.real, number.imag)
        if self.code == "i":
            number = value.__index__()
            if not -(2**31) <= number < 2**31:
                raise self.fail("not an int of 32 bits")
            return self.type(number)
        if self.code in "fd":
            return self.type(float(value))
        return self.type(value)

    def address(self, value: Any) -> Any:
        """Of what is not a plain number: something that a c_void_p parameter takes and that keeps it alive."""
        if value is None:
            if self.is_nullable or self.is_array:
                return None
            raise self.fail("must not be None")
        if self.code == "p" and isinstance(value, (ctypes.Array, ctypes.c_void_p)):
            return ctypes.byref(value)
        if isinstance(value, (self.type, ctypes.Structure)):
            return ctypes.byref(value)
        if isinstance(value, int) and self.is_array:
            return ctypes.c_void_p(value)
        if self.code == "b" and isinstance(value, (bytes, str)) and not self.is_written:
            return ctypes.c_char_p(value.encode() if isinstance(value, str) else value)
        return self.buffer(value)

    def buffer(self, value: Any) -> Any:
        try:
            view = memoryview(value)
        except TypeError:
            raise self.fail(f"{type(value).__name__} is no array") from None
        form = view.format.lstrip("<=@T{").split(":")[0]
        is_of_type = form in _FORMATS.get(self.code, ()) or (isinstance(value, ctypes.Array) and value._type_ is self.type)
        if not is_of_type or (form in ("i", "l") and view.itemsize != 4):
            raise self.fail(f"elements of format {view.format!r} are not of the routine's type")
        if not view.contiguous:
            raise self.fail("the array is not contiguous")
        if view.readonly and self.is_written:
            raise self.fail("the array is read-only")
        if isinstance(value, ctypes.Array):
            return value
        if hasattr(value, "ctypes"):  # NumPy
            return value.ctypes.data_as(ctypes.c_void_p)
        if view.readonly:
            return ctypes.c_char_p(bytes(view))
        return (ctypes.c_char * view.nbytes).from_buffer(value) if view.nbytes else None

    def convert(self, value: Any) -> Any:
        if self.is_value:
            return value if self.code == "p" or self.code.startswith("[") else self.scalar(value)
        is_number = isinstance(value, (int, float, complex, str, bytes)) or hasattr(value, "__index__")
        if not self.is_array and not self.is_written and is_number:
            return ctypes.byref(self.scalar(value))
        return self.address(value)


class _Routine:
    def __init__(self, library: "Library", row: tuple[str, str, str, str]):
        name, answer, parameters, self.__doc__ = row
        self.__name__ = name
        self.parameters = [_Parameter(text, library) for text in parameters.split()]
        self._library = library
        self._function = getattr(library.cdll, name)
        self._function.restype = _TYPES[answer] if answer else None
        self._function.argtypes = [p.type if p.is_value else ctypes.c_void_p for p in self.parameters]

    def __call__(self, *values: Any) -> Any:
        if len(values) != len(self.parameters):
            names = ", ".join(parameter.name for parameter in self.parameters)
            raise TypeError(f"{self.__name__}({names}) takes {len(self.parameters)} arguments, not {len(values)}")
        converted = [parameter.convert(value) for parameter, value in zip(self.parameters, values)]
        for parameter, value in zip(self.parameters, values):
            if parameter.is_kept and value is not None:
                self._library.kept.append(value)
        return self._function(*converted)

    def __repr__(self) -> str:
        return f"{self.__name__}({', '.join(parameter.name for parameter in self.parameters)})"


class Library:
    """The loaded library. Exports, constants and record types are its attributes."""

    def __init__(self, path: str):
        if struct.calcsize("P") != 4 and path.lower().endswith(".dll"):
            raise OSError(f"{path} is a library of 32 bits, and this Python is one of {8 * struct.calcsize('P')}")
        self.cdll = ctypes.CDLL(path)
        self.kept: list[Any] = []
        self.callback_types = {name: self._callback_type(*row) for name, row in _exports.CALLBACKS.items()}
        for name, value in _exports.CONSTANTS.items():
            setattr(self, name, value)
        for name, fields in _exports.RECORDS.items():
            pairs = [field.split(":") for field in fields.split()]
            setattr(self, name, type(name, (ctypes.Structure,), {"_fields_": [(n, _TYPES[code]) for n, code in pairs]}))
        for row in _exports.ROUTINES:
            setattr(self, row[0], _Routine(self, row))

    @staticmethod
    def _callback_type(convention: str, answer: str, parameters: str) -> Any:
        make = getattr(ctypes, "WINFUNCTYPE", ctypes.CFUNCTYPE) if convention == "stdcall" else ctypes.CFUNCTYPE
        types = [ctypes.POINTER(_TYPES[code[0]]) if code.endswith("*") else _TYPES[code] for code in parameters.split()]
        return make(_TYPES[answer] if answer else None, *types)

    def callback(self, name: str, function: Any) -> Any:
        """A host function of the type `name`, for example quorin_vector_function. It must not raise."""
        return self.callback_types[name](function)

    def forget(self, array: Any) -> None:
        """Ends holding an array that a routine has kept: call it when the routine's object is deleted."""
        self.kept[:] = [other for other in self.kept if other is not array]

    @staticmethod
    def array(code: str, values: Any) -> Any:
        """A ctypes array of `values`, or of that many zeros: i int32, f float, d double, c float complex, z double complex."""
        if isinstance(values, int):
            return (_TYPES[code] * values)()
        items = list(values)
        if code in "cz":
            items = [_TYPES[code](complex(item).real, complex(item).imag) for item in items]
        return (_TYPES[code] * len(items))(*items)


def load(path: str = _exports.LIBRARY) -> Library:
    """Loads the library and binds every export. OSError if it cannot be loaded, AttributeError if an export is missing."""
    return Library(path)
