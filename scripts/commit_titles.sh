#!/usr/bin/env bash
# commit_titles.sh: prints the titles of commits that are longer than 72 characters or end with a
# full stop, of all that came after the one named here, merges left out; fails where there is one.
set -euo pipefail
cd "$(dirname "$0")/.."
since=${1:-5b0e030}

export LC_ALL=C.UTF-8
status=0
while read -r commit title; do
  if [ "${#title}" -gt 72 ] || [[ $title == *. ]]; then
    echo "$commit $title"
    status=1
  fi
done < <(git log --no-merges --format='%h %s' "$since..HEAD")
exit $status
