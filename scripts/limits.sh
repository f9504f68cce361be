#!/usr/bin/env bash
# Takes the kit to the sizes that docs/limits.md tells, and prints what came of it. Needs 12 GB of memory.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

install_packages "${build_packages[@]}" "${test_packages[@]}"
mkdir -p build
cmake --preset release -DCMAKE_CXX_COMPILER_LAUNCHER=ccache >build/limits.log
cmake --build --preset release --target limits
build/release/tests/limits/limits
