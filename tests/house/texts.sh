#!/usr/bin/env bash
# Localised texts are named in one place, every one of them is shown somewhere, and every language has them all.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

sources() { # FOLDER...
    local folder
    for folder in "$@"; do
        find "$SOURCE/$folder" -name '*.cpp' -o -name '*.h'
    done
}

# A text that is named elsewhere would escape the test that compares the code with the catalogue.
named_in="ControlText.h TextRef.h"
mapfile -t all < <(sources src libs)
while read -r file; do
    # shellcheck disable=SC2086
    is_one_of "$(basename "$file")" $named_in || fail "$file names a text of its own"
done < <(grep -lE 'kTextKey|TextRef( \w+)?\{[0-9]' "${all[@]}")

# Who asks the string library itself, rather than by a named text, an operator's name or a result code.
asks="StrMgr.h StrMgr.cpp TextRef.h RealServices.cpp"
while read -r file; do
    # shellcheck disable=SC2086
    is_one_of "$(basename "$file")" $asks || fail "$file asks the string library itself"
done < <(grep -lE '\bTSS_internal\b' "${all[@]}")

mapfile -t names < <(sed -n '/^enum class ControlText/,/^};/s/^ *\([A-Z][A-Za-z]*\),\{0,1\}$/\1/p' \
    "$SOURCE/src/model/ControlText.h")
((${#names[@]} >= 18)) || fail "only ${#names[@]} names of texts were found"
for name in "${names[@]}"; do
    grep -q "textRef(ControlText::$name)\|textOf(ControlText::$name," "${all[@]}" || fail "the text $name is shown nowhere"
done

# The tool that compares is the translators' own.
missing="$("$SOURCE/cmake/translations.sh" missing 2>/dev/null)" || fail "untranslated:"$'\n'"$missing"

# It does find what is missing: a catalogue with one text taken away.
scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$scratch/apps"
cp -r "$SOURCE/cmake" "$SOURCE/libs" "$scratch"
cp -r "$SOURCE/apps/workbench" "$scratch/apps"
chmod -R u+w "$scratch"
sed -i '0,/<translation>Oder</s//<translation type="unfinished"></' "$scratch/libs/strmgr/translations/condtree_de.ts"
printf 'TS\tSearch\t4711\tNew and untranslated\n' >>"$scratch/libs/strmgr/texts.tsv"
found="$("$scratch/cmake/translations.sh" missing de 2>/dev/null)" && fail "a lacking catalogue passes"
[[ "$found" == *"condtree_de.ts: Search: Or (TS 39)"* ]] || fail "the lacking text is not named: $found"
[[ "$found" == *"condtree_de.ts: Search: New and untranslated (TS 4711)"* ]] || fail "a new text is not named: $found"
[[ "$(grep -c condtree_de <<<"$found")" == 2 ]] || fail "more is named than is lacking: $found"

report "${#names[@]} texts of the control, all languages complete"
