#!/usr/bin/env bash
# first-start.sh ROOT USER PICTURES: on the display at hand, uses the installed package in the system
# below ROOT as USER: a category, a language that lasts, then the archive. Leaves pictures.
set -euo pipefail
root=$1
user=$2
pictures=$3
own="$root/home/$user/.local/share/orvalis"

openbox >/dev/null 2>&1 &
manager=$!
trap 'kill "$manager" 2>/dev/null || true' EXIT

as_user() {
  chroot --userspec="$user:$user" "$root" env -i HOME="/home/$user" PATH=/usr/bin:/bin \
    DISPLAY="$DISPLAY" LANG=de_DE.UTF-8 "$@"
}

keys() {
  for key in "$@"; do
    xdotool key --clearmodifiers "$key"
    sleep 0.5
  done
}

# Starts a command, waits for the main window, types, takes a picture, quits.
visit() {
  local picture=$1 command=$2
  shift 2
  as_user "$command" &
  local program=$!
  local window
  window=$(timeout 60 xdotool search --sync --onlyvisible --name '^Orvalis' | head -1)
  xdotool windowfocus --sync "$window"
  sleep 1
  keys "$@"
  sleep 1
  import -window root "$pictures/$picture"
  keys ctrl+w
  timeout 20 tail --pid="$program" -f /dev/null
  wait "$program"
}

expect() {
  local what=$1
  shift
  "$@" || {
    echo "FAILED: $what"
    exit 1
  }
  echo "ok: $what"
}

visit german.png /usr/bin/orvalis alt+a Home Right l
expect "the user has a program of their own" test -f "$own/orvalis" -a ! -L "$own/orvalis"
expect "the world is the package's" \
  test "$(readlink "$own/arvenna.data")" = /usr/share/orvalis/arvenna.data

visit chosen.png /usr/bin/orvalis ctrl+l Home Down Return
expect "the choice is written" grep -q '^language=English' "$own/orvalis.ini"
visit english.png /usr/bin/orvalis alt+a Home Right t
expect "the choice lasts" grep -q '^language=English' "$own/orvalis.ini"

maps="$root/home/$user/My maps"
mkdir -p "$maps"
tar -xzf "$root"/tmp/orvalis-*.tar.gz -C "$maps"
chroot "$root" chown -R "$user:$user" "/home/$user/My maps"
expect "the archive is one folder" test "$(ls "$maps" | wc -l)" = 1
visit archive.png "/home/$user/My maps/$(ls "$maps")/orvalis" alt+s Home Right l
