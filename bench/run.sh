#!/usr/bin/env bash
# Builds and runs the benchmarks; arguments go to them (bench/run.sh --benchmark_filter=Load).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source cmake/setup.sh

condtree_require build bench

cmake --preset bench >/dev/null
cmake --build --preset bench --target condtree-bench
exec build/bench/bench/condtree-bench --benchmark_counters_tabular=true "$@"
