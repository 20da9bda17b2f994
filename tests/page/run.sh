#!/usr/bin/env bash
# run.sh EXPORTED.html: looks through the page's files, and drives the page of the demonstration world.
set -euo pipefail
here=$(dirname "$0")
python3 "$here/lint.py" "$here/../../src/cli/page"
python3 "$here/test_page.py" "$1"
