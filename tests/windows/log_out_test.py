"""The user logs out of a desktop with a session manager: nothing that was counted is lost, and no question of ours holds up the end."""
import unittest

from asked_log_out import AskedLogOut
from desk import Desk, Program
from keyboard import ALT, PAD
from rescue_test import counts_in
from session_manager import SessionManager
from spoken import wait_for

F4 = 70


class LogOutTest(AskedLogOut, unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.manager = SessionManager()
        self.addCleanup(self.manager.close)
        self.program = Program(self.desk, environment=self.manager.environment)
        self.addCleanup(self.program.end)
        self.rescue = self.program.folder / "References/Back up files/Rescue.csv"
        self.program.begin("10")
        self.program.press(*PAD[:12])
        self.program.wait_total(12)
        self.manager.wait_for_client()

    def log_out(self):
        self.manager.log_out()
        wait_for("the end of the program", lambda: self.program.process.poll() is not None)
        self.assertEqual(self.program.process.returncode, 0)
        self.assertEqual(self.manager.questions, 0)
        self.assertEqual(counts_in(self.rescue), {slot: 1 for slot in range(1, 13)})

    def test_everything_is_in_the_copy(self):
        self.log_out()

    def test_also_while_it_asks_whether_to_save(self):
        self.program.chord(ALT, F4)
        self.program.window("Marlbrook")
        self.log_out()


if __name__ == "__main__":
    unittest.main()
