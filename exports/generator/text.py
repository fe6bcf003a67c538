"""Lines of text."""

from __future__ import annotations


NO_BREAK = "\N{NO-BREAK SPACE}"


def fill(text: str, prefix: str, width: int = 120, indent: str | None = None) -> str:
    """The words of a text in lines that begin with `prefix`, or from the second one on with `indent`."""
    lines, line = [], prefix
    for word in text.replace(" */", NO_BREAK + "*/").split(" "):
        if not word:
            continue
        if len(line) + 1 + len(word) > width and line.strip() and line not in (prefix, indent):
            lines.append(line.rstrip())
            line = prefix if indent is None else indent
        line += (" " if line not in (prefix, indent) else "") + word
    return "\n".join(lines + [line.rstrip()]).replace(NO_BREAK, " ") + "\n"
