#!/usr/bin/env bash
# Builds Debian's packages into build/package/packages, with the flags and folders that Debian uses.
# `scripts/package.sh --try` then installs them into a fresh system, below build/package/system, and builds and runs a
# plug-in there; it has to be run as root.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

build=build/package
install_packages "${build_packages[@]}" dpkg-dev file lintian
rm -rf "$build/packages"
eval "$(DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --export=sh)"
mkdir -p build
cmake --preset release -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_INSTALL_PREFIX=/usr \
    -DCMAKE_SKIP_INSTALL_RPATH=ON -DORVANE_BUILD_TESTS=OFF -DCMAKE_CXX_COMPILER_LAUNCHER=ccache >"$build.log"
cmake --build "$build"
# CPack packs no files below a folder whose name the locale cannot spell.
LC_ALL=C.UTF-8 cpack --config "$build/CPackConfig.cmake"
rm -rf "$build/packages/_CPack_Packages"
lintian --fail-on error "$build"/packages/*.deb
ls -l "$build"/packages/*.deb

if [ "${1:-}" = --try ]; then
    install_packages mmdebstrap
    tests/install/try_packages.sh "$build/packages" "$build/system"
fi
