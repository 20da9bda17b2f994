#!/usr/bin/env bash
# durability.sh WRITER: a settings file is whole at every moment of its being written: what is called
# in which order, a kill before each of these calls, and a full disk.
set -euo pipefail
writer=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
file=$folder/orvalis.ini

# The leak check of a sanitizer build can't look at a traced program.
export ASAN_OPTIONS=detect_leaks=0
strace -o /dev/null true 2>/dev/null || { echo "skipped: tracing is not allowed here"; exit 77; }

old=$'; note\r\n[general]\r\nlanguage=Alt\r\n'
new=$'; note\r\n[general]\r\nlanguage=Neu\r\n'
begin() {
  rm -f "$folder"/*
  printf '%s' "$old" >"$file"
}
content() {
  cat "$file"
  printf x
}
fail() {
  echo "FAILED: $1"
  exit 1
}

begin
strace -o "$folder/calls" -e trace=write,fsync,rename "$writer" "$file" Neu
calls=$(grep -oE '^(write|fsync|rename)' "$folder/calls" | tr '\n' ' ')
[ "$calls" = "write fsync rename fsync " ] || fail "the calls were: $calls"
[ "$(content)" = "${new}x" ] || fail "not written"

# A kill on entry means that the call is not made.
for call in write:1 fsync:1 rename:1 fsync:2; do
  begin
  strace -o /dev/null -e "trace=${call%:*}" -e inject="${call%:*}:signal=KILL:when=${call#*:}" \
    "$writer" "$file" Neu 2>/dev/null && fail "not killed before $call"
  expected=$old
  [ "$call" = fsync:2 ] && expected=$new
  [ "$(content)" = "${expected}x" ] || fail "killed before $call the file held: $(cat "$file")"
done

# A disk without room refuses the write instead of killing.
begin
(trap '' XFSZ && ulimit -f 0 && "$writer" "$file" Neu)
[ "$(content)" = "${old}x" ] || fail "a full disk lost the old file"
[ "$(ls "$folder")" = orvalis.ini ] || fail "a full disk left $(ls "$folder")"
echo "old or new, never neither"
