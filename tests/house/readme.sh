#!/usr/bin/env bash
# The code that the README shows is part of the smallest host, which is compiled.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

host="$SOURCE/examples/minimal_host/main.cpp"
lines=0
# shellcheck disable=SC2016 # the quotes hold no variables
while IFS= read -r line; do
    [[ -n "$line" ]] || continue
    lines=$((lines + 1))
    grep -qxF -- "$line" "$host" || fail "not in minimal_host/main.cpp: $line"
done < <(sed -n '/^```cpp$/,/^```$/p' "$SOURCE/README.md" | grep -v '^```')
((lines > 5)) || fail "the README shows $lines lines of C++"

# Every file that the pages link is there.
cd "$SOURCE"
for page in README.md docs/*.md; do
    while IFS= read -r link; do
        [[ -e "$SOURCE/$(dirname "$page")/$link" ]] || fail "$page links $link"
    done < <(grep -oE '\]\([^):]+\)' "$SOURCE/$page" | tr -d '[]()')
done
# A page that was merged by hand is read again by somebody.
while IFS= read -r page; do
    fail "$page holds both sides of a merge"
done < <(grep -lE '^(<{7} |>{7} )' README.md CHANGELOG.md docs/*.md)
report "$lines lines of code"
