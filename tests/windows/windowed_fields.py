"""Edits bound token fields in a real window, on a display of its own, with the keyboard and the mouse.

Pictures of the fields, in two languages, two palettes, two scales and both directions, are left in the folder
ORVANE_PICTURES.
"""

import json
import os
import select
import time
import unittest
from pathlib import Path

from windows import Display, Program, expect_palette

PICTURES = Path(os.environ["ORVANE_PICTURES"])
PROGRAM = os.environ["ORVANE_WINDOWED_FIELDS"]


class Fields(Program):
    """A run of the dialog."""

    def __init__(self, display, *options, **keywords):
        super().__init__(display, PROGRAM, *options, **keywords)
        self.dialog = self.window("fields")
        self.height = self.dialog["controls"]["first"]["size"][1]

    def press(self, *keys):
        self.display.input("key", "--delay", 30, *keys)

    def type(self, text):
        self.display.input("type", "--delay", 20, text)

    def place(self, control, x):
        """A point of a control at a distance from its left edge, or from its right edge where that is negative."""
        (left, top), (width, height) = (self.dialog["controls"][control][key] for key in ("place", "size"))
        return left + (x if x >= 0 else width + x), top + height // 2

    def point(self, control, x):
        self.display.input("mousemove", "--window", self.dialog["id"], *self.place(control, x))

    def drag(self, source, source_x, target, target_x):
        """Drags with the mouse, in steps as a hand makes them."""
        self.point(source, source_x)
        self.display.input("mousedown", 1)
        (x, y), (end_x, end_y) = self.place(source, source_x), self.place(target, target_x)
        for step in range(1, 11):
            self.display.input("mousemove", "--window", self.dialog["id"],
                               x + (end_x - x) * step // 10, y + (end_y - y) * step // 10)
            time.sleep(0.05)
        self.display.input("mouseup", 1)

    def said(self):
        """What the program says until it has been silent for a second."""
        lines = b""
        while select.select([self.process.stdout], [], [], 1.0)[0]:
            lines += os.read(self.process.stdout.fileno(), 4096) # a reader with a buffer would hide lines from `select`
        return [json.loads(line) for line in lines.splitlines()]

    def stored(self):
        """The values that have been stored, each as it was stored last."""
        return {message["stored"]: message["value"] for message in self.said() if "stored" in message}


class WindowedFields(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.display = Display("640x480")
        cls.addClassCleanup(cls.display.close)

    def start(self):
        fields = Fields(self.display)
        self.addCleanup(fields.process.stdout.close)
        self.addCleanup(fields.kill)
        return fields

    def test_a_token_that_is_dragged_to_another_field_is_stored_there_and_gone_here(self):
        fields = self.start()
        fields.drag("first", 30, "second", 150)
        stored = fields.stored()
        self.assertEqual(stored["first"], [" - ", "<2>"])
        self.assertEqual("".join(stored["second"]).count("<5>"), 1)
        self.assertEqual("".join(stored["second"]).replace("<5>", ""), "Part <1>\nb")

    def test_a_token_that_is_dragged_to_a_line_edit_is_stored_there_as_its_text(self):
        fields = self.start()
        fields.drag("first", 30, "text", 200)
        self.assertEqual(fields.stored(), {"first": [" - ", "<2>"], "text": "plainExport Name"})

    def test_return_completes_before_it_presses_the_default_button(self):
        fields = self.start()
        fields.press("alt+f", "End")
        fields.type(" la")
        fields.press("Return")
        self.assertEqual(fields.said(), [])
        fields.press("Return")
        self.assertEqual(fields.said(), [{"stored": "first", "value": ["<5>", " - ", "<2>", " ", "<4>"]},
                                         {"pressed": "default button"}])

    def test_what_is_typed_becomes_a_token_when_the_focus_leaves(self):
        fields = self.start()
        fields.press("alt+f", "ctrl+a")
        fields.type("x<1>y Number")
        fields.press("Escape", "Tab", "Tab")
        self.assertEqual(fields.stored(), {"first": ["x", "<1>", "y ", "<1>"]})

    def test_the_button_inserts_a_token_where_the_cursor_is(self):
        fields = self.start()
        fields.press("alt+f", "Home")
        fields.point("first", -fields.height // 2)
        self.display.input("click", 1)
        time.sleep(0.3)
        fields.press("Down", "Down", "Return", "alt+s")
        self.assertEqual(fields.stored(), {"first": ["<4>", "<5>", " - ", "<2>"]})

    def test_the_context_menu_has_mouse_and_keyboard(self):
        fields = self.start()
        fields.point("first", 30)
        self.display.input("click", 3)
        time.sleep(0.3)
        fields.press("t")  # cuts the token
        time.sleep(0.2)
        fields.press("alt+s", "End", "Menu")
        time.sleep(0.3)
        fields.press("p", "alt+x")
        self.assertEqual(fields.stored(), {"first": [" - ", "<2>"], "second": ["Part ", "<1>", "\nb", "<5>"]})


class Appearance(unittest.TestCase):
    def test_looks_right_in_every_language_palette_scale_and_direction(self):
        for scale in (1, 2):
            display = Display(f"{scale * 520}x{scale * 420}")
            self.addCleanup(display.close)
            for name, options in {
                "en-light": [],
                "de-dark": ["--language", "de", "--dark"],
                "en-dark-rtl": ["--dark", "--rtl"],
                "de-light-rtl": ["--language", "de", "--rtl"],
            }.items():
                with self.subTest(scale=scale, name=name):
                    self.look(display, scale, name, options)

    def look(self, display, scale, name, options):
        fields = Fields(display, *options, scale=scale)
        self.addCleanup(fields.process.stdout.close)
        self.addCleanup(fields.kill)
        picture = f"fields-{name}-{scale}00"
        expect_palette(display, PICTURES / f"{picture}.png", "--dark" in options)
        fields.press("alt+f", "End")
        fields.type(" n")
        time.sleep(0.3)
        display.picture(PICTURES / f"{picture}-list.png")
        fields.press("Escape", "ctrl+a", "Menu")
        time.sleep(0.3)
        display.picture(PICTURES / f"{picture}-menu.png")
        fields.press("Escape")
        fields.point("first", fields.height // 2 if "--rtl" in options else -fields.height // 2)
        display.input("click", 1)
        time.sleep(0.3)
        display.picture(PICTURES / f"{picture}-button.png")
        fields.kill()


if __name__ == "__main__":
    unittest.main()
