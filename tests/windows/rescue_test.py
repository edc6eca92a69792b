"""A session that ends by itself: what was counted is in the rescue, and the next session tells of it."""
import os
import random
import shutil
import signal
import time
import unittest

from count_test import expected_sheet
from desk import MAIN, START, Desk, Program
from keyboard import ALT, ENTER, PAD, SAVE, TAB, UP, key_of
from spoken import wait_for

KILLS = int(os.environ.get("MARLBROOK_KILLS", "3"))
SEED = 20261122
FIRST_KILL, LAST_KILL = 0.1, 6  # seconds after the first key; the kills are spread between them, the more of them the earlier
PROMISED = 2                    # seconds: what was counted longer ago is in the rescue
A_SECOND = 10                   # keys


def counts_of(sheet):
    """The counts of the first sample by slot, those that are not 0; none if its rows are not all there."""
    lines = sheet.split(b"\r\n")
    rows = [line.split(b",") for line in lines[2:137]] if len(lines) > 137 else []
    return {int(row[0]): int(row[4]) for row in rows if int(row[4]) != 0}


def counts_in(path):
    """Those of a file; none if there is no file."""
    return counts_of(path.read_bytes()) if path.exists() else {}


class RescueTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.start()

    def start(self):
        self.program = Program(self.desk)
        self.addCleanup(self.program.end)
        self.rescue = self.program.folder / "References/Back up files/Rescue.csv"

    def count(self, grains):
        self.program.press(*PAD[:grains])
        self.program.wait_total(grains)

    def open_copy(self):
        """The start face tells of it, and the dialog shows its folder."""
        self.program.control(START, r"A session of .* ended by itself: Rescue\.csv in Back up files holds it")
        self.program.window(START)
        self.program.press(TAB, ENTER)  # Open data file or template
        self.program.window("Open")
        self.program.enter_file_name("Open", self.rescue.name)
        self.program.press(ENTER)

    def wait_for_end(self):
        wait_for("the end of the program", lambda: self.program.process.poll() is not None)

    def expect_kept(self, counts):
        """In a copy that the next session tells of: it is dated."""
        first_line = self.rescue.read_bytes().split(b"\r\n")[0]
        self.assertRegex(first_line, rb'"Backed up \(dd/mm/yyyy\):","\d\d/\d\d/\d{4}_\(\d\d:\d\d:\d\d\)"')
        self.assertEqual(counts_in(self.rescue), counts)

    def wait_for_rescue(self, grains):
        wait_for(f"a rescue of {grains} grains", lambda: sum(counts_in(self.rescue).values()) == grains)

    def test_a_signal_that_ends_it_loses_nothing(self):
        for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT, signal.SIGQUIT, signal.SIGXCPU):
            self.program.begin("10")
            self.count(12)
            self.program.process.send_signal(number)
            self.wait_for_end()
            self.assertEqual(self.program.process.returncode, -number)
            self.expect_kept({slot: 1 for slot in range(1, 13)})
            self.rescue.unlink()
            self.program.start()

    def test_a_display_that_goes_loses_nothing(self):
        self.program.begin("10")
        self.count(12)
        self.desk.lose()
        self.wait_for_end()
        self.expect_kept({slot: 1 for slot in range(1, 13)})

    def open(self, path):
        self.program.window(START)
        self.program.press(TAB, ENTER)  # Open data file or template
        self.program.answer_file_dialog("Open", path)

    def fail_at_save(self):
        """With "Overflow", for a grain more than a sheet can hold."""
        path = self.program.work / "full.csv"
        path.write_bytes(expected_sheet(path, {1: 32760, 2: 3}))
        self.open(path)
        self.program.press(*PAD[:5])
        self.program.wait_total(32768)
        self.program.press(SAVE)
        self.program.window("Marlbrook")

    def test_a_failure_that_nothing_catches_loses_nothing(self):
        self.fail_at_save()
        self.program.click("Marlbrook", "OK")
        self.wait_for_end()
        self.expect_kept({1: 32761, 2: 4, 3: 1, 4: 1, 5: 1})
        self.program.start()
        self.open_copy()
        self.program.wait_total(32768)

    def test_after_a_failure_a_disk_that_refuses_is_tried_again(self):
        folder = self.rescue.parent
        shutil.rmtree(folder)
        folder.touch()
        self.fail_at_save()
        folder.unlink()
        folder.mkdir()
        self.wait_for_rescue(32768)

    def test_it_is_written_while_its_user_counts_and_goes_with_a_save(self):
        self.program.begin("10")
        self.count(12)
        self.wait_for_rescue(12)
        self.program.save_as(self.program.work / "core.csv")
        wait_for("the end of the rescue", lambda: not self.rescue.exists())

    def test_the_end_that_its_user_chose_leaves_none(self):
        self.program.begin("10")
        self.count(12)
        self.wait_for_rescue(12)
        self.program.chord(ALT, key_of("f"))
        self.program.press(UP, ENTER)  # Quit, the last one
        self.program.click("Caution!", "Yes")
        self.wait_for_end()
        self.assertFalse(self.rescue.exists())

    def test_the_next_session_tells_of_it_and_opens_it(self):
        self.program.begin("10")
        self.count(12)
        self.program.stop()
        self.program.start()
        self.open_copy()
        self.program.wait_total(12)

    def test_a_kill_at_any_moment_costs_two_seconds_at_the_most(self):
        chance = random.Random(SEED)
        for number in range(KILLS):
            self.program.begin("10")
            sent = []  # (when, slot)
            end = time.monotonic() + FIRST_KILL + (LAST_KILL - FIRST_KILL) * ((number + chance.random()) / KILLS) ** 2
            while time.monotonic() < end:
                slot = len(sent) % len(PAD) + 1
                sent.append((time.monotonic(), slot))
                self.program.press(PAD[slot - 1])
                time.sleep(1 / A_SECOND)
            killed = time.monotonic()
            self.program.process.kill()
            self.wait_for_end()
            saved = counts_in(self.rescue)
            for slot in range(1, len(PAD) + 1):
                promised = sum(one == slot and when < killed - PROMISED for when, one in sent)
                pressed = sum(one == slot for _, one in sent)
                self.assertTrue(promised <= saved.get(slot, 0) <= pressed, f"slot {slot}: {saved.get(slot, 0)} of {pressed}, {promised} promised")
            self.rescue.unlink(missing_ok=True)
            self.program.start()


if __name__ == "__main__":
    unittest.main()
