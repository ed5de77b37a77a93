#!/usr/bin/env bash
# Keeps the translations in step with the English texts.
#
#   cmake/translations.sh update [LL...]    brings the catalogues up to date: new texts come in untranslated,
#                                           texts that are gone go; makes those of a new language
#   cmake/translations.sh missing [LL...]   lists what a language lacks; fails where it lacks something
#
# Without LL it does all the languages that there are.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

export PATH="$PATH:/usr/lib/qt6/bin"
scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT

# The numbered texts, as the tool that gathers them reads them: calls in C++.
cmake -DTABLE="$PWD/libs/strmgr/texts.tsv" -DOUTPUT="$scratch/texts.cpp" -DUNIQUE=key,section,id \
    -DROW='QT_TRANSLATE_NOOP3("@section@", "@text@", "@key@ @id@")' -P cmake/table.cmake

# A line a catalogue: its files without the language, then the sources of its texts.
catalogues=("libs/strmgr/translations/condtree $scratch/texts.cpp"
    "apps/workbench/translations/workbench apps/workbench")

# gather SOURCES FILE.ts: brings one catalogue file up to date.
gather() {
    local language options=(-silent -locations none -no-obsolete -source-language en)
    language="$(basename "$2" .ts | cut -d_ -f2-)"
    # English is there for its plurals.
    [[ "$language" == en* ]] && options+=(-pluralonly)
    lupdate "${options[@]}" -target-language "$language" "$1" -ts "$2"
}

# lacking FILE.ts: a line for every text without a translation.
lacking() {
    awk -v file="$1" '
        function inside(text) {
            gsub(/^[^>]*>|<\/[^<]*$/, "", text)
            gsub(/&lt;/, "<", text); gsub(/&gt;/, ">", text); gsub(/&quot;/, "\"", text)
            gsub(/&apos;/, "\047", text); gsub(/&amp;/, "\\&", text)
            return text
        }
        /<name>/ { context = inside($0) }
        /<message/ { source = comment = "" }
        /<source>/, /<\/source>/ { source = source (source == "" ? "" : " ") inside($0) }
        /<comment>/ { comment = " (" inside($0) ")" }
        /<translation type="unfinished"/ { print file ": " context ": " source comment; found = 1 }
        END { exit found }' "$1"
}

languages_of() { # PREFIX
    local file
    for file in "$1"_*.ts; do
        [[ -e "$file" ]] || continue
        basename "$file" .ts | sed "s/^$(basename "$1")_//"
    done
}

task="${1:-}"
shift || true
status=0
for catalogue in "${catalogues[@]}"; do
    read -r prefix source <<<"$catalogue"
    languages=("$@")
    ((${#languages[@]})) || mapfile -t languages < <(languages_of "$prefix")
    for language in "${languages[@]}"; do
        file="${prefix}_$language.ts"
        case "$task" in
        update) gather "$source" "$file" ;;
        missing)
            copy="$scratch/$(basename "$file")"
            [[ -f "$file" ]] && cp "$file" "$copy"
            gather "$source" "$copy"
            lacking "$copy" | sed "s|^$scratch/|$(dirname "$file")/|" || status=1
            ;;
        *)
            sed -n '2,9s/^# \{0,1\}//p' cmake/translations.sh
            exit 2
            ;;
        esac
    done
done
exit "$status"
