# shellcheck shell=bash
# Sourced by the tests of the house: what a folder may use, and how a test reports.
set -euo pipefail

: "${SOURCE:?}" "${BUILD:?}" "${HOUSE:?}"

failures=0
fail() {
    printf 'FAILED: %s\n' "$*"
    failures=$((failures + 1))
}

# The last words of every test.
report() {
    if ((failures > 0)); then
        echo "$failures failures"
        exit 1
    fi
    echo "passed: $*"
}

# The folders whose headers a folder may include, and that its tests may link, beside its own.
allowed_folders() {
    case "$1" in
        platform) ;;
        model | strmgr | storedprocs | wficons) echo platform ;;
        values) echo model platform ;;
        refdata) echo values model platform ;;
        presentation) echo refdata values model platform ;;
        editing) echo presentation refdata values model platform ;;
        control) echo editing presentation refdata values model platform strmgr ;;
        *) return 1 ;;
    esac
}

# The modules of Qt that a folder may use.
allowed_modules() {
    case "$1" in
        storedprocs) echo Core Sql ;;
        wficons) echo Core Gui Svg ;;
        presentation) echo Core Gui ;;
        editing | control) echo Core Gui Widgets ;;
        *) echo Core ;;
    esac
}

folder_dir() {
    if [[ -d "$SOURCE/src/$1" ]]; then echo "$SOURCE/src/$1"; else echo "$SOURCE/libs/$1"; fi
}

# Every folder that is built.
folders() {
    local file
    for file in "$HOUSE"/flags/*.rsp; do
        basename "$file" .rsp
    done
}

is_one_of() {
    local word="$1" other
    shift
    for other in "$@"; do
        [[ "$other" == "$word" ]] && return 0
    done
    return 1
}
