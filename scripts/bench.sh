#!/usr/bin/env bash
# Builds and runs the benchmarks; arguments go to the benchmark programs (--benchmark_filter=REGEX, for instance).
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

install_packages "${build_packages[@]}" "${bench_packages[@]}"
cmake --preset release -B build/bench -DORVANE_BUILD_TESTS=OFF -DORVANE_BUILD_EXAMPLES=OFF \
    -DORVANE_BUILD_BENCHMARKS=ON -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
cmake --build build/bench
for program in build/bench/benchmarks/*_benchmarks; do
    QT_QPA_PLATFORM=offscreen "$program" "$@"
done
