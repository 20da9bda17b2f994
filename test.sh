#!/usr/bin/env bash
# Builds Orvalis with warnings as errors and runs every test.
set -euo pipefail
cd "$(dirname "$0")"

scripts/install.sh run display test
cmake --preset dev
cmake --build --preset dev
ctest --test-dir build/dev --output-on-failure -j2
