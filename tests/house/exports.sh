#!/usr/bin/env bash
# exports.sh LIBRARY...: a library exports what the headers mark as exported and nothing else of ours.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

# The names that headers below a folder mark: classes, structs and functions.
marked_names() {
    find -L "$@" -name '*.h' -exec cat {} + | tr '\n' ' ' |
        grep -oE '((class|struct) CONDTREE_EXPORT [A-Za-z_]+|CONDTREE_EXPORT [^();{}]*\()' |
        sed -E 's,^(class|struct) CONDTREE_EXPORT ,,; s,.*[ *&]([A-Za-z_]+)\($,\1,' | sort -u
}

# The first name behind condtree:: of every symbol of ours that a library exports.
exported_names() {
    LC_ALL=C "$NM" -DC --defined-only "$1" | cut -d' ' -f3- |
        sed -nE 's,^((non-virtual|virtual) thunk to |(vtable|typeinfo|typeinfo name|VTT|guard variable) for )?condtree::([A-Za-z_]+).*,\4,p' |
        sort -u
}

mapfile -t public < <(marked_names "$BUILD/include/public")
mapfile -t private < <(marked_names "$SOURCE/src/platform")
((${#public[@]} > 15)) || fail "only ${#public[@]} marked names were found"

# Marked, but in a header that hosts never see. The control's own library needs none; the small shared
# libraries below it offer theirs to it.
mapfile -t all < <(marked_names "$SOURCE"/src/{model,values,refdata,presentation,control})
for name in "${all[@]}"; do
    is_one_of "$name" "${public[@]}" || fail "$name is marked in a header that is not public"
done

for library in "$@"; do
    count=0
    allowed=("${public[@]}")
    [[ "$library" == *platform* ]] && allowed+=("${private[@]}")
    for name in $(exported_names "$library"); do
        count=$((count + 1))
        is_one_of "$name" "${allowed[@]}" || fail "$(basename "$library") exports condtree::$name"
    done
    ((count > 0)) || fail "$(basename "$library") exports nothing"
    echo "$(basename "$library"): $count names"
done

report "$# libraries"
