#!/usr/bin/env bash
# fuzz.sh SECONDS [TARGET...]: runs each fuzz target that long under the address and the
# undefined-behaviour sanitizer, beginning with the inputs in tests/data/fuzz. A finding is left in
# build/fuzz/findings, new inputs in build/fuzz/corpus. SEED=NUMBER repeats a run: what is tried then
# follows from the source alone.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=$1
shift
targets=${*:-profile entities names picture}

scripts/install.sh run ci
cmake --preset fuzz
cmake --build --preset fuzz --target $(printf 'orvalis_fuzz_%s ' $targets)

# Inputs are written to a file first: in memory, where there is one.
[ -w /dev/shm ] && export TMPDIR=/dev/shm
for target in $targets; do
  echo "== $target, $seconds s"
  mkdir -p "build/fuzz/corpus/$target" build/fuzz/findings
  "build/fuzz/tests/bin/orvalis_fuzz_$target" -seed="${SEED:-0}" -max_total_time="$seconds" -timeout=2 -rss_limit_mb=2048 \
    -print_final_stats=1 -verbosity=0 -artifact_prefix="build/fuzz/findings/$target-" \
    "build/fuzz/corpus/$target" "tests/data/fuzz/$target"
done
