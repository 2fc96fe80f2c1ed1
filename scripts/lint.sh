#!/usr/bin/env bash
# Checks the layout (clang-format) and the code (clang-tidy) of every tracked source; any finding is a failure.
#   scripts/lint.sh [format|tidy]     (default: both)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

only=${1:-both}

scripts/setup.sh build lint
if [[ $only != tidy ]]; then
    git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run -Werror
    echo "lint.sh: the layout is clean"
fi
if [[ $only != format ]]; then
    # The build makes the database of compile commands and the headers of the pages.
    cmake --preset dev >/dev/null
    cmake --build --preset dev --parallel "$(nproc)"
    # Tests follow other habits (magic values, long bodies), examples need an installed copy, and the compilers' warnings
    # hold for both anyway.
    git ls-files -z '*.cpp' ':!tests' ':!bench' ':!examples' | xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p build/dev \
        2> >(grep -vE ' warnings? generated' >&2)  # what it left out, mostly of other people's headers
    echo "lint.sh: the code is clean"
fi
