"""The main window is minimised: no key counts and none sounds until it is back."""
import unittest

from desk import MAIN, Program
from heard import Recording
from keyboard import PAD
from spoken import wait_for
from x11_desk import X11Desk


class MinimisedTest(unittest.TestCase):
    def test_keys_pressed_meanwhile_are_silent_and_count_nothing(self):
        desk = X11Desk()
        self.addCleanup(desk.close)
        program = Program(desk)
        self.addCleanup(program.end)
        recording = Recording(program.sound, program.folder / "Sound files")
        program.begin("10")
        recording.wait_for(["Opening"])
        window = program.window(MAIN)
        desk.minimise(window)
        wait_for("the window to lose the keys", lambda: not desk.in_front(window))
        program.press(*PAD[:5])
        program.activate(MAIN)
        program.press(PAD[7])
        program.wait_total(1)
        self.assertEqual(program.text(MAIN, "Count of taxon 8"), "1")
        recording.wait_for(["Opening", "Key-1"])


if __name__ == "__main__":
    unittest.main()
