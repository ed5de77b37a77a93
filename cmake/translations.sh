#!/usr/bin/env bash
# Keeps the translations in step with the English texts.
#
#   cmake/translations.sh update [LL...]    brings the catalogues up to date: new texts come in untranslated,
#                                           texts that are gone go; makes those of a new language
#   cmake/translations.sh missing [LL...]   lists what a language lacks: catalogues, translations, and in these the
#                                           place markers and mnemonics of the English text; fails where there is any
#
# Without LL it does all the languages that there are, which for the second must be CONDTREE_LANGUAGES.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# The tools complain of other encodings.
export LC_ALL=C.UTF-8
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
    # The tool ends well even where it could not write; whatever it says then is a failure.
    if ! lupdate "${options[@]}" -target-language "$language" "$1" -ts "$2" 2>"$scratch/said" || [[ -s "$scratch/said" ]]; then
        cat "$scratch/said" >&2
        echo "$2: not brought up to date" >&2
        return 1
    fi
}

# lacking FILE.ts: a line for every text without a translation that can stand for it.
lacking() {
    perl -CSD -0777 -e '
        my ($file) = @ARGV;
        open my $in, "<", $file or die "$file: $!\n";
        my $ts = <$in>;
        my $found = 0;
        sub plain {
            my $text = shift // "";
            my %named = (lt => "<", gt => ">", quot => "\"", apos => "\x27", amp => "&");
            $text =~ s/&(?:#x([0-9a-fA-F]+)|(\w+));/defined $1 ? chr hex $1 : $named{$2} \/\/ ""/ge;
            return $text;
        }
        sub markers { join " ", sort keys %{{ map { $_ => 1 } shift =~ /%L?(?:[1-9]|n)/g }} }
        sub mnemonics { my $text = shift =~ s/&&//gr; scalar(() = $text =~ /&\S/g) }
        while ($ts =~ m{<context>(.*?)</context>}sg) {
            my $texts = $1;
            my $context = plain($texts =~ m{<name>(.*?)</name>}s);
            while ($texts =~ m{<message([^>]*)>(.*?)</message>}sg) {
                my ($kind, $message) = ($1, $2);
                my $source = plain($message =~ m{<source>(.*?)</source>}s);
                my $name = $source =~ s/\n/ /gr;
                $name .= " ($1)" if $message =~ m{<comment>(.*?)</comment>}s;
                my ($state, $all) = $message =~ m{<translation([^>]*?)(?:/>|>(.*?)</translation>)}s;
                $all //= "";
                my $isNumbered = $kind =~ /numerus="yes"/;
                my @forms = $isNumbered ? $all =~ m{<numerusform[^>]*?(?:/>|>(.*?)</numerusform>)}sg : ($all);
                my @flaws;
                push @flaws, "not translated"
                    if $state =~ /unfinished/ or !@forms or grep { ($_ // "") !~ /\S/ } @forms;
                for my $i (@flaws ? () : 0 .. $#forms) {
                    my $form = plain($forms[$i]);
                    my ($wanted, $there) = (markers($source), markers($form));
                    # A form for one thing may do without the number.
                    $wanted =~ s/ ?%L?n// if $isNumbered and $i == 0 and @forms > 1 and $there !~ /n/;
                    push @flaws, "has the place markers <$there> instead of <$wanted>" if $there ne $wanted;
                    push @flaws, "has " . mnemonics($form) . " mnemonics (&) instead of " . mnemonics($source)
                        if mnemonics($form) != mnemonics($source);
                }
                print "$file: $context: $name: $_\n" for @flaws;
                $found ||= @flaws;
            }
        }
        exit($found ? 1 : 0)' "$1"
}

# The languages of the catalogues with one of the prefixes.
languages_of() { # PREFIX...
    local prefix file
    for prefix in "$@"; do
        for file in "$prefix"_*.ts; do
            [[ -e "$file" ]] && basename "$file" .ts | cut -d_ -f2-
        done
    done | sort -u
}

task="${1:-}"
shift || true
[[ "$task" == update || "$task" == missing ]] || {
    sed -n '2,9s/^# \{0,1\}//p' cmake/translations.sh
    exit 2
}
status=0
complain() {
    echo "$*"
    status=1
}

mapfile -t built < <(sed -n 's/^set(CONDTREE_LANGUAGES \(.*\))$/\1/p' CMakeLists.txt | tr ' ' '\n')
languages=("$@")
if ((${#languages[@]} == 0)); then
    mapfile -t languages < <(languages_of "${catalogues[@]%% *}")
    while [[ "$task" == missing ]] && read -r language; do
        complain "CMakeLists.txt: CONDTREE_LANGUAGES lacks $language"
    done < <(comm -13 <(printf '%s\n' "${built[@]}" en | sort -u) <(printf '%s\n' "${languages[@]}"))
    mapfile -t languages < <(printf '%s\n' "${languages[@]}" "${built[@]}" | sort -u)
fi
for catalogue in "${catalogues[@]}"; do
    read -r prefix source <<<"$catalogue"
    for language in "${languages[@]}"; do
        file="${prefix}_$language.ts"
        # The numbered texts are English as they are.
        [[ "$language" != en || "$prefix" == *workbench ]] || continue
        if [[ "$task" == update ]]; then
            gather "$source" "$file" || status=1
        elif [[ ! -f "$file" ]]; then
            complain "$file: there is none"
        else
            copy="$scratch/$(basename "$file")"
            # Not the modes of a tree that cannot be written.
            install -m 600 "$file" "$copy"
            gather "$source" "$copy" || status=1
            lacking "$copy" | sed "s|^$scratch/|$(dirname "$file")/|" || status=1
        fi
    done
done
exit "$status"
