"""A new user's first start: the keyboard is made known by twelve key presses, then the first sample is named and counting starts."""
import csv
import unittest

from desk import START, Desk, Program
from keyboard import ENTER, NAMED_KEY_CODES, NAMED_KEYS, PAD

FIRST_NAMED_ROW = 51


class FirstRunTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.program = Program(self.desk, first_run=True)
        self.addCleanup(self.program.end)
        self.settings = self.program.folder / "References/KeySetting.csv"
        self.as_installed = self.settings.read_bytes()
        self.program.window("Initialize")

    def named_codes(self):
        rows = list(csv.reader(self.settings.read_text(encoding="ascii").splitlines()))
        return [row[1] for row in rows[FIRST_NAMED_ROW:]]

    def test_twelve_presses_then_a_name_then_counting(self):
        program = self.program
        self.assertEqual(self.named_codes(), ["999"] * 12)
        self.assertEqual(self.desk.titles(), ["Initialize"], "nothing else is on the screen")
        program.press(*NAMED_KEYS)
        program.wait_focus("Initialize", "OK")  # it has the keyboard after the twelfth
        self.assertEqual(self.named_codes(), ["999"] * 12, "nothing is stored before OK")
        program.press(ENTER)
        self.desk.gone("Initialize")
        self.assertEqual(self.named_codes(), [str(code) for code in NAMED_KEY_CODES])
        expected = self.as_installed
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
        program.press(*NAMED_KEYS)
        program.click("Initialize", "OK")
        self.desk.gone("Initialize")
        self.program.window(START)
        self.assertEqual(self.named_codes(), [str(code) for code in NAMED_KEY_CODES])
        program.restart()
        program.begin("1")
        self.assertEqual(self.desk.windows("Initialize"), [])


if __name__ == "__main__":
    unittest.main()
