#!/usr/bin/env bash
# Builds the benchmarks and prints what bench/README.md shows: the INI operations beside those of other libraries, then the
# editor's start without a window. Takes some minutes; run nothing else meanwhile.
#   scripts/bench.sh [DISK-FOLDER]     (where the rows on disk put their files; default: build/release)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

disk=${1:-build/release}

scripts/setup.sh build bench
cmake --preset release -DKESTEDIT_BENCHMARKS=ON >/dev/null
cmake --build --preset release --parallel "$(nproc)" --target peers_bench show_bench >/dev/null

echo "$(grep -m 1 'model name' /proc/cpuinfo | sed 's/.*: //'), $(c++ --version | head -n 1)"
echo
build/release/bench/peers/peers_bench "$disk"
echo
build/release/bench/show_bench --benchmark_filter=showFullJob --benchmark_repetitions=5 \
    --benchmark_report_aggregates_only=true 2>/dev/null
