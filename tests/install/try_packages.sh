#!/usr/bin/env bash
# Installs Debian's packages into a fresh system and builds, exports and runs there what a user would:
# try_packages.sh FOLDER-OF-PACKAGES FOLDER-OF-SYSTEM. Has to be run as root.
# shellcheck disable=SC2016 # what stands in single quotes is for the shell in the system
set -euo pipefail
tests=$(dirname "$0")
# shellcheck source=scripts/fresh_system.sh
. "$tests/../../scripts/fresh_system.sh"
mount_for_oneself "$@"
packages=$1
system=$2

make_system "$system" ca-certificates
mkdir "$system/packages" "$system/install"
cp "$packages"/*.deb "$system/packages"
cp -R "$tests/plugin" "$tests/windows" "$tests/make" "$tests/manuscript" "$system/install"
mount_system "$system"

# Runs a script in the system.
inside() {
    chroot "$system" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
        QT_QPA_PLATFORM=offscreen bash -euo pipefail -c "$1"
}

echo 'The libraries alone bring no windows for Core.'
inside 'apt-get update -qq
        apt-get install -y -qq --no-install-recommends /packages/liborvaneexportkitcore1_*.deb >/dev/null
        ! dpkg-query --show libqt6widgets6 2>/dev/null'

echo 'All packages, and what a plug-in is built with.'
inside 'apt-get install -y -qq --no-install-recommends /packages/*.deb g++ cmake make pkg-config >/dev/null
        ldd /usr/lib/*/qt6/plugins/designer/libOrvaneExportKitDesigner.so /usr/bin/orvane-host >/install/needed
        ! grep "not found" /install/needed'

echo 'A plug-in and a program with windows by CMake, the plug-in again by pkg-config.'
inside 'for project in plugin windows; do
            cmake -S /install/$project -B /install/build/$project >/dev/null
            cmake --build /install/build/$project >/dev/null
        done
        /install/build/windows/kit-with-windows
        mkdir /install/build/make
        make -C /install/build/make -f /install/make/Makefile SOURCES=/install >/dev/null'

echo 'The host exports with each of them, and with its own plug-ins.'
inside 'orvane-host --list-plugins | grep -q "^plain-text: "
        for folder in plugin make; do
            mkdir /install/build/$folder/exported
            orvane-host export /install/manuscript --plugin upper-case --to /install/build/$folder/exported \
                --plugin-folder /install/build/$folder
            grep -qx "ONLY A FEW “WORDS”." "/install/build/$folder/exported/001 Only.upper"
        done'

echo 'Nothing stays behind when they are removed.'
inside 'apt-get purge -y -qq "*orvane*" >/dev/null
        ! find / -xdev -path /packages -prune -o -iname "*orvane*" -print | grep -v ^/install/'
echo 'The packages work.'
