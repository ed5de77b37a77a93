#!/usr/bin/env bash
# Runs the desktop tests of a build folder on a display of their own, with a window manager and without
# a session: tests/desktop/run.sh BUILD [arguments for the programs]. Leaves pictures of the screen in
# BUILD/desktop-pictures.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
build="$(cd "${1:?a build folder}" && pwd)"
shift
source "$here/../../cmake/setup.sh"
condtree_require desktop

home="$(mktemp -d)"
started=()
finish() {
    for process in "${started[@]}"; do
        kill "$process" 2>/dev/null && wait "$process" 2>/dev/null || true
    done
    rm -rf "$home"
}
trap finish EXIT

mkfifo "$home/display" "$home/ready"
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$home/display" 2>"$home/Xvfb.log" &
started+=($!)
read -r number <"$home/display" || { cat "$home/Xvfb.log" >&2; exit 1; }

pictures="$build/desktop-pictures"
mkdir -p "$pictures"
alone=(env -i "PATH=$PATH" "HOME=$home" "XDG_RUNTIME_DIR=$home" "DISPLAY=:$number" LC_ALL=C.UTF-8
    QT_QPA_PLATFORM=xcb "CONDTREE_REGISTRY_DIR=$home/settings" "CONDTREE_PICTURES=$pictures"
    "UBSAN_OPTIONS=print_stacktrace=1")
chmod 700 "$home"
mkdir "$home/settings"
"${alone[@]}" openbox --sm-disable --startup "sh -c 'echo >$home/ready'" 2>"$home/openbox.log" &
started+=($!)
read -r _ <"$home/ready"

status=0
while read -r program; do
    "${alone[@]}" timeout --kill-after=5 150 "$program" "$@" || status=$?
done <"$build/tests/desktop/programs.txt"
exit "$status"
