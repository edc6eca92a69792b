"""The clock of the computer is set while a user counts, and the computer sleeps: no key is lost or late, and nothing waits for the old time."""
import datetime
import os
import pathlib
import re
import shutil
import signal
import tempfile
import time
import unittest

from desk import BIN, MAIN, Desk, Program
from keyboard import ESCAPE, PAD
from rescue_test import counts_in, counts_of
from spoken import wait_for

A_DAY = 24 * 60 * 60  # seconds
JUMPS = [A_DAY, 400 * A_DAY, -1, -3 * A_DAY, -4000 * A_DAY, 0]
SLEEP = 4  # seconds, longer than anything in the program waits


class ClockTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.notes = pathlib.Path(tempfile.mkdtemp(prefix="marlbrook-clock-"))
        self.addCleanup(shutil.rmtree, self.notes)
        library = BIN / "libshifted_clock.so"
        self.assertTrue(library.exists(), f"{library} is missing: build the target shifted_clock")
        self.program = Program(self.desk, environment={"LD_PRELOAD": str(library), "SHIFTED_CLOCK": str(self.notes / "shift")})
        self.addCleanup(self.program.end)
        self.rescue = self.program.folder / "References/Back up files/Rescue.csv"
        self.program.begin("10")
        self.counted = 0

    def set_clock(self, seconds):
        (self.notes / "new").write_text(str(seconds), encoding="ascii")
        os.replace(self.notes / "new", self.notes / "shift")

    def count(self, keys):
        self.program.press_in_turn(self.counted, keys)
        self.counted += keys
        self.program.wait_total(self.counted)

    def expected(self):
        return {slot: (self.counted - slot) // len(PAD) + 1 for slot in range(1, min(self.counted, len(PAD)) + 1)}

    def wait_for_rescue(self):
        wait_for(f"a rescue of {self.counted}", lambda: counts_in(self.rescue) == self.expected())

    def test_all_counts_are_copied_backed_up_and_saved_at_whatever_time(self):
        sheet = self.program.work / "core.csv"
        self.program.save_as(sheet)
        for jump in JUMPS:
            self.count(10)
            self.set_clock(jump)
            self.count(30)
            self.wait_for_rescue()
            saved = self.program.save_again(sheet)
            self.assertEqual(counts_of(saved), self.expected())
            day = datetime.date.today() + datetime.timedelta(seconds=jump)
            stamp = re.search(rb'"Last saved \(dd/mm/yyyy\):","(\d\d)/(\d\d)/(\d{4})_', saved)
            told = datetime.date(*(int(part) for part in reversed(stamp.groups())))
            self.assertLessEqual(abs(told - day), datetime.timedelta(days=1), "the program has this clock")
        back_ups = sorted(path.name for path in self.rescue.parent.glob("*back_up*"))
        self.assertEqual(back_ups, ["Auto_back_up_(0).csv", "Master_back_up.csv"], "of 240 grains")

    def test_a_message_listens_though_the_clock_goes_back(self):
        self.count(3)
        for jump in (-400 * A_DAY, 400 * A_DAY):
            self.program.click(MAIN, "Reset")
            self.program.window("Caution!")
            self.set_clock(jump)
            wait_for("a message that takes keys", self.escape_is_taken)
            self.program.window(MAIN)
            self.count(3)

    def escape_is_taken(self):
        self.program.press(ESCAPE)
        return not self.desk.windows("Caution!")

    def test_keys_before_and_behind_a_sleep_count_and_are_copied(self):
        self.count(20)
        self.program.press(*PAD[20:25])
        self.program.process.send_signal(signal.SIGSTOP)
        time.sleep(SLEEP)
        self.set_clock(A_DAY)
        self.program.press(*PAD[25:30])
        self.program.process.send_signal(signal.SIGCONT)
        self.counted = 30
        self.program.wait_total(30)
        self.count(5)
        self.wait_for_rescue()


if __name__ == "__main__":
    unittest.main()
