#!/usr/bin/env bash
# Follows docs/extending.md in a copy of the project: makes its changes, runs its commands. (The embedding guide is
# followed by the install test, the samples of the README by the tests of the program.)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

copy=$PWD/build/docs
scripts/setup.sh build package
rm -rf "$copy"
mkdir -p "$copy"
git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents --no-dereference -t "$copy"
if ! tests/install/run_document.sh docs/extending.md "$copy" >"$copy.log" 2>&1; then
    tail -n 30 "$copy.log" >&2
    echo "docs.sh: docs/extending.md does not do what it says" >&2
    exit 1
fi
rm -rf "$copy"
echo "docs.sh: docs/extending.md does what it says"
