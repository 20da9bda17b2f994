#!/usr/bin/env bash
# fuzz.sh SECONDS [TARGET...]: runs each fuzz target that long under the address and the
# undefined-behaviour sanitizer, as many at once as there are processors, beginning with the inputs
# in tests/data/fuzz. A finding is left in build/fuzz/findings, new inputs in build/fuzz/corpus.
# SEED=NUMBER repeats a run: what is tried then follows from the source alone.
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
# Qt reports every broken picture.
export QT_LOGGING_RULES="*=false"
export SECONDS_EACH=$seconds

fuzz() {
  mkdir -p "build/fuzz/corpus/$1" build/fuzz/findings
  status=0
  "build/fuzz/tests/bin/orvalis_fuzz_$1" -seed="${SEED:-0}" -max_total_time="$SECONDS_EACH" -timeout=2 \
    -rss_limit_mb=2048 -print_final_stats=1 -verbosity=0 -artifact_prefix="build/fuzz/findings/$1-" \
    "build/fuzz/corpus/$1" "tests/data/fuzz/$1" >"build/fuzz/$1.log" 2>&1 || status=$?
  echo "== $1, $SECONDS_EACH s: exit $status"
  # Libraries tell of every broken picture; all of it is wanted only where something was found.
  if [ "$status" -eq 0 ]; then
    grep -a stat:: "build/fuzz/$1.log"
  else
    cat "build/fuzz/$1.log"
  fi
  return $status
}
export -f fuzz

printf '%s\n' $targets | xargs -P "$(nproc)" -I{} bash -c 'fuzz {}'
