"""Files by their names: what Windows bears is saved and opened again, what it refuses gets the message and loses nothing."""
import subprocess
import unittest

from computer import SHELL_FOLDERS, WINE, Computer, Installed, installed
from desk import MAIN, START
from keyboard import ENTER, PAD, SAVE, TAB
from rescue_test import counts_of
from spoken import wait_for

USER = "Łucja Żółć 山田 Ωmega"


class NamesTest(unittest.TestCase):
    def setUp(self):
        self.computer = Computer(installed())
        self.addCleanup(self.computer.end)

    def count(self):
        self.program = Installed(self.computer)
        self.program.begin("10")
        self.program.press(*PAD[:3])

    def save_as(self, name):
        self.program.press(SAVE)
        self.program.type_file_name("Save as", name)
        self.program.press(ENTER)
        self.computer.desk.gone("Save as")

    def expect_saved(self, path, counted):
        wait_for(f"{path}", path.exists)
        self.program.activate(MAIN)
        self.assertEqual(counts_of(self.program.save_again(path)), {slot: 1 for slot in range(1, counted + 1)})

    def test_250_letters_in_a_path(self):
        self.count()
        folder = self.computer.c / ("f" * 100)
        folder.mkdir()
        path = folder / ("n" * (250 - len("C:\\") - 101 - 4) + ".csv")
        self.assertEqual(len(self.computer.path(path)), 250)
        self.assertEqual(counts_of(self.program.save_as(path)), {1: 1, 2: 1, 3: 1})
        self.assertTrue(path.read_bytes().startswith(b'"' + self.computer.path(path).encode() + b'"'))

    def test_a_user_whose_name_has_letters_of_many_scripts(self):
        user = self.computer.c / "users" / USER
        for folder in ("AppData/Local", "Documents"):
            (user / folder).mkdir(parents=True)
        self.computer.set_value(SHELL_FOLDERS, "Local AppData", rf"C:\users\{USER}\AppData\Local")
        self.computer.set_value(SHELL_FOLDERS, "Personal", rf"C:\users\{USER}\Documents")
        self.computer.own = user / "AppData/Local/Marlbrook"
        self.count()
        self.save_as("core.csv")
        path = user / "Documents/core.csv"
        self.expect_saved(path, 3)
        self.assertTrue(path.read_bytes().decode("utf-8-sig").startswith(f'"C:\\users\\{USER}\\Documents\\core.csv"'))
        self.program.kill()
        self.program.start()
        self.program.window(START)
        self.program.press(TAB, ENTER)  # Open data file or template
        self.program.type_file_name("Open", "core.csv")
        self.program.press(ENTER)
        self.computer.desk.gone("Open")
        self.program.activate(MAIN)
        self.program.press(PAD[3])
        self.expect_saved(path, 4)

    def test_a_user_whose_own_folder_is_on_a_network(self):
        share = self.computer.share()
        (share / "Local").mkdir()
        self.computer.set_value(SHELL_FOLDERS, "Local AppData", r"\\server\share\Local")
        self.computer.own = share / "Local/Marlbrook"
        self.count()
        self.program.wait_rescue(3)
        self.program.press(PAD[3])
        self.program.wait_rescue(4)
        self.assertEqual([path.name for path in self.program.rescue.parent.iterdir()], ["Rescue.csv"])

    def question(self):
        """Above the dialog, of the same title."""
        found = self.computer.desk.windows("Save as")
        return found[1] if len(found) == 2 else None

    def expect_refused(self):
        self.program.answer("Error", ENTER)
        self.program.activate(MAIN)

    def test_a_name_that_windows_refuses_is_told_and_another_saves_all(self):
        self.count()
        for name in ("CON.csv", "nul.csv", "com1.csv"):
            self.program.press(SAVE)
            self.program.type_file_name("Save as", name)
            self.program.press(ENTER)
            question = wait_for("the question whether to replace it", self.question)
            wait_for("its front", lambda: self.computer.desk.in_front(question))
            self.program.press(ENTER)
            self.computer.desk.gone("Save as")
            self.expect_refused()
        self.assertEqual(counts_of(self.program.save_as(self.computer.c / "good.csv")), {1: 1, 2: 1, 3: 1})

    def test_a_sheet_that_another_program_holds_is_refused_until_it_lets_go(self):
        self.count()
        path = self.computer.c / "core.csv"
        self.program.save_as(path)
        before = path.read_bytes()
        other = subprocess.Popen([WINE, "cmd", "/c", "pause >> C:\\core.csv"], env=self.computer.env, stdin=subprocess.PIPE,
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for("the other program's line", lambda: path.read_bytes() != before)
        held = path.read_bytes()
        self.program.press(PAD[3], SAVE)
        self.expect_refused()
        self.assertEqual(path.read_bytes(), held)
        other.communicate(b"\n")
        self.assertEqual(counts_of(self.program.save_again(path)), {slot: 1 for slot in range(1, 5)})


if __name__ == "__main__":
    unittest.main()
