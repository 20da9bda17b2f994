#!/usr/bin/env bash
# show.sh PROGRAM_FOLDER PICTURE: on the display at hand, starts the program there in German, opens
# Arvenna > Personen > Lehrer by keyboard, saves the screen as a picture and ends the program.
set -euo pipefail
folder=$1
picture=$2

openbox >/dev/null 2>&1 &
manager=$!
LANG=de_DE.UTF-8 LC_ALL=de_DE.UTF-8 "$folder/orvalis" 2>/dev/null &
program=$!
trap 'kill "$program" "$manager" 2>/dev/null || true' EXIT

window=$(timeout 20 xdotool search --sync --onlyvisible --name '^Orvalis' | head -1)
xdotool windowfocus --sync "$window"
keys() {
  for key in "$@"; do
    xdotool key --clearmodifiers "$key"
    sleep 0.3
  done
}
keys alt+a Home Right l
sleep 1
import -window root "$picture"
keys ctrl+w
timeout 10 tail --pid="$program" -f /dev/null
