#!/usr/bin/env bash
# With a folder's own flags, headers of other folders and of Qt modules that it does not link do not compile.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

# The compiler's messages about one include with a folder's flags; its result is the compiler's. Preprocessing
# tells: what is kept out is either not found or an #error.
compile() {
    printf '#include <%s>\n' "$2" | LC_ALL=C "$CXX" "@$HOUSE/flags/$1.rsp" -E -o /dev/null - 2>&1
}

must_compile() {
    local messages
    messages="$(compile "$1" "$2")" || fail "<$2> must compile in $1: ${messages:0:400}"
}

must_not_compile() {
    local messages
    if messages="$(compile "$1" "$2")"; then
        fail "<$2> must not compile in $1"
    elif [[ ! "$messages" =~ $3 ]]; then
        fail "<$2> does not compile in $1, but for another reason: ${messages:0:400}"
    fi
}

missing='No such file or directory'
no_gui='nothing of QtGui belongs here|no widget belongs here'

# Some header of a folder.
header_of() {
    local headers=("$(folder_dir "$1")"/*.h)
    echo "condtree/$1/$(basename "${headers[0]}")"
}

for folder in $(folders); do
    read -ra modules <<<"$(allowed_modules "$folder")"
    must_compile "$folder" QString
    if is_one_of Widgets "${modules[@]}"; then
        must_compile "$folder" QWidget
    else
        must_not_compile "$folder" QWidget "$missing"
        must_not_compile "$folder" QtWidgets/QWidget "$no_gui"
        if is_one_of Gui "${modules[@]}"; then
            must_compile "$folder" QPainter
        else
            must_not_compile "$folder" QPainter "$missing"
            must_not_compile "$folder" QtGui/QPainter "$no_gui"
        fi
    fi

    read -ra allowed <<<"$folder $(allowed_folders "$folder" || echo unknown)"
    for other in $(folders); do
        header="$(header_of "$other")"
        if is_one_of "$other" "${allowed[@]}"; then
            # The control alone uses the string library, and declares it through platform.
            [[ "$other" == strmgr ]] || must_compile "$folder" "$header"
        else
            must_not_compile "$folder" "$header" "$missing"
        fi
    done
done

report "$(folders | wc -l) folders"
