"""Two programs at a time: on one folder the second start is refused; on one sheet the later save wins, and neither is told."""
import copy
import unittest

from desk import MAIN, START, Desk, Program
from keyboard import ENTER, PAD, TAB
from spoken import wait_for


class TwoProgramsTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.first = Program(self.desk)
        self.addCleanup(self.first.end)
        self.first.begin("10")
        self.first.press(*PAD[:3])
        self.first.wait_total(3)

    def counts(self, saved):
        return [int(row.rsplit(b",", 1)[1]) for row in saved.split(b"\r\n")[2:137]]

    def test_the_second_start_on_one_folder_is_refused(self):
        second = copy.copy(self.first)  # the same command, in a process of its own
        second.start()
        second.control("Marlbrook", rf"(?s)Marlbrook is running already\..*{self.first.folder}")
        second.click("Marlbrook", "OK")
        wait_for("the end of the second program", lambda: second.process.poll() is not None)
        self.assertEqual(second.process.returncode, 0)
        self.first.window(MAIN)
        self.first.press(PAD[3])
        saved = self.first.save_as(self.first.work / "core.csv")
        self.assertEqual(self.counts(saved), [1] * 4 + [0] * 131)

    def test_a_lock_of_another_computer_is_told_with_its_name(self):
        lock = self.first.folder / ".marlbrook.lock"
        self.first.stop()
        lock.write_text("4242\nmarlbrook\nlaboratory-7\n" + 2 * (32 * "a" + "\n"))
        second = copy.copy(self.first)
        second.start()
        second.control("Marlbrook", r"(?s)Marlbrook is running already on the computer laboratory-7, .*delete the file \.marlbrook\.lock.*")
        second.click("Marlbrook", "OK")
        wait_for("the end of the second program", lambda: second.process.poll() is not None)
        lock.unlink()
        self.first.start()
        self.first.window(START)

    def test_on_one_sheet_from_two_folders_the_later_save_wins(self):
        path = self.first.work / "core.csv"
        self.first.save_as(path)
        second = Program(self.desk)
        self.addCleanup(second.end)
        second.window(START)
        second.press(TAB, ENTER)  # Open data file or template
        second.answer_file_dialog("Open", path)
        second.wait_total(3)
        second.press(*[PAD[3]] * 2)
        self.assertEqual(self.counts(second.save_again(path)), [1, 1, 1, 2] + [0] * 131)
        second.stop()
        self.first.activate(MAIN)
        self.first.press(PAD[4])
        self.assertEqual(self.counts(self.first.save_again(path)), [1, 1, 1, 0, 1] + [0] * 130)
        self.assertEqual(len(self.desk.titles()), 1, "no message came up")


if __name__ == "__main__":
    unittest.main()
