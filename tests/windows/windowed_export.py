"""Exports sample manuscripts in real windows, on a display of its own, with the input that a user gives.

The program under test says on its standard output which sheets it shows. Pictures of both sheets, in two languages,
two palettes and two scales, are left in the folder ORVANE_PICTURES.
"""

import os
import tempfile
import time
import unittest
from pathlib import Path

from windows import Display, Program, expect_palette

PROGRAM = os.environ["ORVANE_WINDOWED_EXPORT"]
MANUSCRIPTS = Path(os.environ["ORVANE_MANUSCRIPTS"])
PICTURES = Path(os.environ["ORVANE_PICTURES"])

ENGLISH = "the-lamplighters-ledger"
GERMAN = "die-gezeitenuhr"
DOCUMENTS = 11


class Export(Program):
    """A run of the program."""

    def __init__(self, display, manuscript, destination, *options, **keywords):
        super().__init__(display, PROGRAM, MANUSCRIPTS / manuscript, destination, *options, **keywords)

    def end(self):
        """How the export ended, once the program has ended."""
        result = self.message()
        result.update(self.message())
        self.wait()
        return result


class WindowedExport(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.display = Display("800x560")
        cls.addClassCleanup(cls.display.close)

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.destination = Path(folder.name) / "Export"
        self.destination.mkdir()

    def run_export(self, *options, manuscript=ENGLISH, **keywords):
        export = Export(self.display, manuscript, self.destination, *options, **keywords)
        self.addCleanup(export.kill)
        return export

    def files(self):
        return {path.name: path.read_text(encoding="utf-8") for path in self.destination.iterdir()}

    def put_down_files(self):
        """Leaves files of an earlier export, with other contents."""
        self.run_and_finish()
        for path in self.destination.iterdir():
            path.write_text("old", encoding="utf-8")

    def run_and_finish(self):
        export = self.run_export("--milliseconds", "0")
        export.message()
        self.assertEqual(export.end()["end"], "finished")

    def expect_unchanged(self):
        self.assertEqual(set(self.files().values()), {"old"})
        self.assertEqual(len(self.files()), DOCUMENTS)

    def test_exports_into_an_empty_folder_without_asking(self):
        export = self.run_export()
        export.window("progressPanel")
        self.assertEqual(export.end(), {"end": "finished", "exported": DOCUMENTS, "documentChanged": False})
        self.assertEqual(len(self.files()), DOCUMENTS)

    def test_replaces_files_after_a_click(self):
        self.put_down_files()
        export = self.run_export()
        export.click(export.window("overwritePanel"), "replaceButton")
        export.window("progressPanel")
        self.assertEqual(export.end(), {"end": "finished", "exported": DOCUMENTS, "documentChanged": False})
        self.assertNotIn("old", self.files().values())

    def test_replaces_files_by_keyboard(self):
        self.put_down_files()
        export = self.run_export()
        export.window("overwritePanel")
        self.display.input("key", "alt+r")
        export.window("progressPanel")
        self.assertEqual(export.end()["end"], "finished")
        self.assertNotIn("old", self.files().values())

    def test_replaces_nothing_when_the_question_is_cancelled(self):
        self.put_down_files()
        cancelling = {
            "click": lambda export, sheet: export.click(sheet, "cancelButton"),
            "return": lambda export, sheet: self.display.input("key", "Return"),
            "escape": lambda export, sheet: self.display.input("key", "Escape"),
            "window manager": lambda export, sheet: self.display.input("key", "alt+F4"),
        }
        for name, cancel in cancelling.items():
            with self.subTest(name):
                export = self.run_export()
                cancel(export, export.window("overwritePanel"))
                self.assertEqual(export.end(), {"end": "cancelled", "documentChanged": False})
                self.expect_unchanged()

    def test_stops_after_the_current_document_when_it_is_aborted(self):
        aborting = {
            "click": lambda export, sheet: export.click(sheet, "abortButton"),
            "escape": lambda export, sheet: self.display.input("key", "Escape"),
            "window manager": lambda export, sheet: self.display.input("key", "alt+F4"),
        }
        for name, abort in aborting.items():
            with self.subTest(name):
                for path in self.destination.iterdir():
                    path.unlink()
                export = self.run_export("--milliseconds", "200")
                abort(export, export.window("progressPanel"))
                result = export.end()
                self.assertEqual(result["end"], "aborted")
                self.assertLess(result["exported"], DOCUMENTS)
                self.assertEqual(len(self.files()), result["exported"])

    def test_keeps_input_from_the_document_window_while_a_sheet_is_up(self):
        self.put_down_files()
        export = self.run_export("--milliseconds", "200")
        question = export.window("overwritePanel")
        self.display.input("mousemove", 120, 120, "click", 1, "type", "xyz")
        export.click(question, "replaceButton")
        export.window("progressPanel")
        self.display.input("mousemove", 120, 120, "click", 1, "type", "xyz")
        self.assertEqual(export.end(), {"end": "finished", "exported": DOCUMENTS, "documentChanged": False})


class Appearance(unittest.TestCase):
    """Takes the pictures, and sees that the sheets are as light or dark as they should be."""

    def test_looks_right_in_every_language_palette_and_scale(self):
        for scale in (1, 2):
            display = Display(f"{scale * 720}x{scale * 500}")
            self.addCleanup(display.close)
            for language, manuscript, folder_name in (("en", ENGLISH, "Manuscript"), ("de", GERMAN, "Manuskript")):
                with tempfile.TemporaryDirectory() as folder:
                    destination = Path(folder) / folder_name
                    destination.mkdir()
                    first = Export(display, manuscript, destination, "--milliseconds", "0")
                    first.message()
                    first.end()
                    for dark in (False, True):
                        with self.subTest(scale=scale, language=language, dark=dark):
                            self.take_pictures(display, language, manuscript, destination, dark, scale)

    def take_pictures(self, display, language, manuscript, destination, dark, scale):
        name = f"{language}-{'dark' if dark else 'light'}-{scale}00"
        options = ["--language", language, "--milliseconds", "150", *(["--dark"] if dark else [])]
        export = Export(display, manuscript, destination, *options, scale=scale)
        question = export.window("overwritePanel")
        expect_palette(display, PICTURES / f"overwrite-{name}.png", dark)
        export.click(question, "replaceButton")
        export.window("progressPanel")
        time.sleep(0.3)
        expect_palette(display, PICTURES / f"progress-{name}.png", dark)
        display.input("key", "Escape")
        self.assertEqual(export.end()["end"], "aborted")


if __name__ == "__main__":
    unittest.main()
