#!/usr/bin/env bash
# Checks the format of all sources and the scripts, and lets clang-tidy read the library and the programs. Takes a build
# folder that is configured and built.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/release}

git ls-files -z -- '*.h' '*.cpp' | xargs -0 clang-format --dry-run --Werror
git ls-files -z -- '*.sh' .ci/run | xargs -0 shellcheck --external-sources
git ls-files -z -- 'OrvaneExportKit/*.cpp' 'examples/*.cpp' 'tools/*.cpp' | xargs -0 python3 scripts/tidy.py "$build"
