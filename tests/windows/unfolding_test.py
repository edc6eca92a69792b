"""The start face grows by the fields of the first sample and stays whole on the screen."""
import unittest

from desk import START, Desk, Program
from keyboard import ENTER
from spoken import wait_for


class UnfoldingTest(unittest.TestCase):
    def unfold_on(self, width, height):
        desk = Desk(size=f"{width}x{height}")
        self.addCleanup(desk.close)
        program = Program(desk)
        self.addCleanup(program.end)
        _, _, _, folded = desk.place(program.window(START))
        program.press(ENTER)  # Create new data file
        left, top, wide, high = wait_for("the fields of the first sample", lambda: self.larger(desk, folded))
        self.assertGreaterEqual(min(left, top), 0)
        self.assertLessEqual(left + wide, width)
        self.assertLessEqual(top + high, height)

    def larger(self, desk, folded):
        """The place of the face once it has unfolded; Wayland has a new window for it, which comes up in the middle."""
        places = [desk.place(window) for window in desk.windows(START)]
        return next((place for place in places if place and place[3] > 2 * folded), None)

    def test_on_a_small_screen(self):
        self.unfold_on(1366, 768)

    def test_on_a_large_screen(self):
        self.unfold_on(1920, 1080)


if __name__ == "__main__":
    unittest.main()
