#!/bin/sh
# The windows' banners are laid out for pictures of exactly these pixels.
# usage: banner-sizes.sh FOLDER
set -eu

# Width and height stand as numbers of four bytes behind the first 16 of a PNG file.
size() {
  od -An -j16 -N8 -tu1 "$1" | awk '{ print $3 * 256 + $4 "x" $7 * 256 + $8 }'
}

failed=0
expect() {
  found=$(size "$1")
  if [ "$found" != "$2" ]; then
    echo "$1 is $found, not $2" >&2
    failed=1
  fi
}

expect "$1/banner-about.png" 400x151
expect "$1/banner-about@2x.png" 800x302
expect "$1/banner-print.png" 150x158
expect "$1/banner-print@2x.png" 300x316
exit $failed
