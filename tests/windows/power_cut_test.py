"""The power goes while a user counts and saves. Whatever the disk has forgotten of what was not flushed, the sheet or its rescue holds all
that was counted two seconds before, and nothing twice."""
import collections
import os
import pathlib
import random
import time
import unittest

from desk import START, Desk, Program
from keyboard import ENTER, PAD, TAB
from rescue_test import A_SECOND, KILLS, PROMISED, SEED, counts_of
from spoken import wait_for
from watched_disk import WatchedDisk

KEYS = 40           # before a save
DRAWS = 10 * KILLS  # of what the disk has taken, for each moment between two calls


class PowerCutTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)

    def start(self):
        self.disk = WatchedDisk()
        self.addCleanup(self.disk.close)
        self.program = Program(self.desk, environment=self.disk.environment)
        self.addCleanup(self.program.end)
        self.rescue = self.program.folder / "References/Back up files/Rescue.csv"
        self.sheet = self.program.work / "core.csv"
        self.keys = []  # (slot, when it was pressed, when the desk had it)
        self.program.begin("10")

    def count(self, keys):
        """Ten a second."""
        for _ in range(keys):
            slot, begun = len(self.keys) % len(PAD) + 1, time.monotonic()
            self.program.press(PAD[slot - 1])
            self.keys.append((slot, begun, time.monotonic()))
            time.sleep(1 / A_SECOND)

    def count_and_save(self):
        """As on any day: a first save under a new name, a second one over it. Each time there is a copy before."""
        self.count(KEYS)
        self.wait_for_rescue()
        self.program.save_as(self.sheet)
        self.wait_for_no_rescue()
        self.count(KEYS)
        self.wait_for_rescue()
        self.program.save_again(self.sheet)
        self.wait_for_no_rescue()
        self.count(KEYS)

    def wait_for_rescue(self):
        wait_for("the rescue of all", lambda: self.rescue.exists() and sum(counts_of(self.rescue.read_bytes()).values()) == len(self.keys))

    def wait_for_no_rescue(self):
        wait_for("the end of the rescue", lambda: not self.rescue.exists())

    def cut(self):
        """The power goes now. Returns when."""
        self.program.process.kill()
        self.program.process.wait()
        return time.monotonic()

    def faults(self, journal, end):
        """What a cut at any moment of the session would leave that is less than promised: (seconds before its end, in words)."""
        chance = random.Random(SEED)
        found = []
        for state, moment in self.disk.states(journal, end):
            promised = collections.Counter(slot for slot, _, done in self.keys if done < moment - PROMISED)
            pressed = collections.Counter(slot for slot, begun, _ in self.keys if begun <= moment)
            for _ in range(DRAWS):
                left = state.after_cut(chance)
                copies = [counts_of(left.get(str(path), b"")) for path in (self.rescue, self.sheet)]
                slots = {*pressed, *copies[0], *copies[1]}
                if not any(all(promised[slot] <= copy.get(slot, 0) <= pressed[slot] for slot in slots) for copy in copies):
                    there = [sum(copy.values()) for copy in copies]
                    found.append((round(end - moment, 2), f"{promised.total()} to {pressed.total()} promised, {there} there"))
        return found

    def sheets(self):
        """All that it has saved, copied and backed up."""
        return [*self.rescue.parent.glob("*.csv*"), *self.sheet.parent.glob("*.csv*")]

    def lay_down(self, left):
        """The disk as the cut has left it, and the program started on it."""
        for path in self.sheets():
            path.unlink()
        for path, content in left.items():
            if ".csv" in path:
                pathlib.Path(path).write_bytes(content)
        self.program.start()

    def test_at_each_moment_the_sheet_or_its_rescue_holds_all(self):
        self.start()
        self.count_and_save()
        end = self.cut()
        journal = self.disk.journal()
        *_, (state, _) = self.disk.states(journal)
        seen = {path: content for path, content in state.seen().items() if ".csv" in path}
        self.assertEqual(seen, {str(path): path.read_bytes() for path in self.sheets()}, "no call has escaped")
        self.assertEqual(self.faults(journal, end), [])

    def test_without_its_flushes_it_would_not(self):
        """That the test before can fail: the same session on a disk that takes no flush, of files or of folders."""
        self.start()
        self.count_and_save()
        end = self.cut()
        journal = self.disk.journal()
        for is_folder in (False, True):
            with self.subTest(folders=is_folder):
                left = [note for note in journal if note.kind != "flush" or os.path.isdir(note.path) != is_folder]
                self.assertTrue(self.faults(left, end))

    def test_the_next_session_tells_of_what_is_left_and_opens_it(self):
        chance = random.Random(SEED)
        for number in range(KILLS):
            with self.subTest(cut=number):
                self.start()
                self.count(chance.randint((PROMISED + 1) * A_SECOND, (PROMISED + 4) * A_SECOND))
                self.cut()
                *_, (state, _) = self.disk.states()
                left = state.after_cut(chance)
                self.lay_down(left)
                self.program.control(START, r"A session of .* ended by itself: Rescue\.csv in Back up files holds it")
                self.program.press(TAB, ENTER)  # Open data file or template
                self.program.answer_file_dialog("Open", self.rescue)
                self.program.wait_total(sum(counts_of(left[str(self.rescue)]).values()))
                self.program.end()


if __name__ == "__main__":
    unittest.main()
