#!/usr/bin/env bash
# Takes the pictures of the documents anew: every window of the release build, on a virtual display.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install.sh run display test ci
cmake --preset release
cmake --build --preset release --target orvalis orvalis-world program_folder
dbus-run-session -- xvfb-run -a -s "-screen 0 1280x1000x24" \
  env PYTHONPATH=tests/endtoend python3 scripts/pictures.py build/release/bin docs/pictures
build/release/bin/orvalis-world export --world build/release/bin --lang English --format html -o build/page.html
python3 scripts/page_pictures.py build/page.html docs/pictures
