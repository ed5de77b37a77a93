#!/usr/bin/env bash
# The tests of a folder link that folder, what lies below it, and the Qt modules that it may use.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

# What the command that links a target names, a word a line.
link_words() {
    "$NINJA" -C "$BUILD" -t commands "$1" 2>/dev/null | tail -n 1 | tr ' ' '\n'
}

# Our archives and libraries, by folder.
linked_folders() {
    sed -nE 's,.*libcondtree[_-]([a-z_]+)\.(a|so)[.0-9]*$,\1,p' | sort -u
}

# The modules of Qt that a command names, and that an executable asks the loader for.
linked_modules() {
    sed -nE 's,.*libQt6([A-Za-z]+)\.so.*,\1,p' | sort -u
}
needed_modules() {
    LC_ALL=C "$READELF" -d "$1" | sed -nE 's,.*\(NEEDED\).*\[(libQt6.*)\].*,\1,p' | linked_modules
}

checked=0
for folder in $(folders); do
    read -ra allowed <<<"$folder $(allowed_folders "$folder" || echo unknown)"
    read -ra modules <<<"$(allowed_modules "$folder")"
    smallest=""
    while IFS= read -r target; do
        executable="$BUILD/$target"
        [[ -x "$executable" ]] || continue
        checked=$((checked + 1))
        words="$(link_words "$target")"
        for linked in $(linked_folders <<<"$words"); do
            # What the tests share is theirs: their mains, their fake library, a fixture of the folder's own.
            case "$linked" in test_* | "${folder}_fixture") continue ;; esac
            is_one_of "$linked" "${allowed[@]}" || fail "$target links $linked"
        done
        modules_here="$({
            linked_modules <<<"$words"
            needed_modules "$executable"
        } | sort -u | tr '\n' ' ')"
        for module in $modules_here; do
            is_one_of "$module" "${modules[@]}" Test || fail "$target links Qt6$module"
        done
        [[ -z "$smallest" || ${#modules_here} -lt ${#smallest} ]] && smallest="$modules_here"
    done < <("$NINJA" -C "$BUILD" -t targets all 2>/dev/null |
        sed -nE "s,^(tests/$folder/${folder}_[A-Za-z]+): CXX_EXECUTABLE_LINKER.*,\1,p")
    [[ -n "$smallest" ]] || fail "no test of $folder is built"
    echo "$folder: $smallest"
done

report "$checked executables"
