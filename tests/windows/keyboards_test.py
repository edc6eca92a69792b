"""Keyboards of other countries: each key of the pad is captured and counts its own slot; the quotation mark stays out of the file."""
import csv
import unittest

from desk import MAIN, Program
from keyboard import CTRL, DELETE, DOWN, ENTER, HOME, PAD, SHIFT, UP, chord, down_and_up
from x11_desk import X11Desk

KEY_SETTINGS = "Key settings"

# Of the keys that are installed as functional ones only p meets a pad key, on the Dvorak board, where the key beside E types it.
# Those that the dialog suggests beside them are in nobody's way.
INSTALLED = {186, 80, 8, 187}
FUNCTIONAL = {"Shift-1 key": UP, "Shift-2 key": DOWN, "Undo key": DELETE, "Save key": ENTER}
FUNCTIONAL_CODES = ["38", "40", "38", "46", "13"]

LETTER = 25  # the place of W
AZERTY = r"Are you an AZERTY keyboard user\?"
CAUTION = "Caution!"
ROUNDS = [lambda key: key % 7 + 1, lambda key: key // 7 + 1]  # presses of each key; together they tell every key from every other


class KeyboardsTest(unittest.TestCase):
    def open_on(self, layout, variant):
        self.layout = layout
        self.desk = X11Desk(layout=layout, variant=variant)
        self.addCleanup(self.desk.close)
        self.program = Program(self.desk)
        self.addCleanup(self.program.end)
        self.program.begin("1")
        self.pad = list(PAD)

    def open_dialog(self):
        self.program.click(MAIN, "Tools", role=None)
        self.program.control(MAIN, "Key settings")
        self.program.press(DOWN, DOWN, ENTER)
        self.program.window(KEY_SETTINGS)

    def capture(self, name, key):
        """Clicks into the box and presses the key once."""
        self.program.click(KEY_SETTINGS, name, role="text")
        self.program.press(key)

    def answer(self, title):
        """By the mouse: in its first moment a message takes no key."""
        self.program.click(title, "OK")
        self.desk.gone(title)

    def capture_pad(self):
        self.open_dialog()
        for name, key in FUNCTIONAL.items():
            self.capture(name, key)
        for place, key in enumerate(self.pad, 1):
            if place != 33:
                self.capture(f"Definition of key {place}", key)
        self.capture("Definition of key 33", self.pad[32])
        if self.layout == "fr":  # its 3 types the mark
            self.answer(AZERTY)
            self.pad[32] = 20  # the key beside the 0
            self.capture("Definition of key 33", self.pad[32])
        self.program.click(KEY_SETTINGS, "OK")
        self.desk.gone(KEY_SETTINGS)
        self.program.window(MAIN)

    def captured_codes(self):
        settings = self.program.folder / "References/KeySetting.csv"
        rows = list(csv.reader(settings.read_text(encoding="latin-1").splitlines()))
        self.assertEqual([row[1] for row in rows[46:51]], FUNCTIONAL_CODES)
        self.assertEqual([row[0] for row in rows[46:51]], ["[Up]", "[Down]", "[Up]", "[Delete]", "[Enter]"])
        return [int(row[1]) for row in rows[1:46]]

    def counts(self, saved):
        return [int(line.rsplit(b",", 1)[1]) for line in saved.split(b"\r\n")[2:137]]

    def press_pad(self, times):
        self.program.press(*[code for key, code in enumerate(self.pad, 1) for _ in range(times(key))])

    def count_by_every_key(self):
        path = self.program.work / "keys.csv"
        self.press_pad(ROUNDS[0])
        first = self.counts(self.program.save_as(path, key=ENTER))
        self.press_pad(ROUNDS[1])
        second = self.counts(self.program.save_again(path, key=ENTER))
        nothing = [0] * 90
        self.assertEqual(first, [ROUNDS[0](key) for key in range(1, 46)] + nothing)
        self.assertEqual(second, [ROUNDS[0](key) + ROUNDS[1](key) for key in range(1, 46)] + nothing)
        return path

    def refuse_the_mark(self, path, keys, title, letter):
        """In a name and in the note: a letter is taken, what the guarded key types after it is not."""
        self.program.click(MAIN, "Modify")
        for name in ["Name of taxon 1", "Note"]:
            self.program.click(MAIN, name, role="text")
            self.program.wait_focus(MAIN, name)
            self.desk.send(chord(CTRL, HOME) + down_and_up(HOME, LETTER) + chord(*keys))
            self.answer(title)
        self.program.click(MAIN, "Resume")
        saved = self.program.save_again(path, key=ENTER)
        cells = next(csv.reader([saved.split(b"\r\n")[2].decode()]))
        self.assertEqual(cells, ["1", "0", "0", letter + "---", "3"])
        note = saved.partition(b'"Note: ",')[2].partition(b'"---","---","---","Subtotal-1"')[0]
        self.assertTrue(note.startswith(f'"{letter}Created: '.encode()), note)
        self.assertEqual(note.count(b'"'), 2, note)

    def check(self, layout, variant="", clash=frozenset(), keys=(SHIFT, 11), title=CAUTION, letter="w"):
        self.open_on(layout, variant)
        self.capture_pad()
        codes = self.captured_codes()
        self.assertEqual(len(set(codes)), 45)
        self.assertEqual(INSTALLED & set(codes), clash)
        self.assertFalse(set(codes) & {int(code) for code in FUNCTIONAL_CODES})
        path = self.count_by_every_key()
        self.refuse_the_mark(path, keys, title, letter)

    def test_american(self):
        self.check("us", keys=(SHIFT, 48))

    def test_british(self):
        self.check("gb")

    def test_german(self):
        self.check("de")

    def test_french(self):
        self.check("fr", keys=(12,), title=AZERTY, letter="z")

    def test_spanish(self):
        self.check("es")

    def test_russian(self):
        self.check("ru", letter="ц")

    # Its mark is Shift with the key at the place of Q, which has a code of its own there (209): no guard knows it, and the mark is typed.
    # What is refused is the sign on Shift+2, as on every keyboard.
    def test_dvorak(self):
        self.check("us", "dvorak", clash={80}, letter=",")


if __name__ == "__main__":
    unittest.main()
