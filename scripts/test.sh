#!/usr/bin/env bash
# Builds everything and runs all tests: the whole suite, the suite under sanitizers, what works on any thread under the
# thread sanitizer, and Core without windows.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

install_packages "${build_packages[@]}" "${test_packages[@]}"
# Without a standard input, programs would take the next file that they open for it.
exec </dev/null
export QT_QPA_PLATFORM=offscreen
# One cache serves checkouts in any folder.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

# Configures, builds and tests one build folder: its name, then options for CMake.
build_and_test() {
    local folder=$1
    shift
    printf '\n== %s ==\n' "$folder"
    cmake -B "build/$folder" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "$@"
    cmake --build "build/$folder"
    ctest --test-dir "build/$folder" --output-on-failure --no-tests=error -j "$(nproc)"
}

build_and_test release --preset release
build_and_test sanitize --preset sanitize
printf '\n== thread-sanitize ==\n'
cmake --preset thread-sanitize -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
cmake --build --preset thread-sanitize
ctest --preset thread-sanitize -j "$(nproc)"
build_and_test core-alone --preset release -DORVANE_BUILD_EXAMPLES=OFF \
    -DCMAKE_DISABLE_FIND_PACKAGE_Qt6Widgets=ON -DCMAKE_DISABLE_FIND_PACKAGE_Qt6UiTools=ON
scripts/lint.sh build/release
