"""Dialogs by the keyboard alone: Enter is OK, Esc is Cancel, and a key that is still held when its dialog has gone does nothing more."""
import time
import unittest

from desk import PAD, Desk, Program

ENTER = 36  # X key code
NEXT_SAMPLE = (2480, 7720)


class DialogsTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.program = Program(self.desk)
        self.addCleanup(self.program.end)

    def saved_rows(self, path):
        return self.program.save_as(path).decode().split("\r\n")

    def test_enter_takes_a_name_and_escape_takes_nothing(self):
        program, path = self.program, self.program.work / "core.csv"
        program.begin("12.5")  # by Enter
        program.press(PAD[0])
        program.click_main(*NEXT_SAMPLE)
        self.desk.window(r"^Marlbrook 2\.7$")
        self.desk.xdotool("type", "--delay", 30, "15")
        self.desk.xdotool("key", "Escape")
        self.desk.gone(r"^Marlbrook 2\.7$")
        program.press(PAD[0])
        rows = self.saved_rows(path)
        self.assertTrue(rows[1].endswith('"Sample name","12.5"'), rows[1])
        self.assertEqual(rows[2], '1,0,0,"---",2')

    def test_enter_in_a_note_is_a_new_line(self):
        program, path = self.program, self.program.work / "core.csv"
        program.begin("12.5")
        program.press(PAD[0])
        program.click_main(*NEXT_SAMPLE)
        self.desk.window(r"^Marlbrook 2\.7$")
        self.desk.xdotool("type", "--delay", 30, "15")
        self.desk.xdotool("key", "Tab", "sleep", 0.1, "key", "End", "sleep", 0.1, "key", "Return", "sleep", 0.1, "key", "x")
        self.assertTrue(self.desk.windows(r"^Marlbrook 2\.7$"), "the window has closed")
        self.desk.xdotool("key", "Tab", "sleep", 0.1, "key", "Return")
        self.desk.gone(r"^Marlbrook 2\.7$")
        program.press(PAD[0])
        saved = self.program.save_as(path).decode()
        self.assertIn("Note: \r\nx\r\nLast saved", saved)

    def test_enter_held_on_is_not_the_next_windows_key(self):
        settings = self.program.folder / "References/KeySetting.csv"
        settings.write_text(settings.read_text().replace('"=",187,', '"[Enter]",13,'))
        self.program.restart()
        start = self.desk.window(r"^Marlbrook 2\.7$")
        self.program.click(start, (7200, 2560), 4700, 1420)
        time.sleep(0.3)
        self.desk.xdotool("type", "--delay", 30, "12.5")
        self.program.hold(ENTER)
        time.sleep(1.0)
        self.program.release(ENTER)
        self.desk.window(r"^Marlbrook 2\.7\.5$")
        self.assertEqual(self.desk.windows("^Save as$"), [], "the save key was heard")
        self.program.press(ENTER)
        self.desk.window("^Save as$")


if __name__ == "__main__":
    unittest.main()
