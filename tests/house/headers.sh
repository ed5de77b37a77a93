#!/usr/bin/env bash
# Every public header compiles on its own, twice, with warnings as errors.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

warnings=(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
checked=0
for folder in $(folders); do
    for header in "$BUILD/include/public/condtree/$folder"/*.h; do
        [[ -e "$header" ]] || continue
        checked=$((checked + 1))
        messages="$(printf '#include <condtree/%s>\n' "$folder/$(basename "$header")"{,} |
            LC_ALL=C "$CXX" "@$HOUSE/flags/$folder.rsp" "${warnings[@]}" - 2>&1)" ||
            fail "$header: ${messages:0:600}"
    done
done
((checked > 20)) || fail "only $checked headers were found"
report "$checked headers"
