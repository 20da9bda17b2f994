#!/usr/bin/env bash
# Builds Orvalis and starts it with the demonstration world; without a display, on a virtual one.
set -euo pipefail
cd "$(dirname "$0")"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  scripts/install.sh run
else
  scripts/install.sh run display
fi
cmake --preset release >build-configure.log 2>&1 || { cat build-configure.log; exit 1; }
rm -f build-configure.log
cmake --build --preset release --target orvalis program_folder

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec build/release/bin/orvalis
fi

echo "No display here: Orvalis starts on a virtual one."
xvfb-run -a -s "-screen 0 1280x960x24" scripts/show.sh build/release/bin build/orvalis.png
echo "Orvalis showed Arvenna's teachers, was ended, and left build/orvalis.png."
