#!/usr/bin/env bash
# Builds kestedit and runs it; on a fresh Debian it installs what that takes first.
#   scripts/run.sh                  creates jobs from the sample scripts, shows one file, and opens it in the window
#                                   where there is a display
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
printf '\nThe job file %s:\n\n' "$jobs/Notes.job"
iconv -f CP1252 -t UTF-8 "$jobs/Notes.job" | tr -d '\r'

if [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then
    exec "$kestedit" edit "$jobs/Notes.job"
fi
printf '\nThere is no display here. In a graphical session (DISPLAY or WAYLAND_DISPLAY is set) the same command opens the\n'
printf 'job in the window; so does: %s edit "%s"\n' "$kestedit" "$jobs/Notes.job"
