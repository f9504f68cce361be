#!/usr/bin/env bash
# Builds the kit with its example host and plug-in, exports the sample manuscripts and lists the files.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

install_packages "${build_packages[@]}"
mkdir -p build
cmake --preset release -B build/demo -DORVANE_BUILD_TESTS=OFF -DCMAKE_CXX_COMPILER_LAUNCHER=ccache >build/demo.log
cmake --build build/demo

output=build/demo/exported
rm -rf "$output"

# Exports one manuscript: its folder's name, then options of the program.
export_manuscript() {
    local name=$1
    shift
    mkdir -p "$output/$name"
    build/demo/bin/orvane-host export "examples/manuscripts/$name" --plugin plain-text --to "$output/$name" \
        --pattern '<1> <2>' "$@" >/dev/null
}

echo
export_manuscript the-lamplighters-ledger
export_manuscript die-gezeitenuhr --convert-spaces --quotation-language de --set line-length=66
export_manuscript letters-from-the-breakwater

first=$(find "$output/the-lamplighters-ledger" -name '001*')
printf '\nThe first lines of "%s":\n\n' "$(basename "$first")"
head -n 12 "$first"
printf '\nAll files:\n\n'
find "$output" -type f -print0 | sort -z | xargs -0 ls -l --
