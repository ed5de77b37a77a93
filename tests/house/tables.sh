#!/usr/bin/env bash
# What a table of the sources becomes, and that a fault of one ends the build and names the file and the line.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
: "${CMAKE:?}" "${CXX:?}"

work="$HOUSE/tables"
rm -rf "$work"
mkdir -p "$work"
table="$work/messages.tsv"
row='{@code@, {u8"@key@", u8"@text@"}},'

# read_table UNIQUE: reads the table on standard input, whose rows these columns tell apart.
read_table() {
    cat >"$table"
    rm -f "$work/messages.inc"
    LC_ALL=C "$CMAKE" "-DTABLE=$table" "-DOUTPUT=$work/messages.inc" "-DROW=$row" "-DUNIQUE=$1" \
        -P "$SOURCE/cmake/table.cmake" >"$work/log" 2>&1
}

accepted() {
    read_table "$1" || fail "refused: $(cat "$work/log")"
}

# refused LINE MESSAGE [UNIQUE]: the table on standard input is refused with the message for that line.
refused() {
    if read_table "${3-code}"; then
        fail "not refused: $2"
    else
        # The tool breaks long lines.
        tr -s ' \n' ' ' <"$work/log" | grep -qF -- "$table:$1: $2" || fail "instead of line $1: $2: $(cat "$work/log")"
    fi
    [[ ! -e "$work/messages.inc" ]] || fail "a refused table was written: $2"
}

refused 3 '2 fields where the first line names 3' < <(printf 'code\tkey\ttext\n1\tA\tone\n2\tB\n')
refused 4 '4 fields where the first line names 3' < <(printf '# about\n\ncode\tkey\ttext\n1\tA\tone\tmore\n')
refused 4 'the same code as in line 2' < <(printf 'code\tkey\ttext\n1\tA\tone\n2\tB\ttwo\n1\tC\tthree\n')
refused 5 'the same code,key as in line 2' code,key < <(printf 'code\tkey\ttext\n1\tA\tone\n2\tA\ttwo\n\n1\tA\tthree\n')
refused 2 'a backslash that is no \n' < <(printf 'code\tkey\ttext\n1\tA\ta tab: \\t\n')
refused 2 'a backslash that is no \n' < <(printf 'code\tkey\ttext\n1\tA\tat the end\\\n')
refused 2 'a backslash that is no \n' < <(printf 'code\tkey\ttext\n1\tA\ttwo: \\\\n\n')
refused 2 'a carriage return' < <(printf 'code\tkey\ttext\n1\tA\tone\rtwo\n')
refused 2 'the last line has no end' < <(printf 'code\tkey\ttext\n1\tA\tone')
refused 2 'nothing (-) in the column key, which is a text' < <(printf 'code\tkey\ttext\n1\t-\tone\n')
refused 3 'nothing (-) in the column text, which is a text' < <(printf 'code\tkey\ttext\n-\tA\tone\n2\tA\t-\n')
refused 1 'no column is named number' number < <(printf 'code\tkey\ttext\n1\tA\tone\n')

# Rows that agree in one of the two columns, or that lack them both, are told apart.
quoted_row="$row"
row='{@code@, @key@, u8"\"@text@"},'
accepted code,key < <(printf \
    'code\tkey\ttext\n1\tA\tone\n1\tB\ttwo\n2\tA\tthree\n-\t-\tfour\n-\t-\tfive\n-\tA\tsix\n')
[[ "$(tail -n 3 "$work/messages.inc" | head -n 1)" == '{{}, {}, u8"\"four"},' ]] || fail "nothing is something else"
refused 2 'nothing (-) in the column text, which is a text' < <(printf 'code\tkey\ttext\n1\t-\t-\n')
row="$quoted_row"
accepted '' < <(printf 'code\tkey\ttext\n1\tA\tone\n1\tA\tone\n')
# The ends of lines may be those of another system.
accepted code < <(printf 'code\tkey\ttext\r\n1\tA\tone\r\n')
[[ "$(tail -n 1 "$work/messages.inc")" == '{1, {u8"A", u8"one"}},' ]] || fail "an end of a line stays in its text"

# What a compiler makes of a good table is what stands in it.
cat >"$work/expected.txt" <<'TEXTS'
none(A;B)<>
2()<a; b;; [c [d]] (e) {f} "g" 'h' #i %d // $ENV{HOME}>
3(@text@)<${row} $<1:x> @code@ @key@ %1 \n stays>
4(K)<über → ende>
5( -)<- and no more>
TEXTS
accepted code < <(
    printf '# A comment\twith a tab\n\n'
    printf 'code\tkey\ttext\n'
    printf '%s\n' $'-\tA;B\t' \
        $'2\t\ta; b;; [c [d]] (e) {f} "g" \'h\' #i %d // $ENV{HOME}' \
        $'# 3\tnot\tthis' \
        $'3\t@text@\t${row} $<1:x> @code@ @key@ %1 \\n stays' \
        $'4\tK\tüber → ende' \
        $'5\t -\t- and no more'
)
cat >"$work/print.cpp" <<'CODE'
#include <cstdio>
#include <optional>
struct Texts { const char8_t* key; const char8_t* text; };
struct Row { std::optional<unsigned> code; Texts texts; };
constexpr Row kRows[] = {
#include "messages.inc"
};
// Prints a text with its line feeds as the table has them.
void print(const char8_t* text)
{
    for (; *text != 0; ++text)
        *text == '\n' ? std::fputs("\\n", stdout) : std::putchar(*text);
}
int main()
{
    for (const Row& row : kRows) {
        row.code ? std::printf("%u(", *row.code) : std::printf("none(");
        print(row.texts.key);
        std::printf(")<");
        print(row.texts.text);
        std::printf(">\n");
    }
}
CODE
"$CXX" -std=c++20 -Wall -Wextra -Werror "$work/print.cpp" -o "$work/print" || fail "the rows are not C++"
"$work/print" >"$work/printed.txt"
diff "$work/expected.txt" "$work/printed.txt" || fail "the rows say something else"

report "the reader of tables"
