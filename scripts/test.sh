#!/usr/bin/env bash
# Builds the project and runs its tests; on a fresh Debian it installs what that takes first.
#   scripts/test.sh [PRESET [CTEST-ARGUMENT...]]     (default: dev; asan-ubsan for the sanitizers)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

preset=${1:-dev}
jobs=$(nproc)

scripts/setup.sh build
cmake --preset "$preset"
cmake --build --preset "$preset" --parallel "$jobs"
ctest --preset "$preset" --parallel "$jobs" "${@:2}"
