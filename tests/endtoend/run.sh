#!/usr/bin/env bash
# run.sh PROGRAM_FOLDER: drives the real program on a real X server with a window manager.
set -euo pipefail
here=$(dirname "$0")
for script in "$here"/test_*.py; do
  echo "-- $(basename "$script")"
  dbus-run-session -- xvfb-run -a -s "-screen 0 1920x1200x24" /usr/bin/python3 "$script" "$1"
done
echo "The program did on a real X server what it should."
