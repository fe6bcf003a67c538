#!/usr/bin/env python3
"""Turns the export tables (exports/tables/*.table) into everything that must agree with them.

  exports/generate.py                  rewrites the committed files: headers, manual pages, the list of names
  exports/generate.py --check          fails if a committed file is not what the tables say, or the tables are not what was released
  exports/generate.py --build DIR      writes what a build needs: entry points, .def files, version script
  exports/generate.py --bindings DIR   writes declarations for other languages
"""

from __future__ import annotations

import argparse
import sys
from pathlib import Path

from generator import constants, headers, linking, loader, manual, released, tables, thunks
from generator.bindings import csharp, fortran, go, node, pascal, python, visual_basic
from generator.model import Family
from generator.product import PRODUCT

ROOT = Path(__file__).resolve().parent.parent


def table_of(family: Family) -> str:
    return f"exports/tables/{family.name}.table"


def example(family: Family) -> str:
    """The program that the family's page begins with."""
    paths = list((ROOT / "examples/c").glob(f"{family.name}_*.c"))
    if len(paths) != 1:
        sys.exit(f"examples/c has {len(paths)} programs {family.name}_*.c; the page of {family.name} begins with one")
    return paths[0].read_text()


def language_pages() -> dict[str, str]:
    """A page for each language, by file name. A line {PATH} stands for the program there."""
    texts = {}
    for path in sorted((ROOT / "bindings/pages").glob("*.md")):
        origin = path.relative_to(ROOT).as_posix()
        texts[f"language-{path.name}"] = manual.language(path.read_text(), origin, lambda name: (ROOT / name).read_text())
    return texts


def committed_files(families: list[Family]) -> dict[str, str]:
    head = (ROOT / "exports/tables/contents.md").read_text()
    files = {
        "exports/names.txt": linking.name_list(families),
        "include/quorin/quorin.h": headers.umbrella(families),
        "include/quorin/loader.h": loader.header(families),
        "docs/manual/README.md": manual.contents(families, head),
        "docs/manual/a-to-z.md": manual.a_to_z(families),
    }
    files.update((f"docs/manual/{name}", text) for name, text in language_pages().items())
    for family in families:
        files[f"include/quorin/{family.name}.h"] = headers.header(family, table_of(family))
        pages = manual.pages(family, table_of(family), example(family))
        files.update((f"docs/manual/{name}", text) for name, text in pages.items())
    return files


def build_files(families: list[Family]) -> dict[str, str]:
    files = {
        f"{PRODUCT}.def": linking.public_definition(families),
        "link.def": linking.link_definition(families),
        "exports.map": linking.version_script(families),
        "reference_everything.c": linking.reference_everything(families),
        "dense_fortran_names.cpp": thunks.fortran_names(families, "dense/dense.hpp"),
    }
    for family in families:
        if text := constants.cpp_header(family, table_of(family)):
            files[f"{family.name}_constants.hpp"] = text
        if text := constants.status_texts(family, table_of(family)):
            files[f"{family.name}_status_texts.hpp"] = text
        files[f"entries_{family.name}.cpp"] = thunks.source(family, table_of(family))
        files[f"fortran_{family.name}_plain.c"] = linking.fortran_names(family, through_index=False)
        files[f"fortran_{family.name}_index.c"] = linking.fortran_names(family, through_index=True)
    return files


def binding_files(families: list[Family]) -> dict[str, str]:
    files = {
        "fortran/quorin_lapacks.f90": fortran.source(families),
        "go/exports_windows_386.go": go.source(families),
        "python/quorin_lapacks/_exports.py": python.source(families),
    }
    for language, module in (("csharp", csharp), ("node", node), ("pascal", pascal), ("vb", visual_basic)):
        files.update((f"{language}/{name}", text) for name, text in module.files(families).items())
    return files


def write(directory: Path, files: dict[str, str]) -> None:
    for name, text in files.items():
        path = directory / name
        path.parent.mkdir(parents=True, exist_ok=True)
        if not path.exists() or path.read_text() != text:
            path.write_text(text)


def differing(files: dict[str, str]) -> list[str]:
    return [name for name, text in files.items() if not (ROOT / name).exists() or (ROOT / name).read_text() != text]


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--build", type=Path, metavar="DIR")
    parser.add_argument("--bindings", type=Path, metavar="DIR")
    options = parser.parse_args()
    try:
        families = tables.read(ROOT / "exports/tables", ROOT)
    except tables.TableError as error:
        print(error, file=sys.stderr)
        return 1
    if options.build:
        write(options.build, build_files(families))
    if options.bindings:
        write(options.bindings, binding_files(families))
    if options.build or options.bindings:
        return 0
    if options.check:
        stale = differing(committed_files(families))
        for name in stale:
            print(f"{name} is not what the tables say; run exports/generate.py", file=sys.stderr)
        broken = released.faults(released.read(ROOT), families)
        print("".join(f"{fault}\n" for fault in broken), end="", file=sys.stderr)
        print(f"{len(linking.export_names(families))} exports in {len(families)} tables, {len(stale)} stale files, ", end="")
        print(f"{len(broken)} differences from what was released")
        return 1 if stale or broken else 0
    write(ROOT, committed_files(families))
    return 0


if __name__ == "__main__":
    sys.exit(main())
