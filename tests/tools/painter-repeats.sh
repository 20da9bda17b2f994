#!/bin/sh
# Paints a region and some pictures twice: the same world gives the same pixels, and different
# names give different people.
# usage: painter-repeats.sh PAINTER WORLD_DIR
set -eu
painter=$1
world=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

for run in first second; do
  mkdir "$scratch/$run"
  "$painter" --region ostrakh "$world" "$scratch/$run/ostrakh.png"
  for name in person-f-druid-edda person-m-druid-bram person-m-druid-sten creature-troll \
    place-ruin-edda object-key nothing-known; do
    "$painter" --picture "$name.jpg" "$scratch/$run/$name.png"
  done
done
diff -r "$scratch/first" "$scratch/second"

different=$(sha256sum "$scratch"/first/*.png | cut -d' ' -f1 | sort -u | wc -l)
if [ "$different" -ne 8 ]; then
  echo "8 names gave $different different pictures" >&2
  exit 1
fi
