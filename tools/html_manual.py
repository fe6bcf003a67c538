#!/usr/bin/env python3
"""html_manual.py FROM TO: the pages of documentation below FROM, in HTML, below TO. Python-Markdown (Debian's python3-markdown) does it."""

from __future__ import annotations

import re
import sys
from pathlib import Path

import markdown

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>{title}</title>
<style>
body {{ font: 16px/1.5 sans-serif; max-width: 75rem; margin: 2rem auto; padding: 0 1rem; }}
pre, code {{ font-family: monospace; background: #f4f4f4; }}
pre {{ padding: .7rem; overflow-x: auto; }}
table {{ border-collapse: collapse; }}
td, th {{ border: 1px solid #ccc; padding: .2rem .5rem; text-align: left; vertical-align: top; }}
</style>
</head>
<body>
{body}
</body>
</html>
"""


def anchor(title: str, _separator: str) -> str:
    """The name that the pages' links use for a heading."""
    return re.sub(r"[^\w -]", "", title.lower()).replace(" ", "-")


def page(text: str) -> str:
    body = markdown.markdown(text, extensions=["tables", "fenced_code", "toc"], extension_configs={"toc": {"slugify": anchor}})
    title = re.search(r"^# (.*)$", text, re.MULTILINE)
    # Links to other pages; a folder's first page is its README.
    body = re.sub(r'(href="(?!\w+:)[^"#]*)README\.md', r"\1index.md", body)
    body = re.sub(r'(href="(?!\w+:)[^"#]*)\.md(?=["#])', r"\1.html", body)
    return PAGE.format(title=title[1] if title else "", body=body)


def main() -> int:
    source, target = Path(sys.argv[1]), Path(sys.argv[2])
    pages = sorted(source.rglob("*.md"))
    names = {path: target / path.relative_to(source).with_name("index.html" if path.name == "README.md" else f"{path.stem}.html") for path in pages}
    broken = 0
    texts = {name: page(path.read_text()) for path, name in names.items()}
    for name, text in texts.items():
        name.parent.mkdir(parents=True, exist_ok=True)
        name.write_text(text)
    for name, text in texts.items():
        for link, mark in re.findall(r'href="(?!\w+:)([^"#]*)(#[^"]*)?"', text):
            other = (name.parent / link).resolve() if link else name.resolve()
            there = other.read_text() if other.suffix == ".html" and other.exists() else ""
            if not other.exists() or (mark and f'id="{mark[1:]}"' not in there):
                broken += 1
                print(f"{name}: nothing is at {link}{mark}", file=sys.stderr)
    print(f"{len(texts)} pages, {broken} broken links")
    return 1 if broken or not texts else 0


if __name__ == "__main__":
    sys.exit(main())
