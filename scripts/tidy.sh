#!/usr/bin/env bash
# tidy.sh [--deep]: clang-tidy on all of src/ and tools/, a room at a time as they are compiled. A finding
# fails. --deep also follows the paths through every function, which takes four times as long: left to
# itself, the analyzer leaves out what a unit includes.
set -euo pipefail
cd "$(dirname "$0")/.."

deep=""
[ "${1:-}" != "--deep" ] || deep="--extra-arg=-Xclang --extra-arg=-analyzer-opt-analyze-headers"

scripts/install.sh run test ci
cmake --preset dev >/dev/null
cmake -G Ninja -S tools/pictures -B build/tools >/dev/null

# "FOLDER SOURCE" for what is compiled into the libraries and programs, not for what the build makes.
sources() {
  python3 - "$@" <<'END'
import json
import re
import sys

for folder in sys.argv[1:]:
    with open(f"{folder}/compile_commands.json", encoding="utf-8") as commands:
        for command in json.load(commands):
            made = "/.rcc/" in command["file"]
            tested = re.search(r" -o (tests|fuzz|bench)/", command["command"])
            if not made and not tested:
                print(folder, command["file"])
END
}
# shellcheck disable=SC2086
sources build/dev build/tools |
  xargs -L1 -P"$(nproc)" clang-tidy --quiet $deep --checks=-bugprone-suspicious-include -p 2>&1 | grep -vE '^[0-9]+ warnings? generated' && exit 1
[ "${PIPESTATUS[1]}" -eq 0 ]
