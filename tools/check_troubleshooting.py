#!/usr/bin/env python3
"""Compares docs/troubleshooting.md with the program: the page must list each error and warning that can be logged, and no
other. Prints a line for each difference, and then exits with 1."""
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
PARTS = ("lib", "platform", "ui-client")
PAGE = ROOT / "docs" / "troubleshooting.md"
STRING = r'"(?:[^"\\]|\\.)*"'
CALL = re.compile(rf"LOG_LINE\(\s*(ERROR|WARNING),\s*((?:{STRING}\s*)+)")
TAG = re.compile(rf"#define LOG_TAG ({STRING})")


def text_of(literals):
    """The text of adjacent string literals, without the end of the line."""
    return "".join(part[1:-1] for part in re.findall(STRING, literals)).removesuffix("\\n")


def logged():
    for path in (path for part in PARTS for path in (ROOT / part).rglob("*.cpp")):
        source = path.read_text(encoding="utf-8")
        tag = TAG.search(source)
        if tag:
            for level, literals in CALL.findall(source):
                yield f"[{level}] {text_of(tag.group(1))}(N): {text_of(literals)}"


def main():
    in_program = set(logged())
    on_page = set(re.findall(r"`(\[(?:ERROR|WARNING)\] .*?)`", PAGE.read_text(encoding="utf-8")))
    for line in sorted(in_program - on_page):
        print(f"{PAGE.name}: does not have {line}")
    for line in sorted(on_page - in_program):
        print(f"{PAGE.name}: has a line that is never logged: {line}")
    return 1 if in_program != on_page or not in_program else 0


if __name__ == "__main__":
    sys.exit(main())
