#!/usr/bin/env bash
# contact-sheet.sh [BUILD]: builds the icon library and draws all its pictures to docs/icons.png.
set -euo pipefail
root="$(realpath "$(dirname "${BASH_SOURCE[0]}")/../..")"
build="${1:-$root/build/dev}"

[[ -f "$build/CMakeCache.txt" ]] || cmake -S "$root" --preset dev -B "$build"
cmake --build "$build" --target contact_sheet
QT_QPA_PLATFORM=offscreen "$build/libs/wficons/contact_sheet" \
    "$build/src/condtree/libWfIcons.so" "$root/libs/wficons/svg" "$root/docs/icons.png"
