#!/usr/bin/env bash
# Builds with counters, runs every test, and prints how many lines of each room of src/ they reach.
# build/coverage/lines.csv tells it by file, build/coverage/lines.html line by line.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install.sh run display test ci coverage
cmake --preset coverage
cmake --build --preset coverage
# Those of earlier runs would count too.
find build/coverage -name '*.gcda' -delete
# One test counts system calls, which the counters make too; random use reaches more than it checks.
ctest --test-dir build/coverage --output-on-failure -j2 -E '^(durability|faults)$'
tests/endtoend/run.sh build/coverage/bin

gcovr -j "$(nproc)" --root . --filter src/ --object-directory build/coverage \
  --csv build/coverage/lines.csv --html-details build/coverage/lines.html build/coverage
awk -F, 'NR > 1 {
  split($1, part, "/")
  lines[part[2]] += $2; reached[part[2]] += $3; allLines += $2; allReached += $3
}
function say(room, of, all) { printf "%-10s %5d of %5d lines, %5.1f %%\n", room, of, all, 100 * of / all }
END {
  for (room in lines) say(room, reached[room], lines[room])
  say("src", allReached, allLines)
}' build/coverage/lines.csv
