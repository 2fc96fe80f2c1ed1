#!/usr/bin/env bash
# Installs the build into a folder, moves that folder, and uses what is in it as a stranger would: the program, the
# libraries from C++, C and Python, the completion.
#   install_test.sh BUILD-FOLDER WORK-FOLDER
set -euo pipefail
source_folder=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
build=$1
work=$2
prefix=$work/moved

fail() {
    echo "install_test.sh: $*" >&2
    exit 1
}

step() { echo "--- $*"; }

# expect WHAT EXPECTED ACTUAL
expect() {
    [[ $2 == "$3" ]] || fail "$1: expected"$'\n'"$2"$'\n'"but got"$'\n'"$3"
}

rm -rf "$work"
mkdir -p "$work"
cmake --install "$build" --prefix "$work/installed" >"$work/install.log"
mv "$work/installed" "$prefix"
library=$(cd "$(dirname "$(find "$prefix" -name libkestEdit.so)")" && pwd)
desktop=$(find "$prefix" -name libkestEditDesktop.so)
export PKG_CONFIG_PATH=$library/pkgconfig
export LD_LIBRARY_PATH=$library
# Nothing is left in the user's home or in the project, by the compiler's cache and Python's least of all.
mkdir "$work/home"
export HOME=$work/home PYTHONDONTWRITEBYTECODE=1
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_DIR=${CCACHE_DIR:-$build/ccache}
fi
english=$(pkg-config --variable=langdir kestEdit)/english.lng

step "everything is in its place"
for file in bin/kestedit share/man/man1/kestedit.1.gz share/bash-completion/completions/kestedit \
    share/icons/hicolor/scalable/apps/kestedit.svg share/mime/packages/kestedit.xml \
    share/kestedit/lang/english.lng share/kestedit/lang/german.lng ${desktop:+share/kestedit/manual/manual.de.html} include/kestEdit/kestEdit.h; do
    [[ -s $prefix/$file ]] || fail "$file is missing"
done
if [[ $desktop ]]; then
    for entry in "$prefix"/share/applications/{kestedit,kestedit-open}.desktop; do
        [[ -s $entry ]] || fail "$entry is missing"
        if command -v desktop-file-validate >/dev/null; then desktop-file-validate "$entry"; fi
    done
fi
expect "the name in the shared library" libkestEdit.so.1 \
    "$(objdump -p "$library/libkestEdit.so" | awk '$1 == "SONAME" { print $2 }')"

step "no header says where it came from"
! grep -rn '#include "' "$prefix/include" || fail "a header includes another from the project's root"

step "the libraries export what the headers declare"
for shared in "$library/libkestEdit.so" ${desktop:+"$desktop"}; do
    foreign=$(nm -D --defined-only -C "$shared" | cut -d ' ' -f 2- |
        grep -vE '^. (kestedit::|kestEdit_|(vtable|typeinfo|typeinfo name) for kestedit::)|^A KESTEDIT_1$' || true)
    expect "symbols that are not ours in $shared" "" "$foreign"
done
nm -D --defined-only -C "$library/libkestEdit.so" |
    grep -oE '^[0-9a-f]+ . kestedit::\w+' | sed 's/.*:://' | sort -u >"$work/exported"
while read -r name; do
    grep -rqE "KESTEDIT_EXPORT .*\b$name\b" "$prefix/include" || fail "$name is exported, and no header declares it"
done <"$work/exported"

step "the program finds its texts, here and in the build tree"
for program in "$prefix/bin/kestedit" "$build/host/kestedit"; do
    for locale in de_AT.UTF-8 en_GB.UTF-8; do
        LC_ALL=$locale "$program" script new <<<'print cmdCancel.Caption' | head -n 1
    done
done >"$work/captions"
expect "captions" "$(printf 'cmdCancel.Caption = "%s"\n' Abbrechen Cancel Abbrechen Cancel | tr -d '&')" \
    "$(tr -d '&' <"$work/captions")"

# buildHost FOLDER
buildHost() {
    local name
    name=$(basename "$1")
    if ! { cmake -S "$1" -B "$work/$name" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" && cmake --build "$work/$name"; } \
        >"$work/$name.log" 2>&1; then
        cat "$work/$name.log" >&2
        fail "$1 does not build"
    fi
}

# The folder of a run's jobs, empty.
jobs() {
    mkdir -p "$work/jobs-$1"
    echo "$work/jobs-$1"
}

if [[ $desktop ]]; then
    step "the manual leads only to what is there"
    for page in "$prefix"/share/kestedit/manual/*.html; do
        for target in $(grep -oP '(href|src)="\K[^"]+' "$page" || true); do
            [[ -s ${page%/*}/$target ]] || fail "$page leads to $target"
        done
    done
fi

step "a host in C++ without a toolkit"
buildHost "$source_folder/examples/host-plain"
expect "host-plain" "event: a new job
Console host - Edit job
/in -> /out" "$("$work/host-plain/host-plain" "$(jobs plain)" Night /in /out)"

step "a host in C, by CMake, by pkg-config, and without the shared library"
buildHost "$source_folder/examples/host-c"
# shellcheck disable=SC2046  # flags are words
cc "$source_folder/examples/host-c/main.c" -o "$work/by-pkg-config" $(pkg-config --cflags --libs kestEdit)
cp -r "$prefix" "$work/static"
find "$work/static" -name '*.so*' -delete
# shellcheck disable=SC2046
(
    export PKG_CONFIG_PATH=${PKG_CONFIG_PATH/#$prefix/$work/static}
    cc "$source_folder/examples/host-c/main.c" -o "$work/by-archive" $(pkg-config --static --cflags --libs kestEdit)
)
! objdump -p "$work/by-archive" | grep -q 'NEEDED.*kestEdit' || fail "by-archive needs the shared library"
for host in host-c/host-c by-pkg-config by-archive; do
    folder=$(jobs "$(basename "$host")")
    expect "$host" "every day at 18:30:00
event: look for Night.job" "$("$work/$host" "$folder" Night "$english")"
    grep -q $'^Action=3\r$' "$folder/Night.job" || fail "$host has not saved the action"
done

step "a host in Python"
if command -v python3 >/dev/null; then
    expect "host.py" '"/var/log" every day at 18:30:00
event: a new job
refused: chkSubFolder takes no such event
event: the job has changed, ""' \
        "$(python3 "$source_folder/examples/host-python/host.py" "$(jobs python)" Night "$english")"
else
    echo "skipped: no python3 here"
fi

step "a host with a window of its own"
if [[ $desktop ]]; then
    export QT_QPA_PLATFORM=offscreen
    buildHost "$source_folder/examples/host-qt"
    buildHost "$source_folder/tests/install/user-of-host-qt"
    expect "host-qt" "Job host - New job
help: $(realpath "$prefix")/share/kestedit/manual/manual.html
the host lists Night.job" "$("$work/user-of-host-qt/user-of-host-qt" "$(jobs qt)")"
else
    echo "skipped: this build has no window"
    message=$(cmake -S "$source_folder/examples/host-qt" -B "$work/host-qt" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" 2>&1) &&
        fail "find_package finds a window that is not there"
    [[ $message == *"was built without its window"* ]] || fail "find_package does not say why: $message"
fi

step "the embedding guide does what it says"
if [[ $desktop ]]; then
    mkdir "$work/guide"
    cp "$source_folder/examples/host-python/kestedit.py" "$work/guide"
    CMAKE_PREFIX_PATH=$prefix "$source_folder/tests/install/run_document.sh" "$source_folder/docs/embedding.md" \
        "$work/guide" >"$work/guide.log" 2>&1 || { cat "$work/guide.log" >&2 && fail "docs/embedding.md is wrong"; }
else
    echo "skipped: it shows the window"
fi

step "the completion offers every option of the program, and nothing else"
# The two functions of bash-completion that it stands on, without their finer points.
# shellcheck disable=SC2034  # the completion reads what _init_completion sets
_init_completion() {
    cur=${COMP_WORDS[COMP_CWORD]}
    prev=${COMP_WORDS[COMP_CWORD - 1]}
    words=("${COMP_WORDS[@]}")
    cword=$COMP_CWORD
}
_filedir() { COMPREPLY=("<file ${1-}>"); }
# shellcheck disable=SC1091
source "$prefix/share/bash-completion/completions/kestedit"

# completed WORD... prints what is offered for the last word
completed() {
    COMP_WORDS=(kestedit "$@") COMP_CWORD=$# COMPREPLY=()
    _kestedit
    printf '%s\n' "${COMPREPLY[@]}" | sort
}
for command in "" new edit script "ini get" "ini set"; do
    # shellcheck disable=SC2086  # "ini get" is two words
    expect "options of kestedit $command" \
        "$("$prefix/bin/kestedit" $command --help | grep -oP -- '^ +(-h,)?\K--[a-z-]+' | sort)" \
        "$(completed $command --)"
done
expect "what follows ini" $'get\nset' "$(completed ini '' | grep -v -- --)"
expect "what follows script" $'edit\nnew' "$(completed script --view 4 '')"
expect "what follows script new" '<file >' "$(completed script --view 4 new '')"
expect "what follows edit" '<file job>' "$(completed edit '')"
expect "view levels" 15 "$(completed new --view 1)"

echo "install_test.sh: all is well"
