#!/usr/bin/env bash
# Builds kestedit and runs it; on a fresh Debian it installs what that takes first.
#   scripts/run.sh                  creates a job from a sample script and shows the file
#   scripts/run.sh ARGUMENT...      runs kestedit with these arguments
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# The caller's folder stays the working folder, and standard output is the program's alone.
(
    cd "$root"
    scripts/setup.sh build
    [[ -f build/release/build.ninja ]] || cmake --preset release
    cmake --build --preset release --parallel "$(nproc)" --target kestedit
) >&2
kestedit=$root/build/release/host/kestedit

(($# == 0)) || exec "$kestedit" "$@"

jobs=$root/build/sample
rm -rf "$jobs"
mkdir -p "$jobs"
"$kestedit" script --job-dir "$jobs" new "$root/samples/create.script"
for job in "$jobs"/*.job; do
    printf '\nThe job file %s:\n\n' "$job"
    iconv -f CP1252 -t UTF-8 "$job" | tr -d '\r'
done
