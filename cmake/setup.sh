# shellcheck shell=bash
# Sourced by the scripts: makes sure that the packages of packages.txt are installed, and says what was not tested.

# condtree_packages KIND...: the packages that are needed for the kinds, a line each.
condtree_packages() {
    local list kinds=" $* "
    list="$(dirname "${BASH_SOURCE[0]}")/packages.txt"
    while read -r package kind _; do
        [[ -z "$package" || "$package" == \#* ]] && continue
        [[ "$kinds" == *" $kind "* ]] && printf '%s\n' "$package"
    done <"$list"
}

condtree_is_installed() {
    [[ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" == installed ]]
}

# condtree_require KIND...: installs what is missing. Without missing packages apt is not called; on a
# system without dpkg the packages are the user's own affair.
condtree_require() {
    command -v dpkg-query >/dev/null || return 0
    local missing=() package
    for package in $(condtree_packages "$@"); do
        condtree_is_installed "$package" || missing+=("$package")
    done
    ((${#missing[@]} == 0)) && return 0

    local as_root=()
    if ((EUID != 0)); then
        if ! sudo -n true 2>/dev/null; then
            echo "Packages are missing; run: sudo apt-get install --no-install-recommends ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo -n)
    fi
    echo "Installing ${missing[*]}" >&2
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300)
    "${apt[@]}" update >&2 && "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >&2
}

# condtree_tell_skipped BUILD: a line on the tests of the last run in a build folder that were skipped for
# want of the native platform's tables; nothing where there were none.
condtree_tell_skipped() {
    local skipped
    skipped="$(grep -c '^no table ' "$1/Testing/Temporary/LastTest.log" || true)"
    ((skipped == 0)) || echo "$skipped tests were skipped: the tables that they compare with are missing"
}
