"""The start face unfolds the fields of the first sample, whole on the screen down to OK, and what is typed at once goes into them."""
import unittest

from desk import MAIN, START, Desk, Program
from keyboard import ENTER


class UnfoldingTest(unittest.TestCase):
    def unfold_on(self, width, height):
        desk = Desk(size=f"{width}x{height}")
        self.addCleanup(desk.close)
        program = Program(desk)
        self.addCleanup(program.end)
        program.window(START)
        program.press(ENTER)  # Create new data file
        program.type("12.5")
        program.control(START, "Name of the first sample:?", "text").wait_text("12.5")
        left, top, wide, high = program.box(START, "OK")
        self.assertGreaterEqual(min(left, top), 0)
        self.assertLessEqual(left + wide, width)
        self.assertLessEqual(top + high, height)
        program.press(ENTER)
        desk.window(MAIN)

    def test_on_a_small_screen(self):
        self.unfold_on(1366, 768)

    def test_on_a_large_screen(self):
        self.unfold_on(1920, 1080)


if __name__ == "__main__":
    unittest.main()
