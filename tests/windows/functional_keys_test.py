"""The functional keys as installed, on keyboards of other countries: what the manual's table names is what does it, by real keys."""
import re
import unittest

from desk import TOP, Program
from keyboard import SHIFT_1, UNDO
from x11_desk import X11Desk

LAYOUTS = {"QWERTY, American": ("us", ""), "QWERTY, British": ("gb", ""), "QWERTY, Spanish": ("es", ""), "QWERTZ, German": ("de", ""),
           "AZERTY, French": ("fr", ""), "Dvorak": ("us", "dvorak"), "Russian": ("ru", "")}
SYMBOLS = {";": "semicolon", "=": "equal", "]": "bracketright", "ñ": "ntilde", "¡": "exclamdown", "ö": "odiaeresis", "´": "dead_acute",
           "ж": "Cyrillic_zhe", "з": "Cyrillic_ze"}  # a letter of English is its own symbol
DIGIT_1, DIGIT_2, DIGIT_3 = 10, 11, 12  # counter keys 31, 32, 33 on every layout
LETTERS_FOR_SHIFT_1 = {"AZERTY, French": 25, "Dvorak": 5}  # the taxon of the letter at the place of Shift-1: m, s


def table():
    """keyboard -> (Shift-1, Shift-2, Save), as the manual has them; "" for none."""
    page = (TOP / "docs/manual/key_settings.md").read_text(encoding="utf-8")
    rows = re.findall(r"^\| ([^|]+) \| ([^|]+) \| ([^|]+) \| `BkSp` \| ([^|]+) \|$", page, re.M)
    return {row[0]: ["" if cell == "none" else cell.strip("`") for cell in row[1:]] for row in rows}


class FunctionalKeysTest(unittest.TestCase):
    def open_on(self, keyboard):
        layout, variant = LAYOUTS[keyboard]
        self.desk = X11Desk(layout=layout, variant=variant)
        self.addCleanup(self.desk.close)
        self.program = Program(self.desk)
        self.addCleanup(self.program.end)
        self.program.begin("1")

    def key_that_types(self, character):
        return self.desk.key_that_types(SYMBOLS.get(character, character))

    def saved_by(self, key):
        saved = self.program.save_as(self.program.work / "functional.csv", key)
        lines = saved.split(b"\r\n")[2:137]
        return {slot: int(line.rsplit(b",", 1)[1]) for slot, line in enumerate(lines, 1) if not line.endswith(b",0")}

    def check(self, keyboard):
        self.open_on(keyboard)
        shift_1, shift_2, save = table()[keyboard]
        self.program.press(DIGIT_1, DIGIT_1, DIGIT_1, UNDO)
        self.program.chord(self.key_that_types(shift_2), DIGIT_3)
        expected = {31: 2, 33 + 45: 1}
        if shift_1:
            self.program.chord(self.key_that_types(shift_1), DIGIT_2)
            expected[32 + 45] = 1
        else:
            self.program.press(SHIFT_1)
            expected[LETTERS_FOR_SHIFT_1[keyboard]] = 1
        self.assertEqual(self.saved_by(self.key_that_types(save)), expected)

    def test_the_table_has_each_keyboard(self):
        self.assertEqual(set(table()), set(LAYOUTS))

    def test_american(self):
        self.check("QWERTY, American")

    def test_british(self):
        self.check("QWERTY, British")

    def test_spanish(self):
        self.check("QWERTY, Spanish")

    def test_german(self):
        self.check("QWERTZ, German")

    def test_french(self):
        self.check("AZERTY, French")

    def test_dvorak(self):
        self.check("Dvorak")

    def test_russian(self):
        self.check("Russian")


if __name__ == "__main__":
    unittest.main()
