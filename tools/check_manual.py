#!/usr/bin/env python3
"""Compares qpk's manual page with the program: commands, options, keys of info --json, and messages. The argument is the
program. Prints a line for each difference, and then exits with 1."""
import json
import re
import subprocess
import sys
import tempfile
from pathlib import Path

QPK = Path(__file__).resolve().parent / "qpk"
STRING = r'"((?:[^"\\]|\\.)*)"'
MESSAGE = re.compile(rf"QPK_MESSAGE\(\w+,\s*(\d),\s*{STRING},\s*{STRING}\)")


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def section(name):
    """The paragraphs of a section of the page: the tag and the text of each."""
    page = (QPK / "qpk.1.in").read_text(encoding="utf-8").replace("\\", "")
    body = re.search(rf"^\.SH {name}\n(.*?)^\.SH ", page, re.M | re.S).group(1)
    return re.findall(r"^\.TP\n\.B (.*)\n((?:(?!\.TP).*\n)*)", body, re.M)


def options(program, commands):
    """Each option with the commands that have it, as the page writes them."""
    having = {}
    for command in commands:
        for option in re.findall(r"^  (-.*?)(?:  |$)", output(program, command, "--help"), re.M):
            having.setdefault(re.sub("[<>]", "", option), []).append(command)
    return {f"{' '.join(commands)}: {option}" for option, commands in having.items()}


def info(program):
    """The keys of a package's description, from the JSON object and from the text."""
    with tempfile.TemporaryDirectory() as directory:
        client, package = Path(directory, "client"), Path(directory, "package")
        executable = client / "Contents/MacOS/quillmere-ui"
        executable.parent.mkdir(parents=True)
        executable.touch(mode=0o755)
        output(program, "make", client, "--output", package, "--build", "7")
        return (json.loads(output(program, "info", "--json", package)).keys(),
                re.findall(r"^(\w+):", output(program, "info", package), re.M))


def differences(program):
    commands = re.findall(r"^  (\w+)", output(program, "--help"), re.M)
    json_keys, keys = info(program)
    for name, wanted in (("COMMANDS", commands), ("OPTIONS", options(program, commands)), ("KEYS", json_keys),
                         ("KEYS", keys), ("EXIT STATUS", "0123")):
        for difference in set(wanted) ^ {tag for tag, _ in section(name)}:
            yield f"{name}: {difference}"
    messages = [(f"{code}: {wrong}", remedy + "\n")
                for code, wrong, remedy in MESSAGE.findall((QPK / "messages.inc").read_text(encoding="utf-8"))]
    for difference in set(messages) ^ set(section("MESSAGES")):
        yield f"MESSAGES: {difference}"


def main():
    found = list(differences(sys.argv[1]))
    print(*found, sep="\n")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
