#!/usr/bin/env bash
# Builds and runs the benchmarks; arguments go to the benchmark programs (--benchmark_filter=REGEX, for instance).
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

install_packages "${build_packages[@]}" "${bench_packages[@]}"
cmake --preset release -B build/bench -DORVANE_BUILD_TESTS=OFF -DORVANE_BUILD_EXAMPLES=OFF \
    -DORVANE_BUILD_BENCHMARKS=ON -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
cmake --build build/bench
build/bench/benchmarks/text_benchmarks "$@"
build/bench/benchmarks/property_list_benchmarks "$@"
build/bench/benchmarks/keyed_archive_benchmarks "$@"
if [ -x build/bench/benchmarks/sheet_benchmarks ]; then
    QT_QPA_PLATFORM=offscreen build/bench/benchmarks/sheet_benchmarks "$@"
fi
