"""Dialogs by the keyboard alone: Enter is OK, Esc is Cancel, and a note has Enter for itself."""
import unittest

from desk import MAIN, START, Desk, Program
from keyboard import END, ENTER, ESCAPE, PAD, TAB


class DialogsTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.program = Program(self.desk)
        self.addCleanup(self.program.end)
        self.program.begin("12.5")  # by Enter
        self.program.press(PAD[0])
        self.program.click(MAIN, "Next sample")
        self.program.window(START)
        self.program.type("15")

    def saved_rows(self):
        return self.program.save_as(self.program.work / "core.csv").decode().split("\r\n")

    def to_main_window(self):
        self.desk.gone(START)
        self.program.window(MAIN)
        self.program.press(PAD[0])

    def test_escape_takes_nothing(self):
        self.program.press(ESCAPE)
        self.to_main_window()
        rows = self.saved_rows()
        self.assertTrue(rows[1].endswith('"Sample name","12.5"'), rows[1])
        self.assertEqual(rows[2], '1,0,0,"---",2')

    def test_enter_takes_the_name(self):
        self.program.press(ENTER)
        self.to_main_window()
        rows = self.saved_rows()
        self.assertTrue(rows[1].endswith('"Sample name","12.5","15"'), rows[1])
        self.assertEqual(rows[2], '1,0,0,"---",1,1')

    def test_enter_in_a_note_is_a_new_line(self):
        self.program.press(TAB, END, ENTER)
        self.program.type("x")
        self.program.control(START, "Note", "text").wait_text(self.program.text(START, "Note").rstrip("\nx") + "\nx")
        self.program.press(TAB, ENTER)
        self.to_main_window()
        self.assertIn("Note: \r\nx\r\nLast saved", "\r\n".join(self.saved_rows()))


if __name__ == "__main__":
    unittest.main()
