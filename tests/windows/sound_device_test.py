"""A computer without a sound device: the work goes on as it always does, in silence and without a word."""
import signal
import unittest

from desk import Desk, Program
from keyboard import PAD

NO_DEVICE = {"SDL_AUDIODRIVER": "no-such-driver"}
ALL_TOTAL = '"---","---","---","All total",'


class SoundDeviceTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.program = Program(self.desk, environment=NO_DEVICE)
        self.addCleanup(self.program.end)
        self.program.begin("1")
        self.assertEqual(self.desk.titles(), ["Marlbrook 2.7.5"])

    def test_counting_the_back_up_at_a_hundred_and_saving_go_on(self):
        program = self.program
        back_ups = program.folder / "References/Back up files"
        program.press(*(PAD + PAD + PAD[:9]))
        path = program.work / "silent.csv"
        self.assertIn(ALL_TOTAL + "99", program.save_as(path).decode())
        self.assertEqual(list(back_ups.iterdir()), [])
        program.press(PAD[9])
        self.assertIn(ALL_TOTAL + "100", program.save_again(path).decode())
        self.assertEqual([file.name for file in back_ups.iterdir()], ["Master_back_up.csv"])
        saved = path.read_bytes().decode().split("\r\n")
        counts = [3] * 10 + [2] * 35 + [0] * 90
        self.assertEqual(saved[2:137], [f'{slot},0,0,"---",{count}' for slot, count in enumerate(counts, 1)])
        backed_up = (back_ups / "Master_back_up.csv").read_bytes().decode().split("\r\n")
        self.assertEqual(backed_up[2:137], saved[2:137], "the hundredth count is in the back-up")
        self.assertFalse(program.sound.exists())
        self.assertEqual(self.desk.titles(), ["Marlbrook 2.7 - [silent]"])

    def test_a_call_to_end_is_followed(self):
        self.program.press(*PAD[:5])
        self.program.stop()
        self.assertIn(self.program.process.returncode, (0, -signal.SIGTERM))


if __name__ == "__main__":
    unittest.main()
