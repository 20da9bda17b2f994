#!/usr/bin/env bash
# run.sh EXPORTED.html: drives the page of the demonstration world.
set -euo pipefail
here=$(dirname "$0")
python3 "$here/test_page.py" "$1"
