#!/usr/bin/env bash
# module.sh MODULE: the icon library exports its entry points and nothing else, and needs no more of Qt than its
# folder may use and none of our libraries but platform.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
module="$1"

exported="$(LC_ALL=C "$READELF" --dyn-syms --wide "$module" |
    awk '$7 ~ /^[0-9]+$/ && $5 != "LOCAL" { print $8 }' | sort | tr '\n' ' ')"
expected='ghLoadWFImageAtSize ghLoadWFPNGImageAsPerDPI ghLoadWFPngImageIconAsPerDPI '
[[ "$exported" == "$expected" ]] || fail "exported: $exported"

needed="$(LC_ALL=C "$READELF" -d "$module" | sed -nE 's,.*\(NEEDED\).*\[lib(Qt6[A-Za-z]+|condtree[^.]*)\.so.*,\1,p')"
read -ra modules <<<"$(allowed_modules wficons)"
for library in $needed; do
    is_one_of "$library" condtree-platform "${modules[@]/#/Qt6}" || fail "needs lib$library"
done
[[ "$needed" == *condtree-platform* ]] || fail "no library of ours was found: the test looks in the wrong place"

report "$(basename "$module")"
