#!/usr/bin/env python3
"""Tries whether the core's tests catch single faults: plants one fault after the other in the core's
sources, builds the core's test programs in a copy, runs them, and prints what each came to.

mutants.py [--count N] [--seed N] [--only N,N...] [--jobs N]"""

import argparse
import pathlib
import random
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
COPY = ROOT / "build/mutants"
ROOMS = ("platform", "mapdata", "i18n", "search", "perks", "auxwin", "controls", "app")

# What is found in a line of code, and what stands there instead.
FAULTS = [
    (re.compile(r" < "), " <= "), (re.compile(r" > "), " >= "), (re.compile(r" <= "), " < "),
    (re.compile(r" >= "), " > "), (re.compile(r" == "), " != "), (re.compile(r" != "), " == "),
    (re.compile(r" && "), " || "), (re.compile(r" \|\| "), " && "), (re.compile(r" \+ 1\b"), ""),
    (re.compile(r" - 1\b"), ""), (re.compile(r"(?<=[( ])!(?=[\w(])"), ""),
    (re.compile(r"\btrue\b"), "false"), (re.compile(r"\bfalse\b"), "true"),
    (re.compile(r"(?<=[ (])0(?=[;,)])"), "1"), (re.compile(r" \+ (?=\w)"), " - "),
]
# Lines whose operators are no code, or no behaviour.
LEFT_OUT = re.compile(r'^\s*(//|#|static_assert)|u?"[^"]*(<|>|==)|template')


def candidates():
    for file in sorted((ROOT / "src").rglob("*.cpp")):
        place = file.relative_to(ROOT / "src")
        if place.parts[0] not in ROOMS or "windows" in place.parts:
            continue
        for number, line in enumerate(file.read_text(encoding="utf-8").splitlines()):
            if LEFT_OUT.search(line):
                continue
            for pattern, instead in FAULTS:
                for match in pattern.finditer(line):
                    yield place, number, line[:match.start()] + instead + line[match.end():]


def chosen(count, seed):
    """One fault a line at most, spread over the files by chance alone."""
    found = list(candidates())
    random.Random(seed).shuffle(found)
    faults, lines = [], set()
    for place, number, line in found:
        if (place, number) not in lines and len(faults) < count:
            lines.add((place, number))
            faults.append((place, number, line))
    return faults


def run(*command):
    return subprocess.run(command, cwd=COPY, capture_output=True, text=True, check=False)


def programs_of(place):
    """The test programs of the room, and of all rooms that may know it."""
    return [f"{room}_test" for room in ROOMS[ROOMS.index(place.parts[0]):]]


def targets():
    listed = run("cmake", "--build", "--preset", "core", "--target", "help").stdout
    return set(re.findall(r"^(\w+_test): phony", listed, re.M))


def prepare():
    shutil.rmtree(COPY / "src", ignore_errors=True)
    names = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, check=True,
                           capture_output=True).stdout.decode().split("\0")
    for name in filter(None, names):
        target = COPY / name
        target.parent.mkdir(parents=True, exist_ok=True)
        if (ROOT / name).is_file():
            shutil.copy2(ROOT / name, target)
    configured = run("cmake", "--preset", "core", "-DORVALIS_SANITIZE=")
    if configured.returncode:
        sys.exit(configured.stderr)


def outcome(place, number, line, jobs, known):
    file = COPY / "src" / place
    sound = file.read_text(encoding="utf-8")
    lines = sound.splitlines(keepends=True)
    lines[number] = line + "\n"
    programs = [name for name in programs_of(place) if name in known]
    try:
        file.write_text("".join(lines), encoding="utf-8")
        # Room by room, the nearest first: a fault that is caught needs no further program.
        for program in programs:
            built = run("cmake", "--build", "--preset", "core", "-j", jobs, "--target", program)
            if built.returncode:
                return "not built"
            tested = run("ctest", "--test-dir", "build/core", "-R", f"^{program}$",
                         "--no-tests=error", "--timeout", "60")
            if tested.returncode:
                return f"caught by {program}"
        return "SURVIVED"
    finally:
        file.write_text(sound, encoding="utf-8")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--count", type=int, default=40)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--only", help="the numbers of the faults to try, of all that are chosen")
    parser.add_argument("--jobs", default="2")
    options = parser.parse_args()
    faults = list(enumerate(chosen(options.count, options.seed), 1))
    if options.only:
        wanted = {int(number) for number in options.only.split(",")}
        faults = [fault for fault in faults if fault[0] in wanted]

    prepare()
    known = targets()
    caught = 0
    for index, (place, number, line) in faults:
        result = outcome(place, number, line, options.jobs, known)
        caught += result.startswith("caught")
        print(f"{index:3} {result:26} {place}:{number + 1}: {line.strip()}", flush=True)
    print(f"{caught} of {len(faults)} caught")


if __name__ == "__main__":
    main()
