"""Follows a Markdown page in an empty folder: guide.py PAGE.md FOLDER

A block below a line with a file's name in bold is that file. A block of sh is run; a block of text behind it is what the
commands must have written.
"""

import os
import pathlib
import re
import subprocess
import sys


def blocks(text):
    """The name of the file that each block is, if any; its language; its content."""
    pattern = r"(?:^\*\*`(?P<name>[^`]+)`\*\*\n\n)?^```(?P<language>\w+)\n(?P<content>(?:.*\n)*?)```$"
    for match in re.finditer(pattern, text, re.MULTILINE):
        yield match["name"], match["language"], match["content"]


def follow(page, folder):
    output = None
    steps = 0
    for name, language, content in blocks(page.read_text(encoding="utf-8")):
        if name is not None:
            file = folder / name
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(content, encoding="utf-8")
            output = None
        elif language == "sh":
            run = subprocess.run(["bash", "-euo", "pipefail", "-c", content], cwd=folder, text=True,
                                 capture_output=True, check=False)
            if run.returncode != 0:
                sys.exit(f"{content}ended with {run.returncode}:\n{run.stdout}{run.stderr}")
            output = run.stdout
        elif language == "text":
            if output is None:
                sys.exit(f"no commands stand before what they should write:\n{content}")
            if output[-len(content):] != content:
                sys.exit(f"this was expected:\n{content}\nthis came:\n{output}")
            output = None
        else:
            sys.exit(f"a block of {language} is neither a file nor commands:\n{content}")
        steps += 1
    if steps == 0:
        sys.exit("the page has no steps")


def main():
    folder = pathlib.Path(sys.argv[2])
    folder.mkdir(parents=True)
    follow(pathlib.Path(sys.argv[1]), folder)


os.environ["LC_ALL"] = "C.UTF-8"
main()
