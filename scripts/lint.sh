#!/usr/bin/env bash
# Checks the layout (clang-format), the includes between folders and the code (clang-tidy) of every tracked source; any
# finding is a failure.
#   scripts/lint.sh [format|tidy]     (default: both)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

only=${1:-both}

scripts/setup.sh build lint
if [[ $only != tidy ]]; then
    git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run -Werror
    echo "lint.sh: the layout is clean"
    scripts/includes.sh
fi
if [[ $only != format ]]; then
    # The build makes the database of compile commands and the headers of the pages, and joins sources to units: a check
    # spends most of its time in other people's headers, which a unit has once.
    build=build/asan-ubsan
    cmake --preset asan-ubsan >/dev/null
    cmake --build --preset asan-ubsan --parallel "$(nproc)" --target kestedit
    # Tests follow other habits (magic values, long bodies), and the compiler's warnings hold for them anyway.
    units() {
        sed -nE 's/.*"file": "([^"]*)".*/\1/p' $build/compile_commands.json | grep -vE '/tests/|_autogen/' | grep "$@"
    }
    tidy() {
        xargs -n 1 -P "$(nproc)" clang-tidy --quiet -p $build "$@" \
            2> >(grep -vE ' warnings? generated' >&2)  # what it left out, mostly of other people's headers
    }
    units /desktop/ | tidy --config-file=desktop/.clang-tidy
    units -v /desktop/ | tidy
    echo "lint.sh: the code is clean"
fi
