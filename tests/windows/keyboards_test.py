"""Keyboards of other countries: each key of the pad is captured and counts its own slot; the quotation mark stays out of the file."""
import csv
import time
import unittest

from desk import PAD, Desk, Program

KEY_SETTINGS = (8160, 6500)  # the design of the dialog, in twips
LEFTS = [734, 1272, 1810, 2430, 2968, 3506, 4126, 4664, 5202]
TOPS = [340, 725, 1200, 1585, 1970]

# Of the keys that are installed as functional ones only p meets a pad key, on the Dvorak board, where the key beside E types it.
# Those that the dialog suggests beside them are in nobody's way.
INSTALLED = {186, 80, 8, 187}
UP, DOWN, DELETE, ENTER = 111, 116, 119, 36  # Shift-1, Shift-2, Undo, Save, by their X key codes
FUNCTIONAL_CODES = ["38", "40", "38", "46", "13"]

SHIFT = 50
LETTER = 25  # the place of W
AZERTY = r"^Are you an AZERTY keyboard user\?$"
CAUTION = "^Caution!$"
ROUNDS = [lambda key: key % 7 + 1, lambda key: key // 7 + 1]  # presses of each key; together they tell every key from every other


def definition_box(place):
    in_band, size = (place - 1, 9) if place <= 27 else (place - 28, 6)
    column, row = in_band // size * 3 + in_band % 3, in_band % size // 3 + (2 if place <= 27 else 0)
    return 240 + LEFTS[column] + 260, 540 + TOPS[row] + 142


def functional_box(number):
    return 4680 + 530, 3680 + 620 + 380 * number + 150


class KeyboardsTest(unittest.TestCase):
    def open_on(self, layout, variant):
        self.layout = (layout, variant)
        self.desk = Desk(layout=layout, variant=variant)
        self.addCleanup(self.desk.close)
        self.program = Program(self.desk)
        self.addCleanup(self.program.end)
        self.program.begin("1")
        self.pad = list(PAD)

    def open_dialog(self):
        tools = self.program.point(self.program.main, (11400, 7980), 1300, -150, menu_bar=True)
        self.desk.xdotool("mousemove", "--window", self.program.main, *tools, "click", 1, "sleep", 0.3, "key", "Down", "Down", "Return")
        self.dialog = self.desk.window("^Key settings$")

    def capture(self, keys):
        """Clicks into the box at each of these places and presses the key once."""
        words = []
        for place, key in keys:
            words += ["mousemove", "--window", self.dialog, *self.program.point(self.dialog, KEY_SETTINGS, *place)]
            words += ["click", 1, "keydown", key, "keyup", key, "sleep", 0.02]
        self.desk.xdotool(*words)

    def answer(self, title):
        self.desk.window(title)
        time.sleep(0.4)  # in its first moment a message takes no key
        self.desk.xdotool("key", "Return")
        self.desk.gone(title)

    def capture_pad(self):
        self.open_dialog()
        self.capture([(functional_box(number), key) for number, key in enumerate([UP, DOWN, DELETE, ENTER])])
        self.capture([(definition_box(place), key) for place, key in enumerate(self.pad, 1) if place != 33])
        self.capture([(definition_box(33), self.pad[32])])
        if self.layout[0] == "fr":  # its 3 types the mark
            self.answer(AZERTY)
            self.pad[32] = 20  # the key beside the 0
            self.capture([(definition_box(33), self.pad[32])])
        self.program.click(self.dialog, KEY_SETTINGS, 6500, 6160)  # OK
        self.desk.gone("^Key settings$")
        self.desk.window(r"^Marlbrook 2\.7")

    def captured_codes(self):
        settings = self.program.folder / "References/KeySetting.csv"
        rows = list(csv.reader(settings.read_text(encoding="latin-1").splitlines()))
        self.assertEqual([row[1] for row in rows[46:51]], FUNCTIONAL_CODES)
        self.assertEqual([row[0] for row in rows[46:51]], ["[Up]", "[Down]", "[Up]", "[Delete]", "[Enter]"])
        return [int(row[1]) for row in rows[1:46]]

    def counts(self, saved):
        return [int(line.rsplit(b",", 1)[1]) for line in saved.split(b"\r\n")[2:137]]

    def press_pad(self, times):
        self.program.press(*[code for key, code in enumerate(self.pad, 1) for _ in range(times(key))], delay=2)

    def count_by_every_key(self):
        path = self.program.work / "keys.csv"
        self.press_pad(ROUNDS[0])
        self.desk.use_layout("us")  # for the name of the file
        first = self.counts(self.program.save_as(path, key=ENTER))
        self.desk.gone("^Save as$")
        self.desk.use_layout(*self.layout)
        self.press_pad(ROUNDS[1])
        second = self.counts(self.program.save_again(path, key=ENTER))
        nothing = [0] * 90
        self.assertEqual(first, [ROUNDS[0](key) for key in range(1, 46)] + nothing)
        self.assertEqual(second, [ROUNDS[0](key) + ROUNDS[1](key) for key in range(1, 46)] + nothing)
        return path

    def refuse_the_mark(self, path, keys, title, letter):
        """In a name and in the note: a letter is taken, what the guarded key types after it is not."""
        chord = [word for key in keys for word in ("keydown", key)] + [word for key in reversed(keys) for word in ("keyup", key)]
        self.program.click_main(3690, 7720)  # Modify
        for x, y in [(820, 2335), (1400, 6900)]:  # the name of slot 1, the note
            self.program.click_main(x, y)
            self.desk.xdotool("key", "ctrl+Home", "Home", "keydown", LETTER, "keyup", LETTER, *chord)
            self.answer(title)
        self.program.click_main(4650, 7720)  # Resume
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
