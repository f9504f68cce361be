"""Lets clang-tidy read sources: tidy.py BUILD-FOLDER SOURCE...

A source that has passed is read again only when it, a header, its options, the profile or clang-tidy has changed; an
empty file in the user's cache folder, named by a hash of them all, remembers it.
"""

import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys

BUILD, *SOURCES = sys.argv[1:]
CACHE = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "orvane-export-kit" / "tidy"
COMMANDS = {os.path.realpath(entry["file"]): shlex.split(entry["command"].replace(os.getcwd(), "."))
            for entry in json.loads(pathlib.Path(BUILD, "compile_commands.json").read_text(encoding="utf-8"))}
VERSION = subprocess.run(["clang-tidy", "--version"], stdout=subprocess.PIPE, check=True).stdout


@functools.cache
def digest(file):
    return hashlib.sha256(pathlib.Path(file).read_bytes()).hexdigest()


def mark_of(source):
    """The file that is there when the source has passed as it is."""
    command = COMMANDS[os.path.realpath(source)]
    options = command[1:command.index("-o")]
    rule = subprocess.run(["clang++", *options, "-M", "-MT", "source", source], stdout=subprocess.PIPE, check=True).stdout
    files = shlex.split(os.fsdecode(rule).replace("\\\n", " "))[1:]
    state = [str(VERSION), digest(".clang-tidy"), *options, *map(digest, files)]
    return CACHE / hashlib.sha256("\n".join(state).encode()).hexdigest()


def passes(source):
    if os.path.realpath(source) not in COMMANDS:
        print(f"{source} is left out, for it is not built on this system")
        return True
    mark = mark_of(source)
    if mark.exists():
        return True
    # What clang-tidy has to say goes to its standard output; the other stream counts what it left out.
    passed = subprocess.run(["clang-tidy", "-quiet", "-p", BUILD, source], stderr=subprocess.DEVNULL, check=False).returncode == 0
    if passed:
        mark.touch()
    return passed


CACHE.mkdir(parents=True, exist_ok=True)
with concurrent.futures.ThreadPoolExecutor(len(os.sched_getaffinity(0))) as pool:
    sys.exit(0 if all(list(pool.map(passes, SOURCES))) else 1)
