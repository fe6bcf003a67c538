"""The name of the product. Its version stands in the root's CMakeLists.txt alone."""

from __future__ import annotations

import re
from pathlib import Path

CMAKE = Path(__file__).resolve().parent.parent.parent / "CMakeLists.txt"

VERSION = re.search(r"^project\(\w+ VERSION (\d+\.\d+)", CMAKE.read_text(), re.MULTILINE)[1]
PRODUCT = f"Quorin.Lapacks.{VERSION}"
LIBRARY = f"{PRODUCT}.dll"
