#!/usr/bin/env bash
# Saves jobs by the real program while every system call of a save fails in turn and the program is killed around each,
# and prints what was tried (see docs/reliability.md).
#   scripts/faults.sh [--short]     (takes some minutes; --short: the part that belongs to the tests)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mode=--full
if [[ ${1-} == --short ]]; then mode=; fi

scripts/setup.sh build
cmake --preset release >/dev/null
cmake --build --preset release --parallel "$(nproc)" --target kestedit_faults >/dev/null
build/release/tests/faults/kestedit_faults $mode
