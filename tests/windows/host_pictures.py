"""Takes pictures of the example host, in two languages, two palettes and two scales, and leaves them in a folder.

Usage: host_pictures.py PROGRAM MANUSCRIPTS FOLDER
"""

import plistlib
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from windows import PATIENCE, Display, wait_until

HOST, MANUSCRIPTS, PICTURES = sys.argv[1], Path(sys.argv[2]), Path(sys.argv[3])

MANUSCRIPT = {"en": "the-lamplighters-ledger", "de": "die-gezeitenuhr"}
SEARCHED = {"window": {"en": "Lamplighter", "de": "Gezeitenuhr"}, "dialog": {"en": "Export “", "de": "exportieren"}}


def wait_for_window(display, title):
    """Waits until a window whose title holds the text has the keyboard, and is drawn."""
    wait_until(lambda: title in display.run("xdotool", "getactivewindow", "getwindowname").stdout, f"“{title}”")
    time.sleep(1)


def take_pictures(language, dark, scale):
    name = f"{language}-{'dark' if dark else 'light'}-{scale}00"
    display = Display(f"{scale * 1180}x{scale * 780}")
    with tempfile.TemporaryDirectory() as folder:
        home = Path(folder)
        (home / "Novel").mkdir()
        (home / "defaults").mkdir()
        (home / "defaults" / "orvane-host.plist").write_bytes(plistlib.dumps({
            "darkPalette": dark, "destination": str(home / "Novel"), "format": "html",
            "fileNames": ["<1>", " - ", "<2>"]}))
        host = subprocess.Popen(
            [HOST, "open", str(MANUSCRIPTS / MANUSCRIPT[language])],
            env={**display.environment, "QT_SCALE_FACTOR": str(scale), "LC_ALL": f"{language}.UTF-8",
                 "ORVANE_DEFAULTS_FOLDER": str(home / "defaults"), "HOME": str(home)})
        try:
            wait_for_window(display, SEARCHED["window"][language])
            display.picture(PICTURES / f"host-{name}.png")
            display.input("key", "ctrl+e")
            wait_for_window(display, SEARCHED["dialog"][language])
            display.picture(PICTURES / f"export-{name}.png")
            display.input("key", "Return")
            wait_until(lambda: (home / "Novel" / "index.html").exists(), "the export")
            wait_for_window(display, SEARCHED["window"][language])
            display.picture(PICTURES / f"exported-{name}.png")
        finally:
            host.terminate()
            host.wait(PATIENCE)
    display.close()


for each_scale in (1, 2):
    for each_language in MANUSCRIPT:
        for is_dark in (False, True):
            take_pictures(each_language, is_dark, each_scale)
