#!/usr/bin/env python3
"""Finds the turns of phrase of banned-wording.tsv in comments, documents and messages. Prints a line for each, and then
exits with 1. Does not check translations, and in C++ only comments: log texts must not change."""
import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
LIST = ROOT / "tools" / "banned-wording.tsv"
SKIPPED = re.compile(r"\.(ts|png|svg|tsv|json|clang-\w+)$|^fuzz/corpus/|^docs/translation-style\.md$|str-table-rows\.inc$")
CPP_COMMENT = re.compile(r"(?:^|\s)//(.*)")


def rules():
    for line in LIST.read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            pattern, preferred = line.split("\t")
            yield re.compile(pattern, re.IGNORECASE), preferred


def prose(path, line):
    """The part of a line that is English."""
    if path.suffix in (".cpp", ".h"):
        comment = CPP_COMMENT.search(line)
        return comment.group(1) if comment else ""
    return re.sub(r"`[^`]*`", "", line)


def main():
    found = False
    checks = list(rules())
    files = subprocess.run(["git", "ls-files"], cwd=ROOT, check=True, capture_output=True, text=True).stdout
    for name in files.splitlines():
        path = ROOT / name
        if SKIPPED.search(name) or path == Path(__file__).resolve() or not path.is_file():
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8", errors="replace").splitlines(), 1):
            for pattern, preferred in checks:
                match = pattern.search(prose(path, line))
                if match:
                    found = True
                    print(f'{name}:{number}: "{match.group()}": write "{preferred}"')
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
