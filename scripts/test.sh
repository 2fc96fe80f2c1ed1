#!/usr/bin/env bash
# Builds the project and runs its tests; on a fresh Debian it installs what that takes first. Fails, too, when the tests
# leave something in the source tree or in the user's home.
#   scripts/test.sh [PRESET [CTEST-ARGUMENT...]]     (default: dev; asan-ubsan for the sanitizers)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

preset=${1:-dev}
jobs=$(nproc)

scripts/setup.sh build
cmake --preset "$preset"
cmake --build --preset "$preset" --parallel "$jobs"

home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
tree() { find . \( -path ./.git -o -path ./build \) -prune -o -print | sort; }
before=$(tree)
env -u XDG_CONFIG_HOME -u XDG_DATA_HOME -u XDG_CACHE_HOME HOME="$home" \
    ctest --preset "$preset" --parallel "$jobs" "${@:2}"
left=$(diff <(printf '%s\n' "$before") <(tree); find "$home" -mindepth 1 -maxdepth 2) || true
if [[ $left ]]; then
    printf 'test.sh: the tests have left something in the source tree or in the home folder:\n%s\n' "$left" >&2
    exit 1
fi
