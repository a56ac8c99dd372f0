#!/usr/bin/env python3
"""Searches the tracked files for the wording in banned-wording.tsv. Prints a line for each hit and exits with 1 if
there are any. In C++ files it checks comments and string literals, but not log texts, which must not change, nor
the literals of tests, which compare them. In all other files it checks everything."""
import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
LIST = "tools/banned-wording.tsv"
SKIPPED = re.compile(r"fuzz/corpus/|docs/translation-style\.md|ui-client/launcher/(texts/|str-table-rows\.inc)")
CPP = re.compile(r"\.(cpp|h|inc)$")
WHOLE = re.compile(r"\.(md|py|sh|cmake|yml)$|\.(cmake|xml|desktop|\d)\.in$|"
                   r"(^|/)(COPYRIGHT|CMakeLists\.txt|CMakePresets\.json)$")
STRING = r'"(?:[^"\\\n]|\\.)*"'
# A digit separator does not match the character literal: that one has one character or an escape sequence.
TOKEN = re.compile(
    rf"(?P<log>LOG_LINE\(\s*\w+,\s*(?:{STRING}\s*)+)|(?P<comment>//[^\n]*|/\*.*?\*/)|"
    rf"(?P<string>R\"(?P<mark>\w*)\(.*?\)(?P=mark)\"|{STRING})|'(?:\\[^\n]+?|[^'\\\n])'", re.S)


def blank(text, mark="\0"):
    """The same lines with a mark for each character, so that wording on both sides is never joined."""
    return re.sub(r"\S", mark, text)


def prose(name, text):
    """The text of the same length, with only what is checked left in it."""
    if not CPP.search(name):
        text = re.sub(r"`[^`\n]*`", lambda code: blank(code[0]), text) if name.endswith(".md") else text
        return re.sub(r"(?m)^\s*#+", lambda comment: blank(comment[0], " "), text)
    parts, end = [], 0
    for token in TOKEN.finditer(text):
        parts.append(blank(text[end:token.start()]))
        end = token.end()
        if token["comment"]:
            parts.append(re.sub(r"(?m)^\s*(//|/?\*+)|\*/$", lambda edge: blank(edge[0], " "), token[0]))
        elif token["string"] and not name.startswith("tests/"):
            parts.append(token[0].replace('"', " "))
        else:
            parts.append(blank(token[0]))
    return "".join([*parts, blank(text[end:])])


def hits(text, banned):
    """Pairs of a line number and a message."""
    words = re.compile(r"\S+|\n\s*\n")
    joined, starts = "", []
    for word in words.finditer(text):
        # An empty line ends a paragraph.
        shown = word[0] if word[0].strip() else "\0"
        starts += [word.start()] * (len(shown) + 1)
        joined += shown + " "
    for pattern, preferred in banned:
        for hit in pattern.finditer(joined):
            yield text.count("\n", 0, starts[hit.start()]) + 1, f'"{hit[0].strip()}": write "{preferred}"'


def main():
    lines = (ROOT / LIST).read_text(encoding="utf-8").splitlines()
    rows = [line.split("\t") for line in lines if line and not line.startswith("#")]
    banned = [(re.compile(pattern, re.I), preferred) for pattern, preferred in rows]
    listed = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, stdout=subprocess.PIPE, check=True).stdout
    found = []
    for name in listed.decode().split("\0")[:-1]:
        data = b"" if SKIPPED.match(name) else (ROOT / name).read_bytes()
        if CPP.search(name) or WHOLE.search(name) or data.startswith(b"#!"):
            found += [(name, *hit) for hit in hits(prose(name, data.decode()), banned)]
    for name, line, message in sorted(found):
        print(f"{name}:{line}: {message}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
