"""Gives real input to programs in real windows, on a display of their own."""

import json
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
        # A server that starts over when its last client leaves refuses whoever comes meanwhile.
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", f"{size}x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as number:
            display = ":" + number.readline().strip()
        self.environment = {**os.environ, "DISPLAY": display, "HOME": self.home.name, "QT_QPA_PLATFORM": "xcb",
                            "XDG_RUNTIME_DIR": self.home.name, "LC_ALL": "C.UTF-8"}
        self.manager = subprocess.Popen(["openbox"], env=self.environment, stderr=subprocess.DEVNULL)
        try:
            wait_until(lambda: self.run("xdotool", "get_num_desktops").returncode == 0, "the window manager")
        except AssertionError:
            self.close()
            raise

    def run(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=PATIENCE)

    def input(self, *arguments):
        result = self.run("xdotool", *map(str, arguments))
        if result.returncode != 0:
            raise AssertionError(f"xdotool {arguments}: {result.stderr}")

    def active_window(self):
        return int(self.run("xdotool", "getactivewindow").stdout or 0)

    def picture(self, path):
        path.parent.mkdir(parents=True, exist_ok=True)
        result = self.run("import", "-window", "root", "-define", "png:exclude-chunks=date,time", str(path))
        if result.returncode != 0:
            raise AssertionError(result.stderr)
        return path

    def brightness(self, picture):
        """Of the middle of a picture, from 0 to 1."""
        result = self.run("convert", str(picture), "-gravity", "center", "-crop", "30%x20%+0+0",
                          "-format", "%[fx:mean]", "info:")
        return float(result.stdout)

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait(PATIENCE)
        self.home.cleanup()


class Program:
    """A run of a program that reports its windows on its standard output, as WindowReporter does."""

    def __init__(self, display, *command, scale=1, **environment):
        self.display = display
        self.process = subprocess.Popen(
            list(map(str, command)), stdout=subprocess.PIPE, text=True,
            env={**display.environment, "QT_SCALE_FACTOR": str(scale), **environment})

    def message(self):
        line = self.process.stdout.readline()
        if not line:
            raise AssertionError(f"the program ended with {self.process.wait(PATIENCE)}")
        return json.loads(line)

    def window(self, name):
        """Waits for a window, and until it has the keyboard."""
        message = self.message()
        assert message.get("window") == name, message
        self.wait_for_keyboard(message)
        return message

    def wait_for_keyboard(self, window):
        wait_until(lambda: self.display.active_window() == window["id"], f"{window['window']} to be active")
        time.sleep(0.2)  # until it is drawn

    def click(self, window, control, x=None, times=1):
        """Clicks into the middle of a control, or at a distance from its left edge."""
        (left, top), (width, height) = window["controls"][control]["place"], window["controls"][control]["size"]
        self.display.input("mousemove", "--window", window["id"], left + (width // 2 if x is None else x),
                           top + height // 2, "click", "--repeat", times, "--delay", 50, 1)

    def has_ended(self):
        """Whether the program ends within two seconds."""
        try:
            self.process.wait(2)
        except subprocess.TimeoutExpired:
            return False
        return True

    def wait(self):
        self.process.stdout.close()
        assert self.process.wait(PATIENCE) == 0

    def kill(self):
        self.process.kill()
        self.process.wait()


def expect_palette(display, path, dark):
    """Takes a picture, and again until the window is drawn as light or dark as it should be."""
    def is_as_expected():
        brightness = display.brightness(display.picture(path))
        return brightness < 0.4 if dark else brightness > 0.6

    wait_until(is_as_expected, f"a {'dark' if dark else 'light'} window in {path}")
