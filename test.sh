#!/usr/bin/env bash
# Builds everything and runs every test; arguments go to ctest (./test.sh -R values).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source cmake/setup.sh

condtree_require build test

cmake --preset dev
cmake --build --preset dev
status=0
ctest --preset dev "$@" || status=$?
condtree_tell_skipped build/dev
exit "$status"
