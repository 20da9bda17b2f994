"""bench_table.py LINES: the lines "what / peer = ratio (at most limit)" as a table; exits with 1 where a
ratio is over its limit."""

import re
import sys

LINE = re.compile(r"(?P<of>.+?) / (?P<by>.+?)(?: = (?P<ratio>\S+) \(at most (?P<limit>\S+)\)|: not measured)$")


def spoken(name):
    """ "FillHundredThousand" as words."""
    return re.sub(r"(?<=[a-z0-9])(?=[A-Z])|(?<=[a-z])(?=[0-9])", " ", name).lower()


def main():
    over = False
    print("| Measured | against | ratio | at most | |\n|---|---|---:|---:|---|")
    with open(sys.argv[1], encoding="utf-8") as lines:
        for line in map(str.strip, lines):
            match = LINE.match(line)
            if not match:
                continue
            names = f"| {spoken(match['of'])} | {spoken(match['by'])} "
            if match["ratio"] is None:
                print(names + "| not measured | | |")
                continue
            ratio, limit = float(match["ratio"]), float(match["limit"])
            held = ratio <= limit
            over = over or not held
            print(names + f"| {ratio:.3g} | {limit:g} | {'met' if held else 'OVER'} |")
    return 1 if over else 0


if __name__ == "__main__":
    sys.exit(main())
