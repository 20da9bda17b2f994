#!/usr/bin/env python3
"""Prints functions of more than 40 lines, files of more than 400, and a share of comments in src/
outside of 5 to 8 lines in 100; fails where there is one."""

import pathlib
import re
import sys

LONGEST_FUNCTION = 40
LONGEST_FILE = 400
COMMENTS = (5, 8)

ROOT = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent)
# What opens a block that is no function: a type, a namespace, a table.
NO_FUNCTION = re.compile(r"\b(namespace|class|struct|enum|union)\b|=\s*$|to_array|^\s*extern")


def long_functions(lines):
    """The first line and the length of each function that is too long, of a formatted file."""
    head, start, indent = "", None, 0
    for number, line in enumerate(lines, 1):
        code = re.sub(r"//.*", "", line).rstrip()
        if start is None:
            if not head:
                indent = len(line) - len(line.lstrip())
            head = head + " " + code if code else ""
            if code.endswith("{") and "(" in head and not NO_FUNCTION.search(head[:-1]):
                start = number
            if code.endswith((";", "{", "}", ":")):
                head = ""
        elif code.startswith(" " * indent + "}") and code[indent:] in ("}", "};", "});"):
            if number - start - 1 > LONGEST_FUNCTION:
                yield start, number - start - 1
            start, head = None, ""


def main():
    findings = []
    for folder in ("src", "tools"):
        for file in sorted((ROOT / folder).rglob("*")):
            if file.suffix not in (".cpp", ".h"):
                continue
            lines = file.read_text(encoding="utf-8").splitlines()
            name = file.relative_to(ROOT)
            if len(lines) > LONGEST_FILE:
                findings.append(f"{name}: {len(lines)} lines")
            for start, length in long_functions(lines):
                findings.append(f"{name}:{start}: a function of {length} lines")
    share = comment_share(ROOT / "src")
    if not COMMENTS[0] <= share <= COMMENTS[1]:
        findings.append(f"src: {share:.1f} comment lines in 100")
    print("\n".join(findings), end="\n" if findings else "")
    return bool(findings)


def comment_share(folder):
    lines = [line.lstrip()
             for file in folder.rglob("*") if file.suffix in (".cpp", ".h")
             for line in file.read_text(encoding="utf-8").splitlines()]
    return 100 * sum(line.startswith("//") for line in lines) / len(lines)


if __name__ == "__main__":
    sys.exit(main())
