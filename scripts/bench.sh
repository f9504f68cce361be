#!/usr/bin/env bash
# Builds and runs the benchmarks and writes docs/performance.md from their results. With arguments, which go to the
# benchmark programs (--benchmark_filter=REGEX, for instance), it only prints what they measure.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

install_packages "${build_packages[@]}" "${bench_packages[@]}"
cmake --preset release -B build/bench -DORVANE_BUILD_TESTS=OFF -DORVANE_BUILD_EXAMPLES=OFF \
    -DORVANE_BUILD_BENCHMARKS=ON -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
cmake --build build/bench
export QT_QPA_PLATFORM=offscreen
results=build/bench/results
rm -rf "$results"
mkdir -p "$results"
for program in build/bench/benchmarks/*_benchmarks; do
    repeat=(--benchmark_repetitions=5 --benchmark_report_aggregates_only=true)
    case $program in
        */text_benchmarks | */peak_memory_benchmarks) repeat=() ;; # they take their medians themselves
    esac
    if [ $# -gt 0 ]; then
        "$program" "$@"
    else
        "$program" "${repeat[@]}" --benchmark_filter=-short/ --benchmark_out="$results/$(basename "$program").json"
    fi
done
if [ $# -eq 0 ]; then
    # What else runs easily doubles so short a time; so there are many rounds, of which the fastest counts.
    build/bench/benchmarks/text_benchmarks --benchmark_filter=short/ --benchmark_repetitions=25 \
        --benchmark_enable_random_interleaving=true --benchmark_out="$results/short_texts.json"
    python3 benchmarks/performance.py "$results" benchmarks/performance.md.in docs/performance.md
    echo "Written: docs/performance.md"
fi
