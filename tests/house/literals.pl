# Prints the literals with words in the files, which are C++, that are not among the known ones (the first
# argument, a line each), and the calls that ask for a text by a number of their own.
use strict;
use warnings;

my %known = map { $_ => 1 } split /\n/, shift @ARGV;
my $text = qr/"(?:[^"\\\n]|\\.)*"/;
for my $file (@ARGV) {
    open my $in, "<", $file or die "$file: $!";
    my $code = do { local $/; <$in> };
    # Comments and characters go; a literal may hold what looks like either. Raw ones become plain.
    $code =~ s{R"\w*\((.*?)\)\w*"|($text)|\x27(?:[^\x27\\]|\\.)+\x27|//[^\n]*|/\*.*?\*/}
        {defined $1 ? "\"" . ($1 =~ tr{"\\\n}{}dr) . "\"" : $2 // " "}gsex;
    $code =~ s/^[ \t]*#[^\n]*//gm;
    # Pieces of one literal.
    1 while $code =~ s/("(?:[^"\\\n]|\\.)*)"\s*(?:u8?|U|L)?"/$1/;
    # A port of texts, whatever the number; a function or an object with a number, a key and a section.
    my $key = qr/(?:u$text|kTextKey|k\w*Key)/;
    while ($code =~ /((?:(?:\.|->)string|\bm?_?strings)\s*\(\s*[^(),]+,[^;]{0,40}
                     |\bTextRef\s*(?:\w+\s*)?(?:\{[^;]{0,40}|\(\s*-?\d)
                     |[({]\s*-?\w+\s*,\s*$key\s*,\s*(?:u$text|k\w+)\s*,\s*u"[^;]{0,40})/gx) {
        print "$file: asks: " . ($1 =~ s/\s+/ /gr) . "\n";
    }
    while ($code =~ /"((?:[^"\\\n]|\\.)*)"/g) {
        my $literal = $1;
        next if exists $known{$literal};
        # SQL is no sentence.
        next if $literal =~ /^\s*(?:SELECT|INSERT|UPDATE|DELETE|CREATE|PRAGMA|BEGIN|CAST) ?\b/;
        # Two words, or one that ends in a sentence.
        print "$file: \"$literal\"\n"
            if $literal =~ /[[:alpha:]]{2}.* +.*[[:alpha:]]|[[:alpha:]]{3}.*[.:] *$|^ *[[:alpha:]]{3,} +$/;
    }
}
