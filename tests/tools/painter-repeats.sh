#!/bin/sh
# Paints a region anew and some pictures twice: the same world gives the same pixels, different names
# give different people, and every mark shows in a face.
# usage: painter-repeats.sh PAINTER WORLD_DIR PAINTED_DIR
set -eu
painter=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

paint() {
  mkdir "$1"
  for name in person-f-druid-edda person-m-druid-bram person-m-druid-sten creature-troll \
    person-m-peasant-tarik person-m-peasant-tarik-young person-m-peasant-tarik-old \
    person-m-peasant-tarik-beard person-m-peasant-tarik-scar person-m-peasant-tarik-patch \
    person-m-peasant-tarik-oneear person-m-peasant-tarik-hat \
    place-ruin-edda place-wreck object-key object-crown nothing-known; do
    "$painter" --picture "$name.jpg" "$1/$name.png"
  done
}

paint "$scratch/first"
paint "$scratch/second"
diff -r "$scratch/first" "$scratch/second"
"$painter" --region ostrakh "$2" "$scratch/ostrakh.jpg"
cmp "$scratch/ostrakh.jpg" "$3/ostrakh.jpg"

different=$(sha256sum "$scratch"/first/*.png | cut -d' ' -f1 | sort -u | wc -l)
if [ "$different" -ne 17 ]; then
  echo "17 names gave $different different pictures" >&2
  exit 1
fi
