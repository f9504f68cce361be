"""Writes and exports manuscripts in the window of the example host, with the keys and clicks that a user gives.

A test plug-in in the host, "reporting", tells what the windows show.
"""

import json
import os
import plistlib
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from windows import PATIENCE, Display, wait_until

HOST = os.environ["ORVANE_HOST"]
PLUGINS = os.environ["ORVANE_TEST_PLUGINS"]
HOST_PLUGINS = os.environ["ORVANE_HOST_PLUGINS"]
MANUSCRIPTS = Path(os.environ["ORVANE_MANUSCRIPTS"])
SETTINGS = "org.orvane.test.reporting.plist"


class Host:
    """The program, running in a window."""

    def __init__(self, display, home, plugins, *arguments):
        self.display = display
        self.environment = {**display.environment, "ORVANE_DEFAULTS_FOLDER": str(home / "defaults"),
                            "ORVANE_PLUGIN_PATH": str(plugins)}
        self.process = subprocess.Popen([HOST, *map(str, arguments)], env=self.environment, stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, text=True)

    def windows(self):
        self.process.stdin.write("\n")
        self.process.stdin.flush()
        line = self.process.stdout.readline()
        assert line, f"the program ended with {self.process.wait(PATIENCE)}"
        return json.loads(line)

    def find(self, name):
        """The visible window of this name, or None."""
        return next((window for window in self.windows() if window["name"] == name), None)

    def window(self, name):
        """Waits until the window of this name has the keyboard."""
        def active():
            window = self.find(name)
            return window if window and window["active"] else None
        return wait_until(active, f"the window {name}")

    def widgets(self, window):
        """Waits for a window, and gives its widgets by name or, where they have none, by text."""
        return {widget["name"] if widget["name"] and not widget["name"].startswith("qt_") else
                widget["text"].replace("&", ""): widget for widget in self.window(window)["widgets"]}

    def text(self, window, widget):
        found = self.find(window) or {"widgets": []}
        return next((entry["text"] for entry in found["widgets"] if entry["name"] == widget), None)

    def wait_for_text(self, window, widget, piece):
        wait_until(lambda: piece in (self.text(window, widget) or ""), f"“{piece}” in {widget}")

    def click(self, window, widget):
        self.display.input("mousemove", *self.widgets(window)[widget]["center"], "click", 1)

    def keys(self, *names):
        self.display.input("key", *names)

    def type(self, text):
        self.display.input("type", "--delay", "5", text)

    def replace(self, window, shortcut, widget, text):
        """Types a text in the place of another one, in the field that a shortcut leads to."""
        self.window(window)
        self.keys(shortcut)
        wait_until(lambda: self.widgets(window)[widget]["focus"], f"{widget} to have the focus")
        self.keys("ctrl+a")
        self.type(text)

    def start_export(self):
        """Clicks on Export in the dialog, once it lets the user do that."""
        wait_until(lambda: self.widgets("exportDialog")["exportButton"]["enabled"], "the export button")
        self.click("exportDialog", "exportButton")

    def result(self):
        wait_until(lambda: self.text("manuscriptWindow", "resultSentence"), "a result")
        return self.text("manuscriptWindow", "resultSentence")

    def end(self):
        """The exit code of the program, which is about to end."""
        return self.process.wait(PATIENCE)

    def stop(self):
        self.process.kill()
        self.process.communicate()


class HostWindow(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.display = Display("1280x800")
        cls.addClassCleanup(cls.display.close)

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = Path(folder.name)
        self.destination = self.home / "Export"
        self.destination.mkdir()
        self.manuscript = self.home / "manuscript"
        shutil.copytree(MANUSCRIPTS / "the-lamplighters-ledger", self.manuscript)

    def start(self, *arguments, plugins=PLUGINS):
        host = Host(self.display, self.home, plugins, *arguments)
        self.addCleanup(host.stop)
        return host

    def open(self, **options):
        host = self.start("open", self.manuscript, **options)
        host.window("manuscriptWindow")
        return host

    def choose_export(self, host):
        host.window("manuscriptWindow")
        host.keys("ctrl+e")
        host.window("exportDialog")
        host.replace("exportDialog", "alt+o", "exportFolder", str(self.destination))

    def files(self):
        return {path.name: path.read_bytes() for path in self.destination.iterdir()}

    def files_of_the_command_line(self, plugin="reporting", plugins=PLUGINS):
        """What the command exports with the settings that are saved."""
        folder = self.home / f"CommandLine-{plugin}"
        folder.mkdir()
        subprocess.run(
            [HOST, "export", self.manuscript, "--plugin", plugin, "--to", folder], check=True,
            capture_output=True, timeout=PATIENCE,
            env={**os.environ, "ORVANE_DEFAULTS_FOLDER": str(self.home / "defaults"),
                 "ORVANE_PLUGIN_PATH": str(plugins)})
        return {path.name: path.read_bytes() for path in folder.iterdir()}

    def settings(self):
        return plistlib.loads((self.home / "defaults" / SETTINGS).read_bytes())

    def test_exports_cancels_replaces_and_aborts(self):
        host = self.open()

        # Every control of the panel, the last one without leaving it.
        self.choose_export(host)
        host.click("exportDialog", "upperCase")
        host.replace("exportDialog", "alt+m", "milliseconds", "5")
        host.replace("exportDialog", "alt+h", "heading", "From the panel")
        host.keys("Return")
        self.assertEqual(host.result(), "12 files exported to “Export”.")
        self.assertEqual(self.settings(), {"heading": "From the panel", "milliseconds": 5, "upperCase": True})
        first = self.files()
        self.assertEqual(first, self.files_of_the_command_line())
        self.assertTrue(first["001 The Key.rep"].startswith(b"FROM THE PANEL: THE KEY\n"))

        # The sheet lists exactly the files that exist; cancelled, nothing is replaced.
        for path in list(self.destination.iterdir())[::2]:
            path.unlink()
        left = {path.name: b"old" for path in self.destination.iterdir()}
        for path in self.destination.iterdir():
            path.write_bytes(b"old")
        self.choose_export(host)
        host.start_export()
        question = host.window("overwritePanel")
        listed = [row[0] for widget in question["widgets"] for row in widget["rows"] if widget["name"]]
        self.assertEqual(sorted(set(listed)), sorted(left))
        host.click("overwritePanel", "cancelButton")
        host.wait_for_text("manuscriptWindow", "resultSentence", "Nothing was exported")
        self.assertEqual(self.files(), left)

        # Again, and replaced.
        self.choose_export(host)
        host.start_export()
        host.click("overwritePanel", "replaceButton")
        host.wait_for_text("manuscriptWindow", "resultSentence", "12 files exported")
        self.assertEqual(self.files(), first)

        # Aborted in the middle: what is there is whole.
        for path in self.destination.iterdir():
            path.unlink()
        self.choose_export(host)
        host.replace("exportDialog", "alt+m", "milliseconds", "300")
        host.start_export()
        wait_until(lambda: len(self.files()) > 1, "files of the export")
        host.click("progressPanel", "abortButton")
        host.wait_for_text("manuscriptWindow", "resultSentence", "aborted after")
        aborted = self.files()
        self.assertLess(len(aborted), 12)
        self.assertEqual(aborted, {name: first[name] for name in aborted})

        # Started anew, with the settings and the folder of the last time.
        host.keys("ctrl+q")
        self.assertEqual(host.end(), 0)
        host = self.open()
        host.keys("ctrl+e")
        widgets = host.widgets("exportDialog")
        self.assertEqual(widgets["heading"]["text"], "From the panel")
        self.assertEqual(widgets["milliseconds"]["text"], "300")
        self.assertEqual(widgets["exportFolder"]["text"], str(self.destination))
        host.replace("exportDialog", "alt+m", "milliseconds", "0")
        host.start_export()
        host.click("overwritePanel", "replaceButton")
        host.wait_for_text("manuscriptWindow", "resultSentence", "12 files exported")
        self.assertEqual(self.files(), first)

    def test_exports_the_same_files_as_the_command_in_every_format(self):
        plugins = self.home / "plugins"
        plugins.mkdir()
        for path in [*Path(PLUGINS).iterdir(), *Path(HOST_PLUGINS).iterdir()]:
            (plugins / path.name).symlink_to(path)
        host = self.open(plugins=plugins)
        for plugin, first_letters in (("html", "Web"), ("latex", "LaTeX"), ("plain-text", "Plain")):
            with self.subTest(plugin):
                for path in self.destination.iterdir():
                    path.unlink()
                self.choose_export(host)
                host.keys("alt+f")
                host.type(first_letters)
                wait_until(lambda: host.widgets("exportDialog")["exportFormat"]["text"].startswith(first_letters),
                           first_letters)
                host.start_export()
                host.wait_for_text("manuscriptWindow", "resultSentence", "exported to")
                self.assertEqual(self.files(), self.files_of_the_command_line(plugin, plugins))
                host.click("manuscriptWindow", "Dismiss")

    def test_cancelling_the_dialog_leaves_the_settings_as_they_were(self):
        host = self.open()
        self.choose_export(host)
        host.replace("exportDialog", "alt+h", "heading", "Not wanted")
        host.keys("Escape")
        host.window("manuscriptWindow")
        host.keys("ctrl+e")
        self.assertEqual(host.widgets("exportDialog")["heading"]["text"], "none")
        self.assertFalse((self.home / "defaults" / SETTINGS).exists())

    def test_marks_names_that_are_repeated_existing_or_refused(self):
        host = self.open()
        (self.destination / "002 Forty Lamps.rep").write_text("old", encoding="utf-8")
        self.choose_export(host)

        def notes():
            return {row[0]: row[1] for row in host.widgets("exportDialog")["names"]["rows"] if row[1]}

        wait_until(lambda: len(notes()) == 2, "two notes")
        self.assertEqual(notes()["002 Forty Lamps.rep"], "A file with this name exists.")
        self.assertIn("Windows", notes()["004 Tide:Ebb.rep"])
        host.replace("exportDialog", "alt+n", "fileNames", "Chapter")
        wait_until(lambda: "11 documents" in notes().get("Chapter.rep", ""), "the note on repeated names")
        self.assertFalse(host.widgets("exportDialog")["exportButton"]["enabled"])

    def test_edits_saves_and_asks_before_changes_are_lost(self):
        host = self.open()
        chapter = self.manuscript / "01-the-key.txt"
        before = chapter.read_bytes()
        host.keys("ctrl+2")
        wait_until(lambda: host.widgets("manuscriptWindow")["editor"]["focus"], "the editor to have the focus")
        host.keys("ctrl+Home")
        host.type("New words. ")
        host.wait_for_text("manuscriptWindow", "preview", "New words.")
        self.assertEqual(chapter.read_bytes(), before)
        host.keys("ctrl+q")
        wait_until(lambda: any(window["title"] == "Unsaved Changes" for window in host.windows()), "the question")
        host.keys("Escape")
        host.window("manuscriptWindow")
        host.keys("ctrl+s")
        wait_until(lambda: chapter.read_bytes() == b"New words. " + before, "the file to be saved")
        self.assertFalse(host.window("manuscriptWindow")["modified"])
        host.keys("ctrl+q")
        self.assertEqual(host.end(), 0)

    def test_shows_the_errors_of_a_plug_in_in_the_place_of_the_preview(self):
        (self.manuscript / "01-the-key.txt").write_text("unwritable", encoding="utf-8")
        host = self.open()

        def notes():
            return [widget["text"] for widget in host.window("manuscriptWindow")["widgets"]]

        wait_until(lambda: any("this text can't be written" in note for note in notes()), "the error")
        host.keys("ctrl+Next")
        host.wait_for_text("manuscriptWindow", "preview", "none: Forty Lamps")

    def test_opens_a_manuscript_by_its_folder_and_offers_it_again(self):
        host = self.start()
        host.window("manuscriptWindow")
        host.keys("ctrl+o")
        host.window("QFileDialog")
        host.type(str(self.manuscript))
        host.wait_for_text("QFileDialog", "fileNameEdit", str(self.manuscript))
        host.keys("Tab")  # closes the list of completions, if it is open
        host.keys("alt+c")
        wait_until(lambda: "Lamplighter" in host.window("manuscriptWindow")["title"], "the manuscript")
        host.keys("ctrl+q")
        self.assertEqual(host.end(), 0)
        host = self.start()
        host.click("manuscriptWindow", "manuscript")
        wait_until(lambda: "Lamplighter" in host.window("manuscriptWindow")["title"], "the manuscript")


if __name__ == "__main__":
    unittest.main()
