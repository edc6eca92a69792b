"""A new user's first start: the keyboard is made known by twelve key presses, then the first sample is named and counting starts."""
import csv
import unittest

from desk import NAMED_KEY_CODES, PAD, Desk, Program

# Shift, Ctrl, Delete, BkSp, Esc, Enter, Space, F1, Left, Up, Right, Down, by their X key codes; but a bare 9 is the digit to xdotool.
NAMED_KEYS = [50, 37, 119, 22, "Escape", 36, 65, 67, 113, 111, 114, 116]
ENTER = 36
FIRST_NAMED_ROW = 51


class FirstRunTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.program = Program(self.desk, first_run=True)
        self.addCleanup(self.program.end)
        self.settings = self.program.folder / "References/KeySetting.csv"

    def named_codes(self):
        rows = list(csv.reader(self.settings.read_text(encoding="ascii").splitlines()))
        return [row[1] for row in rows[FIRST_NAMED_ROW:]]

    def test_twelve_presses_then_a_name_then_counting(self):
        program = self.program
        as_installed = self.settings.read_bytes()
        self.assertEqual(self.named_codes(), ["999"] * 12)
        self.desk.window("^Initialize$")
        self.assertEqual(self.desk.windows(r"^Marlbrook 2\.7"), [], "nothing else is on the screen")
        program.press(*NAMED_KEYS, delay=40)
        self.assertEqual(self.named_codes(), ["999"] * 12, "nothing is stored before OK")
        program.press(ENTER)  # OK has the keyboard after the twelfth
        self.desk.gone("^Initialize$")
        self.assertEqual(self.named_codes(), [str(code) for code in NAMED_KEY_CODES])
        expected = as_installed
        for code in NAMED_KEY_CODES:
            expected = expected.replace(b",999,", b",%d," % code, 1)
        self.assertEqual(self.settings.read_bytes(), expected, "and nothing else in the file has changed")

        program.begin("12.5")
        program.press(*PAD)
        saved = program.save_as(program.work / "first.csv").decode().split("\r\n")
        self.assertEqual(saved[1], '"Key index","Subtotal-1","Subtotal-2","Sample name","12.5"')
        self.assertEqual(saved[2:137], [f'{slot},0,0,"---",{int(slot <= 45)}' for slot in range(1, 136)])

    def test_ok_by_a_click_and_the_next_start_asks_no_more(self):
        program = self.program
        window = self.desk.window("^Initialize$")
        program.press(*NAMED_KEYS, delay=40)
        program.click(window, (7200, 5660), 3600, 5290)  # OK
        self.desk.gone("^Initialize$")
        self.desk.window(r"^Marlbrook 2\.7$")
        self.assertEqual(self.named_codes(), [str(code) for code in NAMED_KEY_CODES])
        program.restart()
        program.begin("1")
        self.assertEqual(self.desk.windows("^Initialize$"), [])


if __name__ == "__main__":
    unittest.main()
