"""A key that is let go where the counter does not hear it, over a message or in another window, is not held for ever after."""
import time
import unittest

from desk import PAD, SHIFT_1, UNDO, Desk, Program

MODIFY, RESUME = (3690, 7720), (4650, 7720)
COUNT_OF_28 = (820, 830)  # the upper left cell, whose count stands below its name
A, CONTROL, ENTER = 38, 37, 36


class HeldKeysTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.program = Program(self.desk)
        self.addCleanup(self.program.end)
        self.program.begin("12.5")

    def counts(self):
        """What the saved sheet holds, by slot, without the empty ones."""
        rows = self.program.save_as(self.program.work / "core.csv").decode().split("\r\n")[2:137]
        cells = {int(row.split(",")[0]): int(row.rsplit(",", 1)[1]) for row in rows}
        return {slot: count for slot, count in cells.items() if count}

    def back_to_the_counter(self):
        self.desk.xdotool("windowactivate", "--sync", self.program.main)
        time.sleep(0.3)

    def test_the_undo_key_that_emptied_a_cell_takes_nothing_off_later(self):
        program = self.program
        program.click_main(*MODIFY)
        program.click_main(*COUNT_OF_28)
        program.hold(CONTROL)
        program.press(A)
        program.release(CONTROL)
        program.hold(UNDO)  # the emptied cell is refused while the key is down
        self.desk.window("^Error$")
        program.release(UNDO)
        time.sleep(0.5)  # a box does not take keys at once, for they were meant for the counter
        program.press(ENTER)
        self.desk.gone("^Error$")
        program.click_main(*RESUME)
        program.press(PAD[0], PAD[0])
        self.assertEqual(self.counts(), {1: 2})

    def test_a_shift_key_let_go_in_another_program_is_up(self):
        other = self.desk.start(["xmessage", "-name", "other", "another program"], env=self.desk.env)
        window = self.desk.window("another|xmessage|other")
        self.back_to_the_counter()
        self.program.hold(SHIFT_1)
        time.sleep(0.1)
        self.desk.xdotool("windowactivate", "--sync", window)
        time.sleep(0.6)  # the toolkit waits a little before it believes that the focus has gone
        self.program.release(SHIFT_1)
        self.back_to_the_counter()
        self.program.press(PAD[0])
        other.terminate()
        self.assertEqual(self.counts(), {1: 1})


if __name__ == "__main__":
    unittest.main()
