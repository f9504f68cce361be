#!/usr/bin/env bash
# Takes the pictures of the example host anew, with a display of its own: in two languages, palettes and scales, into
# build/demo/pictures, and from there the ones that the documentation shows into docs/images.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

install_packages "${build_packages[@]}" xvfb openbox xdotool imagemagick fonts-dejavu-core qt6-translations-l10n python3
mkdir -p build
cmake --preset release -B build/demo -DORVANE_BUILD_TESTS=OFF -DCMAKE_CXX_COMPILER_LAUNCHER=ccache >build/demo.log
cmake --build build/demo
pictures=build/demo/pictures
python3 tests/windows/host_pictures.py build/demo/bin/orvane-host examples/manuscripts "$pictures"

for name in host-en-light export-en-light export-de-dark; do
    convert "$pictures/$name-100.png" -trim +repage -colors 256 "docs/images/$name.png"
done
