"""Compares the symbols that a library exports with a list: symbols.py check|renew LIST LIBRARY

A virtual table stands in the list with its size, which changes when a class gets a virtual function.
"""

import difflib
import pathlib
import subprocess
import sys

BY_THE_LINKER = {"__bss_start", "_edata", "_end", "_init", "_fini"}


def exported(library):
    """The exported symbols as C++, sorted."""
    names = set()
    listing = subprocess.run(["nm", "--dynamic", "--defined-only", "--demangle", "--portability", library], check=True,
                             capture_output=True, text=True)
    for line in listing.stdout.splitlines():
        name, _, _, size = line.rsplit(" ", 3)
        if name.startswith("vtable for "):
            name += f": {int(size, 16)} bytes"
        if name not in BY_THE_LINKER:
            names.add(name)
    return sorted(names)


def main():
    command, path, library = sys.argv[1], pathlib.Path(sys.argv[2]), sys.argv[3]
    now = exported(library)
    if command == "renew":
        path.write_text("\n".join(now) + "\n", encoding="utf-8")
        return
    before = path.read_text(encoding="utf-8").splitlines()
    changes = [line for line in difflib.ndiff(before, now) if line[0] in "-+"]
    if changes:
        print("\n".join(changes))
        sys.exit(f"{len(changes)} exported symbols went (-) or came (+). docs/stability.md says what may change when.\n"
                 "When the change is meant to be, say so in CHANGELOG.md and renew the lists:\n"
                 "    cmake --build BUILD --target renew_abi")
    print(f"{len(now)} symbols, as listed")


main()
