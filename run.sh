#!/usr/bin/env bash
# Builds the workbench and opens it with the options given (./run.sh --help lists them). On a machine
# without a display and without options it prints the sample's condition and draws the window to a file.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
source "$root/cmake/setup.sh"

kinds=(build)
[[ -n "${WAYLAND_DISPLAY:-}" && -z "${DISPLAY:-}" ]] && kinds+=(wayland)
condtree_require "${kinds[@]}"

build="$root/build/release"
log="$build/run.log"
mkdir -p "$build"
[[ -f "$build/build.ninja" ]] || echo "Building the workbench; the first time takes a few minutes." >&2
build_workbench() {
    cd "$root" || return
    if [[ ! "$build/build.ninja" -nt CMakePresets.json ]]; then
        cmake --preset release || return
    fi
    cmake --build --preset release --target condtree-workbench
}
# What the build says is of interest only when it fails, and standard output is the workbench's.
if ! (build_workbench) >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
fi

workbench="$build/apps/workbench/condtree-workbench"
if (($# > 0)) || [[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]]; then
    exec "$workbench" "$@"
fi

"$workbench" --print --screenshot condtree.png
echo
echo "There is no display here: the window is drawn in $PWD/condtree.png."
echo "To see the window itself, run ./run.sh in a desktop session, or over ssh -X."
