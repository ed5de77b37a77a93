#!/usr/bin/env bash
# No file includes what its folder's arrows forbid, whether or not it would compile.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

# Prints "FILE:LINE:#include ..." of a folder's sources.
includes_of() {
    grep -rnE --include='*.h' --include='*.cpp' '^[[:space:]]*#[[:space:]]*include' "$1" || true
}

checked=0
for folder in $(folders); do
    read -ra allowed <<<"$folder $(allowed_folders "$folder" || echo unknown)"
    while IFS= read -r line; do
        [[ -n "$line" ]] || continue
        checked=$((checked + 1))
        if [[ "$line" =~ \<condtree/([a-z]+)/ ]]; then
            is_one_of "${BASH_REMATCH[1]}" "${allowed[@]}" || fail "$folder may not include: $line"
        elif [[ "$line" =~ \"([^\"]*)\" && "${BASH_REMATCH[1]}" == */* ]]; then
            fail "an include in quotes is of the own folder: $line"
        fi
    done < <(includes_of "$(folder_dir "$folder")")
done

# Hosts use what is installed.
public="$BUILD/include/public"
for host in apps examples bench; do
    [[ -d "$SOURCE/$host" ]] || continue
    while IFS= read -r line; do
        [[ "$line" =~ \<(condtree/[^\>]*)\> ]] || continue
        checked=$((checked + 1))
        # The speed of a list is measured on the list itself: hosts reach it by clicks only.
        [[ "$line" == */bench/Combo.cpp:*condtree/editing/* ]] && continue
        [[ -e "$public/${BASH_REMATCH[1]}" ]] ||
            fail "$host may include public headers only: $line"
    done < <(includes_of "$SOURCE/$host")
done

((checked > 100)) || fail "only $checked includes were found: the test looks in the wrong place"
report "$checked includes"
