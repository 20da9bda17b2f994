#!/usr/bin/env bash
# Runs the program in a copy of each case's world and holds what it prints, its exit status and the
# files that it leaves against the case. run.sh PROGRAM [--record]: --record writes what is seen.
# A case is a folder: world/, arguments, expected, status, and after/ where files change.
set -u
program=$(readlink -f "$1")
cd "$(dirname "$0")" || exit 1
record=${2:-}
failed=0

for case in */; do
  case=${case%/}
  work=$(mktemp -d)
  [ -d "$case/world" ] && cp -r "$case/world/." "$work/"
  mapfile -t arguments <"$case/arguments"
  (cd "$work" && LC_ALL=C.UTF-8 "$program" "${arguments[@]}") >"$work.out" 2>&1
  echo $? >"$work.status"
  sed -i "s|$work|WORLD|g" "$work.out"
  if [ "$record" = --record ]; then
    cp "$work.out" "$case/expected"
    cp "$work.status" "$case/status"
    if [ -d "$case/after" ]; then rm -r "$case/after" && cp -r "$work" "$case/after"; fi
  fi
  diff -u "$case/expected" "$work.out" || failed=1
  diff -u "$case/status" "$work.status" || failed=1
  if [ -d "$case/after" ]; then diff -r "$case/after" "$work" || failed=1; fi
  [ "$failed" -eq 0 ] || echo "in case $case"
  rm -r "$work" "$work.out" "$work.status"
done
exit "$failed"
