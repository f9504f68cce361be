#!/usr/bin/env bash
# Checks the format of all sources and lets clang-tidy read the library and the programs. Takes a build folder that is
# configured and built.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/release}

git ls-files -z -- '*.h' '*.cpp' | xargs -0 clang-format --dry-run --Werror
# What clang-tidy has to say goes to its standard output; the other stream counts what it left out.
git ls-files -z -- 'OrvaneExportKit/*.cpp' 'examples/*.cpp' 'tools/*.cpp' |
    xargs -0 -n 1 -P "$(nproc)" clang-tidy -quiet -p "$build" 2>/dev/null
