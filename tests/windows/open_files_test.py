"""A limit on the number of open files: a low one is raised, and where the system allows no more the program says so before anything is
counted."""
import resource
import subprocess
import unittest

from desk import BIN, TOP, Desk, Program
from keyboard import PAD
from spoken import wait_for

USUAL = 1024


class OpenFilesTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.program = Program(self.desk)
        self.addCleanup(self.program.end)
        self.program.stop()

    def start_under(self, soft, hard):
        self.program.command = ["prlimit", f"--nofile={soft}:{hard}", self.program.folder / "marlbrook"]
        self.program.start()

    def lack(self, *command):
        """What a program says that may have 16 files open, and the status that it ends with."""
        ended = subprocess.run(["prlimit", "--nofile=16:16", *command], env=self.program.env, stdin=subprocess.DEVNULL,
                               stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, check=False)
        return ended.stderr, ended.returncode

    def test_a_low_limit_is_raised(self):
        self.start_under(16, USUAL)
        self.program.begin("10")
        self.assertEqual(resource.prlimit(self.program.process.pid, resource.RLIMIT_NOFILE), (USUAL, USUAL))

    def test_all_goes_on_with_as_many_as_it_asks_for(self):
        self.start_under(64, 64)
        self.program.begin("10")
        self.program.press(*PAD)
        self.program.wait_total(45)
        rescue = self.program.folder / "References/Back up files/Rescue.csv"
        wait_for("the copy", rescue.exists)
        self.assertIn(b'"All total",45\r\n', self.program.save_as(self.program.work / "core.csv"))

    def test_with_fewer_a_message_tells_it_and_nothing_begins(self):
        self.start_under(16, 40)
        self.program.control("Marlbrook", r"Marlbrook needs 64 open files at a time\. The system allows it 40: .*")
        self.program.window("Marlbrook")
        self.assertEqual(self.desk.titles(), ["Marlbrook"])
        self.program.click("Marlbrook", "OK")
        wait_for("the end of the program", lambda: self.program.process.poll() is not None)
        self.assertEqual(self.program.process.returncode, 1)

    def test_with_too_few_for_a_message_it_is_told_on_standard_error(self):
        told = "Marlbrook needs 64 open files at a time. The system allows it 16: raise that limit and start it again.\n"
        self.assertEqual(self.lack(self.program.folder / "marlbrook"), ("marlbrook: " + told, 1))
        driver = [BIN / "marlbrook-drive", "--windows", TOP / "tests/scripts/taxa/renamed_taxon_is_told.drive"]
        self.assertEqual(self.lack(*driver), ("marlbrook-drive: --windows: " + told, 2))


if __name__ == "__main__":
    unittest.main()
