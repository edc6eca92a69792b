"""A session on Windows that ends by itself, at the end of the user's session or killed: what was counted is in the rescue, and opens."""
import time
import unittest

from asked_log_out import AskedLogOut
from computer import Computer, Installed, installed
from desk import START
from keyboard import ALT, ENTER, PAD, TAB, UP, key_of
from rescue_test import PROMISED, counts_in, counts_of

ALL_PRESSED = {slot: 1 for slot in range(1, 13)}


class LeavingTest(AskedLogOut, unittest.TestCase):
    def setUp(self):
        self.computer = Computer(installed())
        self.addCleanup(self.computer.end)
        self.program = Installed(self.computer)
        self.program.begin("10")
        self.program.press(*PAD[:11])
        self.program.wait_rescue(11)
        self.program.press(PAD[11])

    def open_rescue(self):
        self.program.window(START)
        self.program.press(TAB, ENTER)  # Open data file or template
        self.program.answer_file_dialog("Open", self.program.rescue)
        self.program.press(PAD[12])
        self.assertEqual(counts_of(self.program.save_again(self.program.rescue)), {**ALL_PRESSED, 13: 1})

    def log_out(self):
        self.computer.run("wineboot", "--end-session")
        self.program.wait_for_end()
        self.assertEqual(counts_in(self.program.rescue), ALL_PRESSED)

    def test_the_end_of_the_users_session_loses_nothing(self):
        self.log_out()
        self.program.start()
        self.open_rescue()

    def test_a_killed_program_loses_two_seconds_at_the_most(self):
        time.sleep(PROMISED)
        self.program.kill()
        self.assertEqual(counts_in(self.program.rescue), ALL_PRESSED)
        self.program.start()
        self.open_rescue()

    def test_the_end_that_its_user_chose_leaves_none(self):
        self.program.chord(ALT, key_of("f"))
        self.program.press(UP, ENTER)  # Quit, the last one
        self.program.answer("Caution!", ALT, key_of("y"))
        self.program.wait_for_end()
        self.assertFalse(self.program.rescue.exists())


if __name__ == "__main__":
    unittest.main()
