#!/usr/bin/env bash
# Installs the build, moves the prefix, and builds and runs hosts against it: one that uses find_package with
# every public header, one that uses pkg-config.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
: "${CMAKE:?}" "${CXX:?}" "${INSTRUMENTATION?}"

consumer="$SOURCE/tests/consumer"
work="$HOUSE/consumer"
rm -rf "$work"
mkdir -p "$work/home"
"$CMAKE" --install "$BUILD" --prefix "$work/first" >"$work/install.log"
mv "$work/first" "$work/prefix"

# Every installed header has its line in the host.
while IFS= read -r header; do
    grep -qF "#include <$header>" "$consumer/main.cpp" || fail "tests/consumer/main.cpp lacks <$header>"
done < <(cd "$work/prefix/include" && find condtree -name '*.h')

# No file of the package names the folders that it was made in.
! grep -rlF -e "$SOURCE" -e "$BUILD" --include='*.cmake' --include='*.pc' --include='*.h' "$work/prefix" ||
    fail "the files above name the folders of the build"

"$CMAKE" -S "$consumer" -B "$work/build" -G Ninja "-DCMAKE_MAKE_PROGRAM=$NINJA" "-DCMAKE_CXX_COMPILER=$CXX" \
    "-DCMAKE_CXX_FLAGS=$INSTRUMENTATION" "-DCMAKE_PREFIX_PATH=$work/prefix" >"$work/configure.log"
"$CMAKE" --build "$work/build" >"$work/build.log" || { cat "$work/build.log"; fail "the host does not build"; }

# Nothing of the user's own may change what the host prints.
in_clean_home() {
    env -u LANGUAGE HOME="$work/home" XDG_DATA_HOME="$work/home" XDG_DATA_DIRS="$work/home" \
        XDG_CONFIG_HOME="$work/home" XDG_CONFIG_DIRS="$work/home" LC_ALL=C.UTF-8 \
        QT_QPA_PLATFORM=offscreen "$@"
}
in_clean_home "$work/build/consumer" "$work/home/host.db" >"$work/printed.txt" || fail "the host stops with $?"
diff "$consumer/expected.txt" "$work/printed.txt" || fail "the host prints something else"

# The libraries of the prefix find one another.
"$work/prefix/bin/condtree-workbench" --version >/dev/null || fail "the installed workbench does not start"

# The module lies where the control looks for it, and finds the libraries of the same prefix.
libdir="$(dirname "$(find "$work/prefix" -name libcondtree-platform.so)")"
module="$libdir/condtree/libWfIcons.so"
needed="$(LC_ALL=C ldd "$module" 2>&1)" || fail "the icon library: $needed"
platform="$(sed -nE 's,.*libcondtree-platform.* => ([^ ]+) .*,\1,p' <<<"$needed")"
[[ "$(realpath "$platform")" == "$(realpath "$libdir/libcondtree-platform.so")" ]] ||
    fail "the icon library finds '$platform'"

# The control loads it by its descriptor, where its own search path means nothing, and needs no more.
QT_LOGGING_RULES="condtree.icons=true" QT_FORCE_STDERR_LOGGING=1 in_clean_home \
    "$work/prefix/bin/condtree-workbench" --screenshot "$work/home/shot.png" 2>"$work/shot.log" ||
    fail "the installed workbench shows nothing: $(<"$work/shot.log")"
! grep -F "icon library" "$work/shot.log" || fail "the installed control has no pictures"

pc_dir="$(dirname "$(find "$work/prefix" -name condtree.pc)")"
pc() { PKG_CONFIG_PATH="$pc_dir" pkg-config "$@"; }
# shellcheck disable=SC2046,SC2086 # flags are words
"$CXX" -std=c++20 $INSTRUMENTATION "$consumer/small.cpp" $(pc --cflags --libs condtree-platform) \
    -o "$work/small" || fail "the host by pkg-config does not build"
[[ "$(LD_LIBRARY_PATH="$(pc --variable=libdir condtree-platform)" "$work/small")" == 11 ]] ||
    fail "the host by pkg-config does not run"
pc --exists --print-errors condtree condtree-storedprocs || fail "a pkg-config file asks for what is not there"
[[ "$(pc --cflags condtree)" == *"-I$(realpath "$work/prefix")/include"* ||
    "$(pc --cflags condtree)" == *"-I$pc_dir/"* ]] || fail "pkg-config points elsewhere: $(pc --cflags condtree)"

report "the installed package"
