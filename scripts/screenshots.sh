#!/usr/bin/env bash
# Takes the pictures of the example host anew, with a display of its own. They go to docs/images, or to the folder that
# is given.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

install_packages "${build_packages[@]}" xvfb openbox xdotool imagemagick fonts-dejavu-core qt6-translations-l10n python3
cmake --preset release -B build/demo -DORVANE_BUILD_TESTS=OFF -DCMAKE_CXX_COMPILER_LAUNCHER=ccache >build/demo.log
cmake --build build/demo
python3 tests/windows/host_pictures.py build/demo/bin/orvane-host examples/manuscripts "${1:-docs/images}"
