#!/usr/bin/env python3
"""Holds what a build made against the list of exports, both ways: nothing missing, nothing extra.

  tools/check_exports.py --build build/win32           the DLL, its .def file and both import libraries
  tools/check_exports.py --build build/linux-release   the shared object
  tools/check_exports.py --self-test                   proves on spoilt files that the checks can fail

On Windows it also checks that the DLL needs nothing that not every Windows has.
"""

from __future__ import annotations

import argparse
import struct
import subprocess
import sys
import tempfile
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "exports"))

from generator.product import PRODUCT  # noqa: E402

WINDOWS_LIBRARIES = {"advapi32.dll", "kernel32.dll", "msvcrt.dll", "ntdll.dll", "user32.dll"}


class CheckError(Exception):
    pass


# ---- Windows images (Microsoft, PE Format) ----


@dataclass(frozen=True)
class Image:
    exports: set[str]
    forwarded: set[str]
    imports: set[str]


class ImageReader:
    EXPORTS, IMPORTS = 0, 1

    def __init__(self, data: bytes):
        self.data = data
        if data[:2] != b"MZ":
            raise CheckError("no MZ header")
        header = self.word(0x3C)
        if data[header : header + 4] != b"PE\0\0":
            raise CheckError("no PE header")
        machine, sections, _, _, _, optional_size, flags = struct.unpack_from("<HHIIIHH", data, header + 4)
        if machine != 0x14C or not flags & 0x2000:
            raise CheckError("not a DLL for 32-bit x86")
        optional = header + 24
        self.directories = [struct.unpack_from("<II", data, optional + 96 + 8 * i) for i in range(2)]
        # virtual size, virtual address, raw size, raw address
        rows = range(optional + optional_size, optional + optional_size + 40 * sections, 40)
        self.sections = [struct.unpack_from("<IIII", data, row + 8) for row in rows]

    def word(self, offset: int) -> int:
        return struct.unpack_from("<I", self.data, offset)[0]

    def offset(self, address: int) -> int:
        for virtual_size, virtual, raw_size, raw in self.sections:
            if virtual <= address < virtual + max(virtual_size, raw_size):
                return address - virtual + raw
        raise CheckError(f"address {address:#x} lies in no section")

    def text(self, address: int) -> str:
        start = self.offset(address)
        return self.data[start : self.data.index(b"\0", start)].decode("ascii")

    def read(self) -> Image:
        exports, forwarded = self.read_exports()
        return Image(exports, forwarded, self.read_imports())

    def read_exports(self) -> tuple[set[str], set[str]]:
        start, size = self.directories[self.EXPORTS]
        directory = self.offset(start)
        function_count, name_count, functions, names, ordinals = struct.unpack_from("<5I", self.data, directory + 20)
        if function_count != name_count:
            raise CheckError(f"{function_count} functions for {name_count} names")
        found, forwarded = set(), set()
        for i in range(name_count):
            name = self.text(self.word(self.offset(names) + 4 * i))
            (ordinal,) = struct.unpack_from("<H", self.data, self.offset(ordinals) + 2 * i)
            address = self.word(self.offset(functions) + 4 * ordinal)
            found.add(name)
            if start <= address < start + size:
                forwarded.add(name)
        return found, forwarded

    def read_imports(self) -> set[str]:
        descriptor = self.offset(self.directories[self.IMPORTS][0])
        libraries = set()
        while name := self.word(descriptor + 12):
            libraries.add(self.text(name).lower())
            descriptor += 20
        return libraries


# ---- Other files ----


def import_library_names(data: bytes) -> set[str]:
    """The functions in an archive's symbol index, whose entries are __imp__ and the name."""
    if data[:8] != b"!<arch>\n" or data[8:24].strip() != b"/":
        raise CheckError("no archive with a symbol index")
    size = int(data[56:66])
    (count,) = struct.unpack_from(">I", data, 68)
    symbols = data[68 + 4 + 4 * count : 68 + size].split(b"\0")[:count]
    prefix = b"__imp__"
    return {symbol[len(prefix) :].decode("ascii") for symbol in symbols if symbol.startswith(prefix)}


def definition_names(text: str) -> set[str]:
    head, _, rows = text.partition("EXPORTS\n")
    if head != f'LIBRARY "{PRODUCT}.dll"\n':
        raise CheckError("the .def file does not name the library")
    return {row.split()[0] for row in rows.splitlines() if row.strip()}


def shared_object_names(path: Path) -> set[str]:
    command = ["nm", "--dynamic", "--defined-only", "--format=posix", str(path)]
    rows = subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()
    return {row.split()[0] for row in rows}


# ---- Checks: each returns what is wrong ----


def compare(what: str, found: set[str], expected: set[str]) -> list[str]:
    missing = [f"{what}: {name} is missing" for name in sorted(expected - found)]
    return missing + [f"{what}: {name} should not be there" for name in sorted(found - expected)]


def check_image(image: Image, expected: set[str]) -> list[str]:
    problems = compare("DLL", image.exports, expected)
    problems += [f"DLL: {name} is forwarded to another library" for name in sorted(image.forwarded)]
    problems += [f"DLL: needs {name}" for name in sorted(image.imports - WINDOWS_LIBRARIES)]
    if "kernel32.dll" not in image.imports:
        problems.append("DLL: needs no kernel32.dll, so the import table was not understood")
    return problems


def check_build(build: Path, expected: set[str]) -> list[str]:
    shared_object = build / "libquorin_lapacks.so"
    if shared_object.exists():
        return compare(shared_object.name, shared_object_names(shared_object), expected)
    problems = check_image(ImageReader((build / f"{PRODUCT}.dll").read_bytes()).read(), expected)
    problems += compare(".def", definition_names((build / f"{PRODUCT}.def").read_text()), expected)
    for path in (build / f"lib{PRODUCT}.dll.a", build / f"{PRODUCT}.lib"):
        problems += compare(path.name, import_library_names(path.read_bytes()), expected)
    return problems


def read_names(path: Path) -> set[str]:
    names = path.read_text().split()
    if not names or len(set(names)) != len(names):
        raise CheckError(f"{path}: empty, or a name stands there twice")
    return set(names)


# ---- Self-test ----


def made_image(exports: list[str], imports: list[str]) -> bytes:
    """The smallest DLL that has these tables: one section, mapped where it lies in the file."""
    data = bytearray(0x400)
    data[:2] = b"MZ"
    struct.pack_into("<I", data, 0x3C, 0x40)
    struct.pack_into("<4sHHIIIHH", data, 0x40, b"PE\0\0", 0x14C, 1, 0, 0, 0, 224, 0x2102)
    optional, section = 0x58, 0x58 + 224

    def append(piece: bytes) -> int:
        data.extend(piece)
        return len(data) - len(piece)

    names = [append(name.encode() + b"\0") for name in exports]
    name_table = append(b"".join(struct.pack("<I", address) for address in names))
    function_table = append(struct.pack("<I", 0x10) * len(exports))
    ordinal_table = append(b"".join(struct.pack("<H", i) for i in range(len(exports))))
    tables = (len(exports), len(exports), function_table, name_table, ordinal_table)
    directory = append(struct.pack("<IIHHII5I", 0, 0, 0, 0, 0, 1, *tables))
    libraries = [append(name.encode() + b"\0") for name in imports]
    descriptors = append(b"".join(struct.pack("<5I", 1, 0, 0, address, 1) for address in libraries) + bytes(20))
    struct.pack_into("<IIII", data, optional + 96, directory, 40, descriptors, 20 * len(libraries) + 20)
    struct.pack_into("<8sIIII", data, section, b".all", len(data), 0, len(data), 0)
    return bytes(data)


def made_import_library(names: list[str]) -> bytes:
    symbols = b"".join(f"_{name}\0__imp__{name}\0".encode() for name in names)
    index = struct.pack(">I", 2 * len(names)) + bytes(8 * len(names)) + symbols
    return b"!<arch>\n" + f"{'/':<16}{'0':<12}{'0':<6}{'0':<6}{'0':<8}{len(index):<10}`\n".encode() + index


def self_test() -> list[str]:
    names = ["saxpy", "saxpy_Idx", "sdot"]
    expected = set(names)
    imports = ["KERNEL32.dll", "msvcrt.dll"]

    def build_problems(dll: bytes, definition: list[str], mingw: list[str], msvc: list[str]) -> int:
        with tempfile.TemporaryDirectory() as folder:
            build = Path(folder)
            (build / f"{PRODUCT}.dll").write_bytes(dll)
            (build / f"{PRODUCT}.def").write_text(f'LIBRARY "{PRODUCT}.dll"\nEXPORTS\n' + "\n".join(definition) + "\n")
            (build / f"lib{PRODUCT}.dll.a").write_bytes(made_import_library(mingw))
            (build / f"{PRODUCT}.lib").write_bytes(made_import_library(msvc))
            return len(check_build(build, expected))

    good = made_image(names, imports)
    rows = [
        ("all is well", 0, build_problems(good, names, names, names)),
        ("an export is missing", 1, build_problems(made_image(names[1:], imports), names, names, names)),
        ("an export is extra", 1, build_problems(made_image(names + ["leak"], imports), names, names, names)),
        ("a foreign library", 1, build_problems(made_image(names, imports + ["libgcc.dll"]), names, names, names)),
        ("no imports at all", 1, build_problems(made_image(names, []), names, names, names)),
        ("a short .def", 1, build_problems(good, names[:2], names, names)),
        ("a short .dll.a", 1, build_problems(good, names, names[:1] + names[2:], names)),
        ("an extra name in .lib", 1, build_problems(good, names, names, names + ["more"])),
    ]
    problems = [f"self-test: {what}: {found} problems, not {due}" for what, due, found in rows if found != due]
    for what, data in (("no DLL", b"MZ" + bytes(200)), ("64 bits", good.replace(b"PE\0\0\x4c\x01", b"PE\0\0\x64\x86"))):
        try:
            ImageReader(data).read()
            problems.append(f"self-test: {what} was taken for a DLL")
        except CheckError:
            pass
    return problems


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    action = parser.add_mutually_exclusive_group(required=True)
    action.add_argument("--build", type=Path, metavar="DIR")
    action.add_argument("--self-test", action="store_true")
    parser.add_argument("--names", type=Path, default=ROOT / "exports/names.txt")
    options = parser.parse_args()
    try:
        if options.self_test:
            problems, passed = self_test(), "the checks fail where they must"
        else:
            expected = read_names(options.names)
            problems, passed = check_build(options.build, expected), f"{len(expected)} exports, as listed"
    except (CheckError, OSError, struct.error, subprocess.CalledProcessError) as error:
        problems = [str(error)]
    print("\n".join(problems) if problems else passed)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
