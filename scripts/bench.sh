#!/usr/bin/env bash
# bench.sh [TABLE]: builds the benchmarks, runs each, and prints every ratio with its limit as a
# table; with a file name also into that file. Fails where a ratio is over its limit.
set -euo pipefail
cd "$(dirname "$0")/.."
table=${1:-/dev/null}

scripts/install.sh run test bench
cmake --preset release
programs="start_bench map_bench sharp_bench profile_bench i18n_bench search_bench perks_bench check_bench export_bench"
# shellcheck disable=SC2086
cmake --build --preset release --target $programs

lines=build/release/bench.txt
: >"$lines"
for program in $programs; do
  echo "== $program" >&2
  # 1 is a ratio over its limit: the table says which. Anything else is no measurement.
  status=0
  "build/release/tests/bin/$program" >>"$lines" 2>/dev/null || status=$?
  [ "$status" -le 1 ] || { echo "$program ended with $status" >&2; exit 1; }
done
python3 scripts/bench_table.py "$lines" | tee "$table"
