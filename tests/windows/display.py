"""A screen of its own, with a window manager, for tests and pictures of programs in real windows."""

import os
import subprocess
import tempfile
import time

PATIENCE = 20  # seconds


def wait_until(condition, what):
    """Waits until a function answers something, and answers that."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        answer = condition()
        if answer:
            return answer
        time.sleep(0.02)
    raise AssertionError(f"waited in vain for {what}")


class Display:
    """A screen with a window manager."""

    def __init__(self, size):
        self.home = tempfile.TemporaryDirectory()
        read_end, write_end = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", f"{size}x24", "-nolisten", "tcp"],
            pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as number:
            display = ":" + number.readline().strip()
        self.environment = {**os.environ, "DISPLAY": display, "HOME": self.home.name, "QT_QPA_PLATFORM": "xcb",
                            "XDG_RUNTIME_DIR": self.home.name, "LC_ALL": "C.UTF-8"}
        self.manager = subprocess.Popen(["openbox"], env=self.environment, stderr=subprocess.DEVNULL)
        wait_until(lambda: self.run("xdotool", "get_num_desktops").returncode == 0, "the window manager")

    def run(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=PATIENCE)

    def input(self, *arguments):
        result = self.run("xdotool", *map(str, arguments))
        if result.returncode != 0:
            raise AssertionError(f"xdotool {arguments}: {result.stderr}")

    def picture(self, path):
        path.parent.mkdir(parents=True, exist_ok=True)
        result = self.run("import", "-window", "root", "-define", "png:exclude-chunks=date,time", str(path))
        if result.returncode != 0:
            raise AssertionError(result.stderr)
        return path

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait(PATIENCE)
        self.home.cleanup()
