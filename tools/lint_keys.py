#!/usr/bin/env python3
"""Prints what static analysis has to look at: each file of the project that a build compiles, behind a hash of all that
the result depends on, which is the file, the project's headers it includes and the configuration.

  tools/lint_keys.py BUILD_DIR      lines of "KEY PATH"

What a file includes is known from its last compilation; a file that was never compiled depends on every header.
"""

from __future__ import annotations

import hashlib
import json
import subprocess
import sys
from collections import defaultdict
from functools import cache
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent


def relative(path: Path) -> str | None:
    """The path from the root, or None for what does not belong to the project."""
    path = path.resolve()
    return str(path.relative_to(ROOT)) if path.is_relative_to(ROOT) else None


def includes(build: Path) -> dict[str, set[str]]:
    """The project's files that each source was last compiled from. Ninja lists a source before what it includes."""
    log = subprocess.run(["ninja", "-C", str(build), "-t", "deps"], capture_output=True, text=True, check=True).stdout
    files: dict[str, set[str]] = defaultdict(set)
    for block in log.split("\n\n"):
        paths = [relative(build / line.strip()) for line in block.splitlines()[1:]]
        if paths and paths[0] is not None:
            files[paths[0]].update(path for path in paths if path is not None)
    return files


def tracked(*patterns: str) -> list[str]:
    return subprocess.run(["git", "ls-files", *patterns], cwd=ROOT, capture_output=True, text=True, check=True).stdout.splitlines()


@cache
def digest(path: str) -> bytes:
    file = ROOT / path
    return hashlib.sha256(file.read_bytes() if file.exists() else b"").digest()


def main() -> None:
    build = Path(sys.argv[1]).resolve()
    compiled = {relative(Path(entry["file"])) for entry in json.loads((build / "compile_commands.json").read_text())}
    known, headers = includes(build), set(tracked("*.hpp", "*.h"))
    for source in sorted(compiled & set(tracked("*.cpp", "*.c"))):
        files = sorted({".clang-tidy", source} | known.get(source, headers))
        key = hashlib.sha256(b"".join(path.encode() + digest(path) for path in files))
        print(key.hexdigest()[:32], source)


if __name__ == "__main__":
    main()
