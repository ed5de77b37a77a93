#!/usr/bin/env bash
# Localised texts are named in one place, every one of them is shown somewhere, and every language has them all.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT

sources() { # FOLDER...
    local folder
    for folder in "$@"; do
        find "$SOURCE/$folder" -name '*.cpp' -o -name '*.h'
    done
}
mapfile -t all < <(sources src libs)

# Files whose sentences no user reads, or reads in English in every language: data of the sample, log lines about
# the settings files and the database, messages of ranges, versions of other products, a tool of the build.
english="Sample.cpp SampleConditions.cpp SamplePeople.cpp SampleWorkflows.cpp
    RegFile.cpp RegFileParser.cpp Database.cpp Migrations.cpp Transaction.cpp ElfCheck.cpp ModuleTrust.cpp WfIconLibrary.cpp
    ResultFallbacks.cpp SystemRequirements.cpp ContactSheet.cpp"
# Sentences that no user reads, in files that have others: the names of keys and of the product, log lines,
# complaints of the compiler, what an exception says, and SpSaveReport::message, which is English by its contract.
unread='VELTRIX KIRO
Software\\Veltrix\\Applications\\Larkspan Enterprise
Software\\Veltrix\\Applications\\Larkspan Enterprise\\TamselAdmin
list too long
a connection was used on a thread that is not its own
%1: the file cannot be read
no texts for the language
cannot read the texts of
result_codes.tsv is not ascending by code, or has a code twice
result_codes.tsv lacks a part of a message, or has it twice
system_texts.tsv is not ascending by code, or has a code twice
\n  SQL Server 2019 or later.\n  For SQL Server 2019 Cumulative Update 22 or later.
extra text
holds the character U+0000
holds half of a surrogate pair
is larger than 16 MiB
Row %1: the %2 %3, which the database cannot hold.
somebody else
 \x27on\x27 yyyy-MM-dd \x27at\x27 HH:mm:ss \x27UTC\x27,
The condition was saved by %1%2 after it was loaded; your changes were not saved.
The disk is full; your changes were not saved.
The database could not be written; your changes were not saved.'
unread="${unread//\\x27/\'}"
# Who names texts, or hands on names of texts: the catalogue of the control, that of operators, that of result codes.
names_texts="ControlText.h TextRef.h OperatorCatalogue.cpp ErrorText.cpp SpConnect.cpp"

# suspicious FILE...: sentences and names of texts in C++ that the catalogue of texts may not know.
suspicious() {
    perl "$(dirname "${BASH_SOURCE[0]}")/literals.pl" "$(cut -f4 "$SOURCE/libs/strmgr/texts.tsv")"$'\n'"$unread" "$@" |
        while read -r line; do
            file="$(basename "${line%%: *}")"
            # shellcheck disable=SC2086
            case "$line" in
                *': asks: '*) is_one_of "$file" $names_texts || echo "$line" ;;
                *) is_one_of "$file" $english || echo "$line" ;;
            esac
        done
}
found="$(suspicious "${all[@]}")"
[[ -z "$found" ]] || fail "texts that are not translated, or escape the test that compares the code with the catalogue:"$'\n'"$found"

# It does find what is planted.
planted() { # CODE
    printf '%s\n' "$1" >"$scratch/Planted.cpp"
    [[ -n "$(suspicious "$scratch/Planted.cpp")" ]] || fail "passes: $1"
}
planted 'CString a = services.string(4711, u"TS", u"Search", u"Planted");'
planted 'CString a = m_services.string(kNumber, kTextKey, section, u"Planted");'
planted 'CString a = services->string (
    kNumber, kTextKey, section, u"Planted");'
planted 'CString a = m_strings(4711, u"TS", u"Search", u"Planted");'
planted 'CString a = source(4711, kTextKey, u"Search", u"Planted");'
planted 'constexpr TextRef x{ 4712, kTextKey, kSection, u"Planted"};'
planted 'constexpr TextRef kPlanted{4712, key, section, u"Planted"};'
planted 'box.setText(QStringLiteral("A sentence with blanks"));'
planted 'box.setText(QLatin1String("Two "
                            "pieces"));'
planted 'box.setText(u"Ready."_s);'
planted 'box.setText(R"(A raw one)");'
printf '%s\n' '// "a comment here"' 'auto a = "// /*"; /* "another comment" */ auto b = u"String Contains";' \
    'query.exec("SELECT id FROM users");' >"$scratch/Planted.cpp"
found="$(suspicious "$scratch/Planted.cpp")"
[[ -z "$found" ]] || fail "what is no text is found: $found"

# Who asks the string library itself, rather than by a named text, an operator's name or a result code.
asks="StrMgr.h StrMgr.cpp TextRef.h RealServices.cpp StringTable.h"
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
missing="$("$SOURCE/cmake/translations.sh" missing)" || fail "untranslated:"$'\n'"$missing"

# It does find what is missing. What follows is done to a copy, as a user whom modes of files hold back.
tree="$scratch/tree"
fresh_tree() {
    rm -rf "$tree"
    mkdir -p "$tree/apps"
    cp -r "$SOURCE/cmake" "$SOURCE/libs" "$SOURCE/CMakeLists.txt" "$tree"
    cp -r "$SOURCE/apps/workbench" "$tree/apps"
    chmod -R u+w,a+rX "$scratch"
}
as_user() {
    if ((EUID == 0)); then
        (cd / && setpriv --reuid=65534 --regid=65534 --clear-groups env TMPDIR=/tmp HOME=/ "$@")
    else
        "$@"
    fi
}
# A file of the copy, and where one of its texts is.
condtree() { echo "$tree/libs/strmgr/translations/condtree_$1.ts"; }
workbench() { echo "$tree/apps/workbench/translations/workbench_$1.ts"; }
# expect_missing [LL...] -- LINE...: the tool names these lines and no others.
expect_missing() {
    local languages=() found line
    while [[ "$1" != -- ]]; do
        languages+=("$1")
        shift
    done
    shift
    found="$(as_user "$tree/cmake/translations.sh" missing "${languages[@]}")" && fail "passes, and lacks: $*"
    for line in "$@"; do
        grep -qF -- "$line" <<<"$found" || fail "not named: $line"$'\n'"but: $found"
    done
    [[ "$(wc -l <<<"$found")" == "$#" ]] || fail "more is named than is lacking: $found"
}

fresh_tree
chmod -R a-w "$tree"
as_user "$tree/cmake/translations.sh" missing || fail "a complete tree that cannot be written lacks something"
chmod -R u+w "$tree"
sed -i '0,/<translation>Oder</s//<translation type="unfinished"></' "$(condtree de)"
printf 'TS\tSearch\t4711\tNew and untranslated\n' >>"$tree/libs/strmgr/texts.tsv"
lines=("condtree_de.ts: Search: Or (TS 39): not translated"
    "condtree_de.ts: Search: New and untranslated (TS 4711): not translated")
expect_missing de -- "${lines[@]}"
chmod -R a-w "$tree"
expect_missing de -- "${lines[@]}"
if as_user "$tree/cmake/translations.sh" update de 2>"$scratch/log"; then
    fail "a tree that cannot be written was brought up to date"
fi
grep -qF "condtree_de.ts: not brought up to date" "$scratch/log" || fail "instead: $(cat "$scratch/log")"
chmod -R u+w "$tree"
"$tree/cmake/translations.sh" update de || fail "a tree that can be written was not brought up to date"
grep -qF "New and untranslated" "$(condtree de)" || fail "a new text did not come in"

# Empty translations, place markers and mnemonics.
fresh_tree
sed -i '0,/<translation>Oder</s//<translation></' "$(condtree de)"
sed -i '0,/<translation>Ou</s//<translation> </' "$(condtree fr)"
perl -0777 -pi -e 's/(<source>%1 and %n more<.*?<numerusform>)[^<]*(<)/$1$2/s' "$(workbench sv)"
perl -0777 -pi -e 's/(<source>row %1: the field %2 holds %3, which[^<]*<.*?)%2([^<]*<\/translation>)/$1%1$2/s;
    s/(<source>&amp;Save<.*?<translation>)&amp;/$1/s' "$(workbench de)"
perl -0777 -pi -e 's/(<source>%1 and %n more<.*?)%n/$1/s for 1 .. 2; s/(<numerusform>[^<]*)%n/$1/' "$(workbench ja)"
expect_missing -- \
    "condtree_de.ts: Search: Or (TS 39): not translated" \
    "condtree_fr.ts: Search: Or (TS 39): not translated" \
    "%1 and %n more: not translated" \
    "which a file cannot carry: has the place markers <%1 %3> instead of <%1 %2 %3>" \
    "workbench_de.ts: QGnomeTheme: &Save: has 0 mnemonics (&) instead of 1" \
    "workbench_ja.ts: RecordChanges: %1 and %n more: has the place markers <%1> instead of <%1 %n>"

# Languages: each has both catalogues, and is built.
fresh_tree
rm "$(workbench fr)" "$(condtree sv)"
sed -i 's/^set(CONDTREE_LANGUAGES de /set(CONDTREE_LANGUAGES nl /' "$tree/CMakeLists.txt"
expect_missing -- "CONDTREE_LANGUAGES lacks de" "workbench_fr.ts: there is none" "condtree_sv.ts: there is none" \
    "condtree_nl.ts: there is none" "workbench_nl.ts: there is none"

report "${#names[@]} texts of the control, all languages complete"
