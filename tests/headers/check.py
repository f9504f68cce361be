"""Compiles headers: check.py alone|together HEADER... -- COMMAND...

Every command compiles each header by itself, or all of them in one source. As many run at a time as there are cores.
"""

import concurrent.futures
import os
import shlex
import subprocess
import sys


def compile_source(command, headers):
    """What the compiler has to say to a source that includes the headers; empty when all is well."""
    source = "".join(f'#include "{header}"\n' for header in headers)
    run = subprocess.run(command + ["-fsyntax-only", "-x", "c++", "-"], input=source, check=False, capture_output=True,
                         text=True)
    if run.returncode == 0:
        return ""
    return f"{shlex.join(command)} on {' '.join(headers)}:\n{run.stdout}{run.stderr}"


def main():
    separator = sys.argv.index("--")
    headers = sys.argv[2:separator]
    commands = [shlex.split(command) for command in sys.argv[separator + 1:]]
    sources = [headers] if sys.argv[1] == "together" else [[header] for header in headers]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(lambda pair: compile_source(*pair), [(c, s) for c in commands for s in sources]))
    print(f"{len(headers)} headers {sys.argv[1]}, {len(commands)} ways")
    if not results or any(results):
        sys.exit("\n".join(filter(None, results)) or "there is nothing to compile")


main()
