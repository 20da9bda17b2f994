#!/bin/sh
# Tries the packages' launcher with a stand-in for the program that says from where it runs.
# launcher.sh LAUNCHER
set -eu

room=$(mktemp -d)
trap 'chmod -R u+w "$room"; rm -rf "$room"' EXIT
prefix="$room/a prefix"
home="$room/a home"
own="$home/.local/share/orvalis"
passed=0

mkdir -p "$prefix/bin" "$prefix/lib/orvalis" "$prefix/share/orvalis/LANG/Français" "$home"
cp "$1" "$prefix/bin/orvalis"
echo map >"$prefix/share/orvalis/arvenna.data"
echo old >"$prefix/share/orvalis/old map.data"
echo language= >"$prefix/share/orvalis/orvalis.ini"
echo text >"$prefix/share/orvalis/LANG/Français/Français.lng"

# The stand-in: as the program, it takes the folder of its own file for the world's.
# shellcheck disable=SC2016
release() {
  printf '#!/bin/sh\necho "%s in $(dirname "$(readlink -f "$0")") $*"\n' "$1" \
    >"$prefix/lib/orvalis/orvalis"
  chmod 755 "$prefix/lib/orvalis/orvalis"
}

start() {
  env -i PATH="$PATH" HOME="$home" "$@" "$prefix/bin/orvalis"
}

expect() {
  if [ "$2" != "$3" ]; then
    echo "FAILED: $1: expected '$3', got '$2'"
    exit 1
  fi
  passed=$((passed + 1))
}

release first
expect "first start" "$(start)" "first in $own "
expect "the program is a copy" "$(test -L "$own/orvalis" && echo link || echo copy)" copy
expect "the world is linked" "$(readlink "$own/arvenna.data")" "$prefix/share/orvalis/arvenna.data"
expect "a folder of the world" "$(cat "$own/LANG/Français/Français.lng")" text
expect "settings are a copy" "$(test -L "$own/orvalis.ini" && echo link || echo copy)" copy

echo language=English >"$own/orvalis.ini"
mkdir "$own/LANG/Frostish"
rm "$own/arvenna.data"
echo mine >"$own/arvenna.data"
start >/dev/null
expect "the language lasts" "$(cat "$own/orvalis.ini")" language=English
expect "a language of one's own stays" "$(test -d "$own/LANG/Frostish" && echo there)" there
expect "a map of one's own stays" "$(cat "$own/arvenna.data")" mine

release second
mv "$prefix/share/orvalis/old map.data" "$prefix/share/orvalis/new map.data"
expect "an upgrade renews the program" "$(start)" "second in $own "
expect "what is gone from the package" "$(test -L "$own/old map.data" || echo gone)" gone
expect "what is new in the package" "$(cat "$own/new map.data")" old

mv "$prefix" "$room/moved"
prefix=$room/moved
expect "a moved prefix" "$(start)" "second in $own "
expect "links follow it" "$(readlink "$own/new map.data")" "$prefix/share/orvalis/new map.data"

ln -s "$prefix/bin/orvalis" "$room/command"
expect "started through a link" "$(HOME=$home sh "$room/command")" "second in $own "
expect "another data folder" "$(start XDG_DATA_HOME="$room/data here")" \
  "second in $room/data here/orvalis "
expect "a data folder that is no path counts as none" "$(start XDG_DATA_HOME=here)" "second in $own "

rm -rf "$home/.local"
for number in 1 2 3 4 5 6 7 8; do
  start >"$room/start-$number" &
done
wait
expect "eight first starts at once" "$(sort -u "$room"/start-*)" "second in $own "
expect "they leave nothing behind" "$(find "$own" -name '.new*')" ""

# Root may write everywhere, so the read-only home is somebody else's then.
locked="$room/locked"
mkdir "$locked"
chmod 555 "$locked"
chmod 755 "$room"
somebody=""
[ "$(id -u)" -ne 0 ] || somebody="setpriv --reuid=65534 --clear-groups"
# shellcheck disable=SC2086
expect "a read-only home is told" \
  "$($somebody env -i PATH="$PATH" HOME="$locked" LANG=de_DE.UTF-8 "$prefix/bin/orvalis" 2>&1 ||
    echo "$?")" \
  "Orvalis kann seinen Ordner nicht anlegen: $locked/.local/share/orvalis
1"

echo "$passed passed, 0 failed"
