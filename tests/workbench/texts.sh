#!/usr/bin/env bash
# Every literal with words in it that stands in the workbench's sources is given to the translator, or
# is one of the formats below.
set -euo pipefail
sources="${1:?the folder of the sources}"

# What no user reads, or reads in every language alike. The last ones are told when there may be no memory
# or no application to translate them with.
formats='
password|passwd|pwd
{format:
,version:
  %1 %2\n
condtree-workbench: 
condtree-workbench: %s%s\n
condtree-workbench 
no texts of the workbench for the language
not enough memory for this
unexpected failure: 
unexpected failure
'

found="$(perl -0777 -e '
    my %formats = map { $_ => 1 } split /\n/, shift @ARGV;
    my $text = qr/"(?:[^"\\\n]|\\.)*"/;
    for my $file (@ARGV) {
        open my $in, "<", $file or die "$file: $!";
        my $code = <$in>;
        # Comments and characters go; a literal may hold what looks like either. Raw ones become plain.
        $code =~ s{R"\w*\((.*?)\)\w*"|($text)|\x27(?:[^\x27\\]|\\.)+\x27|//[^\n]*|/\*.*?\*/}
            {defined $1 ? "\"" . ($1 =~ tr{"\\\n}{}dr) . "\"" : $2 // " "}gsex;
        $code =~ s/^[ \t]*#[^\n]*//gm;
        # What is translated: the texts up to the first that is no text.
        $code =~ s/\b(?:tr|translate|QT_TRANSLATE_NOOP)\s*\((?:\s*$text\s*,?)+//g;
        # Pieces of one literal.
        1 while $code =~ s/("(?:[^"\\\n]|\\.)*)"\s*"/$1/;
        while ($code =~ /"((?:[^"\\\n]|\\.)*)"/g) {
            my $literal = $1;
            next if exists $formats{$literal};
            # Two words, or one that ends in a sentence.
            print "$file: \"$literal\"\n"
                if $literal =~ /[[:alpha:]]{2}.* +.*[[:alpha:]]|[[:alpha:]]{3}.*[.:] *$|^ *[[:alpha:]]{3,} +$/;
        }
    }
' "$formats" "$sources"/*.cpp "$sources"/*.h)"

if [[ -n "$found" ]]; then
    printf 'not translatable:\n%s\n' "$found"
    exit 1
fi
echo "passed"
