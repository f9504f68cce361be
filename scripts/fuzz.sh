#!/usr/bin/env bash
# Builds a fuzz target with Clang and the sanitizers and runs it for a number of seconds over its saved corpus and what
# earlier runs have found: scripts/fuzz.sh TARGET SECONDS. New inputs go to build/fuzz/inputs/TARGET, those that fail to
# build/fuzz/found.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

if [ $# -ne 2 ]; then
    echo "usage: scripts/fuzz.sh TARGET SECONDS, with a TARGET of" >&2
    ls fuzz/corpus >&2
    exit 2
fi
target=$1
seconds=$2

install_packages "${build_packages[@]}" "${test_packages[@]}"
mkdir -p build
cmake -S . -B build/fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
    -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DORVANE_BUILD_FUZZERS=ON -DORVANE_SANITIZE=ON >build/fuzz.log
cmake --build build/fuzz --target "fuzz_$target"

mkdir -p "build/fuzz/inputs/$target" build/fuzz/found
QT_QPA_PLATFORM=offscreen "build/fuzz/fuzz/fuzz_$target" "build/fuzz/inputs/$target" "fuzz/corpus/$target" \
    -artifact_prefix="build/fuzz/found/$target-" -max_total_time="$seconds" -max_len=4096 -timeout=300 \
    -rss_limit_mb=2048 -malloc_limit_mb=1024 -use_value_profile=1 -print_final_stats=1
