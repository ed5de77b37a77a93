#!/usr/bin/env bash
# fuzz/run.sh [SECONDS [NAME...]]: builds the fuzz targets and runs each for a while (60 seconds) from its kept
# corpus, which is copied, so that the checkout stays as it is. The first crash ends the run and is shown.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source cmake/setup.sh

condtree_require build fuzz

seconds="${1:-60}"
names=("${@:2}")
((${#names[@]} > 0)) || mapfile -t names < <(ls fuzz/corpus)

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz

export LC_ALL=C.UTF-8 UBSAN_OPTIONS=print_stacktrace=1
for name in "${names[@]}"; do
    program="$PWD/build/fuzz/fuzz/fuzz-$name"
    scratch="$PWD/build/fuzz/runs/$name"
    rm -rf "$scratch"
    mkdir -p "$scratch"
    cp -r "fuzz/corpus/$name" "$scratch/corpus"
    if ! "$program" -max_total_time="$seconds" -timeout=10 -print_final_stats=1 -artifact_prefix="$scratch/" \
        "$scratch/corpus" >"$scratch/log" 2>&1; then
        tail -n 60 "$scratch/log"
        for reproducer in "$scratch"/{crash,leak,timeout,oom}-*; do
            [[ -e "$reproducer" ]] || continue
            printf '%s crashes; its input, in base64: %s\nTo repeat: %s %s\n' \
                "$name" "$(base64 -w0 "$reproducer")" "$program" "$reproducer"
        done
        exit 1
    fi
    echo "$name: $(sed -n 's/^stat::number_of_executed_units: *//p' "$scratch/log") inputs, no crash"
done
