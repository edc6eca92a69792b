"""The windows on screens of 100, 125, 150 and 200 %, in letters as wide as those of Windows: no word is cut."""
import unittest

from computer import Computer, bare
from desk import BIN

FULL = (1920, 1080)  # pixels at 100 %


class WordsTest(unittest.TestCase):
    def check(self, number, density):
        width, height = (round(side * density) for side in FULL)
        computer = Computer(bare(), size=f"{width}x{height}")
        self.addCleanup(computer.end)
        walk = computer.run(BIN / "unit_tests_qt.exe", f"--gtest_filter=Densities/WindowWalkTest.*/{number}")
        self.assertEqual(walk.returncode, 0, walk.stdout.decode(errors="replace"))
        self.assertIn(b"[  PASSED  ] 7 tests.", walk.stdout)

    def test_at_100_percent(self):
        self.check(0, 1)

    def test_at_125_percent(self):
        self.check(1, 1.25)

    def test_at_150_percent(self):
        self.check(2, 1.5)

    def test_at_200_percent(self):
        self.check(3, 2)


if __name__ == "__main__":
    unittest.main()
