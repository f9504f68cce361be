"""Edits every setting of the example panel in a real window, on a display of its own, with the input that a user gives.

The program is the example as it is; a plug-in of Qt's reports where its controls are. Pictures of the panel, in two
languages, two palettes and two scales, are left in the folder ORVANE_PICTURES.
"""

import os
import plistlib
import tempfile
import time
import unittest
from pathlib import Path

from windows import Display, Program, expect_palette, wait_until

PICTURES = Path(os.environ["ORVANE_PICTURES"])
PROGRAM = os.environ["ORVANE_PANEL"]
PLUGINS = os.environ["ORVANE_REPORTER_PLUGINS"]
DOMAIN = "org.orvane.example.panel"
POINTS_PER_CENTIMETRE = 72 / 2.54


class Panel(Program):
    """A run of the example with the defaults of a folder."""

    def __init__(self, display, defaults, language="en_US", dark=False, **keywords):
        super().__init__(display, PROGRAM, "-style", "fusion", ORVANE_DEFAULTS_FOLDER=str(defaults),
                         LC_ALL=f"{language}.UTF-8", QT_PLUGIN_PATH=PLUGINS,
                         QT_QPA_GENERIC_PLUGINS="reporter:dark" if dark else "reporter", **keywords)
        self.panel = self.window("panel")

    def shown(self, control):
        """What a screen reader reads out as the value of a control."""
        return self.panel["controls"][control]["value"]

    def press(self, *keys):
        self.display.input("key", *keys)

    def type(self, mnemonic, text):
        """Replaces the text of the control that a key together with Alt leads to."""
        self.press(f"alt+{mnemonic}", "ctrl+a")
        self.display.input("type", "--delay", 5, text)
        self.press("Tab")

    def close(self):
        """Closes the window as a user does, who tries again when a window manager that has just started did not hear."""
        wait_until(lambda: self.press("alt+F4") or self.has_ended(), "the panel to close")
        self.wait()


class WindowedPanel(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.display = Display("800x800")
        cls.addClassCleanup(cls.display.close)

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.defaults = Path(folder.name)

    def start(self):
        panel = Panel(self.display, self.defaults)
        self.addCleanup(panel.kill)
        return panel

    def saved(self):
        return plistlib.loads((self.defaults / f"{DOMAIN}.plist").read_bytes())

    def edit_fonts(self, panel):
        """Chooses size, style, underline and text colour in the font panel."""
        panel.click(panel.panel, "fontField", times=2)
        fonts = wait_until(lambda: self.display.run("xdotool", "search", "--onlyvisible", "--name", "^Fonts$").stdout,
                           "the font panel")
        wait_until(lambda: self.display.active_window() == int(fonts), "the font panel to be active")
        panel.press("alt+z", "ctrl+a")
        self.display.input("type", "14")
        panel.press("Tab", "alt+s")
        self.display.input("type", "Bold")
        for key in ("alt+u", "alt+t"):
            panel.press(key)
            time.sleep(0.2)  # until the box is up again
        panel.press("Escape")
        panel.wait_for_keyboard(panel.panel)

    def window_at(self, x, y):
        """The uppermost window at a place of the screen, with its frame."""
        self.display.input("mousemove", x, y)
        return int(self.display.run("xdotool", "getmouselocation", "--shell").stdout.split("WINDOW=")[1].split()[0])

    def test_keeps_the_font_panel_above_the_window_that_is_clicked(self):
        panel = self.start()
        panel.click(panel.panel, "fontPanelButton")
        fonts = int(wait_until(lambda: self.display.run("xdotool", "search", "--onlyvisible", "--name", "^Fonts$").stdout,
                               "the font panel"))
        wait_until(lambda: self.display.active_window() == fonts, "the font panel to be active")
        self.display.input("windowmove", "--sync", fonts, 100, 100)
        beside = self.window_at(600, 700)
        above = wait_until(lambda: self.window_at(200, 250) not in (0, beside) and self.window_at(200, 250),
                           "the font panel to be there")
        self.display.input("mousemove", 600, 700, "click", 1)
        panel.wait_for_keyboard(panel.panel)
        self.assertEqual(self.window_at(200, 250), above)

    def test_saves_every_setting_that_was_edited(self):
        panel = self.start()
        panel.press("alt+n", "ctrl+a")
        self.display.input("type", "--delay", 20, "My la")
        panel.press("Tab", "Tab")
        panel.click(panel.panel, "convertSpacesBox", x=8)
        self.edit_fonts(panel)
        panel.click(panel.panel, "quotationsMenu")
        panel.press("End", "Return")
        panel.click(panel.panel, "headingsButton", x=8)
        panel.press("alt+g", "Right", "Right")
        panel.type("l", "80")
        panel.type("c", "UTF-16")
        panel.press("alt+p", "Down")
        panel.type("t", "1")
        panel.type("m", "2")
        panel.type("e", "3.5")
        panel.type("r", "0")
        panel.press("alt+r", "Up", "Up")
        panel.press("alt+i")
        self.display.input("type", "--delay", 5, "Draft of May")
        panel.close()

        saved = self.saved()
        self.assertEqual(saved.pop("fileName"), ["My ", "<4>"])
        self.assertIs(saved.pop("convertSpaces"), True)
        font = saved.pop("font")
        self.assertEqual(font["size"], 14)
        self.assertIn("Bold", font["name"])
        attributes = saved.pop("fontAttributes")
        for name in ("NSUnderline", "NSColor"):
            self.assertIn(name.encode("utf-16-be"), attributes)
        self.assertEqual(saved.pop("quotations"), "sv")
        self.assertEqual(saved.pop("format"), "headings")
        self.assertAlmostEqual(saved.pop("lineHeight"), 1.7, 6)
        self.assertEqual(saved.pop("lineLength"), 80)
        self.assertEqual(saved.pop("encoding"), "UTF-16")
        self.assertEqual(saved.pop("header"), "Draft of May")
        self.assertEqual(saved.pop("paper"), "{419.53, 595.28}")
        for side, length in {"top": 1, "bottom": 2, "left": 3.5, "right": 0.2}.items():
            self.assertAlmostEqual(saved["margin"].pop(side), length * POINTS_PER_CENTIMETRE, 4)
        self.assertEqual(saved, {"margin": {}})

    def test_shows_what_was_saved(self):
        self.start().close()
        first = self.saved()
        panel = self.start()
        self.assertEqual(panel.shown("topField"), "2.54")
        panel.press("alt+h")
        time.sleep(0.2)  # until the button is up again
        panel.press("alt+t", "Up", "alt+p", "Down")
        panel.close()

        panel = self.start()
        self.assertEqual(panel.shown("topField"), "2.64")
        self.assertEqual(panel.shown("paperMenu"), "A5")
        panel.press("alt+t", "Up")
        panel.close()
        changed = self.saved()
        self.assertAlmostEqual(changed["margin"].pop("top"), 2.74 * POINTS_PER_CENTIMETRE, 4)
        del first["margin"]["top"]
        self.assertEqual(changed, {**first, "paper": "{419.53, 595.28}", "format": "headings"})


class Appearance(unittest.TestCase):
    def test_looks_right_in_every_language_palette_and_scale(self):
        for scale in (1, 2):
            display = Display(f"{scale * 620}x{scale * 720}")
            self.addCleanup(display.close)
            for language in ("en_US", "de_DE"):
                for dark in (False, True):
                    with self.subTest(scale=scale, language=language, dark=dark), \
                            tempfile.TemporaryDirectory() as defaults:
                        panel = Panel(display, defaults, language, dark, scale=scale)
                        self.addCleanup(panel.kill)
                        name = f"panel-{language[:2]}-{'dark' if dark else 'light'}-{scale}00"
                        expect_palette(display, PICTURES / f"{name}.png", dark)
                        panel.close()


if __name__ == "__main__":
    unittest.main()
