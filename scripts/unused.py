#!/usr/bin/env python3
"""Prints what nothing uses, and fails where there is such a thing: headers that no file includes,
scripts that no file names, test data that no test names, functions and constants declared in a
header of src/ that no other line of src/ or tools/ names, rows of the windows' texts and settings
that no code reads. Names in unused_allowed.txt are left out: the rules give them.

unused.py [ROOT]"""

import collections
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent)
WORD = re.compile(r"[A-Za-z_]\w*")
REMARK = re.compile(r"(?<!:)//[^\n]*|/\*.*?\*/", re.S)
PROGRAM = ("src", "tools")


def sources(*folders):
    return [file for folder in folders for file in sorted((ROOT / folder).rglob("*"))
            if file.suffix in (".cpp", ".h")]


def text(file):
    return file.read_text(encoding="utf-8", errors="replace")


def allowed():
    lines = text(pathlib.Path(__file__).parent / "unused_allowed.txt").splitlines()
    return {line.split()[0] for line in lines if line.strip() and not line.startswith("#")}


def headers():
    included = collections.defaultdict(set)
    for file in sources("src", "tools", "tests", "bench", "fuzz"):
        for name in re.findall(r'#include "([^"]+)"', text(file)):
            included[pathlib.PurePath(name).name].add(file.stem)
    for header in sources(*PROGRAM):
        if header.suffix == ".h" and not included[header.name] - {header.stem}:
            yield f"{header.relative_to(ROOT)}: no other file includes it"


def named_files():
    tracked = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, check=True, capture_output=True)
    files = [ROOT / name for name in tracked.stdout.decode().split("\0") if name]
    texts = {file: text(file) for file in files
             if file.is_file() and file.suffix not in (".data", ".png", ".jpg", ".bmp")}
    for file in files:
        place = file.relative_to(ROOT)
        # Test data is taken by the folder below its room, or by the name.
        names = {file.name, file.stem} | ({part for part in place.parts[2:]} if
                                          place.parts[:2] == ("tests", "data") else set())
        if place.parts[0] == "scripts" or place.parts[:2] == ("tests", "data"):
            if not any(name in content for name in names
                       for other, content in texts.items() if other != file):
                yield f"{place}: no other file names it"


def definitions():
    tags = subprocess.run(
        ["ctags", "-x", "--c++-kinds=fpv", "--language-force=C++", "-L", "-"], check=True,
        input="\n".join(map(str, sources(*PROGRAM))), capture_output=True, text=True).stdout
    declared, places = collections.Counter(), {}
    for line in tags.splitlines():
        name, _, number, file = line.split()[:4]
        declared[name] += 1
        if file.endswith(".h"):
            places[name] = f"{pathlib.Path(file).relative_to(ROOT)}:{number}"
    named = collections.Counter()
    for file in sources(*PROGRAM):
        named.update(WORD.findall(REMARK.sub("", text(file))))
    for name, place in places.items():
        if WORD.fullmatch(name) and not name.startswith("__anon") and named[name] <= declared[name] and name not in SKIPPED:
            yield f"{place}: nothing uses {name}"


def rows():
    code = {file: REMARK.sub("", text(file)) for file in sources("src")}
    read = set(re.findall(r'Row\(\s*u"(\w+)",\s*u"(\w+)"\)', "\n".join(code.values())))
    for row in re.findall(r'\{u"(\w+)", u"(\w+)",', code[ROOT / "src/i18n/WindowTexts.h"]):
        if row not in read and "/".join(row) not in SKIPPED:
            yield f"src/i18n/WindowTexts.h: no code reads {'/'.join(row)}"
    settings = code.pop(ROOT / "src/mapdata/world/Settings.h")
    for name in re.findall(r"Entry (\w+) = \{", settings):
        if not any(re.search(rf"Settings::{name}\b", content) for content in code.values()):
            yield f"src/mapdata/world/Settings.h: no code reads {name}"


if __name__ == "__main__":
    SKIPPED = allowed()
    found = [line for check in (headers, named_files, definitions, rows) for line in check()]
    print("\n".join(found), end="\n" if found else "")
    sys.exit(bool(found))
