#!/usr/bin/env bash
# tidy.sh [PRESET]: clang-tidy on what this preset compiles of src/: dev, the default, all of it; core
# what needs no window. A finding fails.
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-dev}

scripts/install.sh run test ci
cmake --preset "$preset"
sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' "build/$preset/compile_commands.json" |
  grep "^$PWD/src/.*\.cpp" | sort -u |
  xargs -n1 -P"$(nproc)" clang-tidy -p "build/$preset" --quiet
