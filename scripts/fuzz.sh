#!/usr/bin/env bash
# Feeds the readers of files, patterns and scripts with made-up input under the sanitizers, and checks what must hold for any of it
# (tests/fuzz). An input that breaks a property is kept in build/fuzz and ends the run.
#   scripts/fuzz.sh [SECONDS]     (for each of the five fuzzers; default: 60)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

seconds=${1:-60}
programs=build/fuzz/tests/fuzz

scripts/setup.sh build fuzz
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --parallel "$(nproc)" --target ini_fuzz job_fuzz language_fuzz pattern_fuzz script_fuzz

# What it learns is kept beside the build, so that the next run goes on from there.
fuzz() {
    local subject=$1 log=build/fuzz/$1.log
    mkdir -p "build/fuzz/corpus/$subject"
    if ! "$programs/${subject}_fuzz" -max_total_time="$seconds" -timeout=10 -max_len=8192 -artifact_prefix="build/fuzz/$subject-" \
        "build/fuzz/corpus/$subject" "tests/fuzz/corpus/$subject" >"$log" 2>&1; then
        tail -n 60 "$log" >&2
        echo "fuzz.sh: $subject: a property is broken, see above" >&2
        return 1
    fi
    echo "fuzz.sh: $subject: $(grep -E '^#[0-9]+\s+DONE' "$log" | sed -E 's/^#([0-9]+).*/\1 inputs, no finding/')"
}
export -f fuzz
export programs seconds
printf '%s\n' ini job language pattern script | xargs -P "$(nproc)" -I{} bash -euo pipefail -c 'fuzz {}'
