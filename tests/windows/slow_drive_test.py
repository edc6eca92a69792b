"""A home on a network drive that is slow, or gone for a while. The copy of the sheet is written beside the counting: no key waits for it. A
save, and the back-up at a hundred, last as long as the drive; the keys of that time count when it is done, and a drive that fails is told."""
import errno
import unittest

from desk import MAIN, Desk, Program
from keyboard import PAD, SAVE
from rescue_test import counts_in, counts_of
from spoken import wait_for
from watched_disk import WatchedDisk


class SlowDriveTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.disk = WatchedDisk()
        self.addCleanup(self.disk.close)
        self.program = Program(self.desk, environment=self.disk.environment)
        self.addCleanup(self.program.end)
        self.back_ups = self.program.folder / "References/Back up files"
        self.rescue = self.back_ups / "Rescue.csv"
        self.sheet = self.program.work / "core.csv"
        self.counted = 0
        self.program.begin("10")

    def press(self, keys):
        for _ in range(keys):
            self.program.press(PAD[self.counted % len(PAD)])
            self.counted += 1

    def count(self, keys):
        self.press(keys)
        self.program.wait_total(self.counted)

    def expected(self, keys):
        return {slot: (keys - slot) // len(PAD) + 1 for slot in range(1, min(keys, len(PAD)) + 1)}

    def wait_for_rescue(self):
        wait_for(f"a rescue of {self.counted}", lambda: counts_in(self.rescue) == self.expected(self.counted))

    def test_keys_are_answered_while_the_copy_waits_for_the_drive(self):
        self.count(12)
        self.wait_for_rescue()
        with self.disk.trouble():
            self.count(1)
            self.disk.wait_for_trouble("Rescue.csv.new")
            self.count(30)
            self.assertEqual(counts_in(self.rescue), self.expected(12))
        self.wait_for_rescue()

    def test_keys_are_answered_though_the_drive_goes_before_the_first_copy(self):
        with self.disk.trouble():
            self.press(1)
            self.disk.wait_for_trouble("Rescue.csv.new")
            self.count(30)
        self.wait_for_rescue()

    def test_a_copy_that_the_drive_refuses_is_tried_again_until_it_is_back(self):
        for call in ("open", "write", "flush", "rename"):
            with self.disk.trouble(call, errno.EIO):
                before = sum(note.kind == "fails" for note in self.disk.journal())
                self.count(12)
                self.disk.wait_for_trouble("Rescue.csv.new", times=before + 2)
                self.count(1)
            self.wait_for_rescue()
            self.assertFalse((self.back_ups / "Rescue.csv.new").exists())

    def test_a_drive_that_cannot_rename_to_a_free_name_alone_keeps_what_its_user_lays_there(self):
        with self.disk.trouble("rename-to-free", errno.EINVAL):
            self.rescue.write_text("a file of the user's", encoding="ascii")
            self.rescue = self.rescue.with_name("Rescue_(2).csv")
            for _ in range(2):
                self.count(12)
                self.wait_for_rescue()
        self.assertEqual(self.rescue.with_name("Rescue.csv").read_text(encoding="ascii"), "a file of the user's")
        self.assertEqual({path.name for path in self.back_ups.glob("Rescue*")}, {"Rescue.csv", "Rescue_(2).csv"})

    def test_a_save_lasts_as_long_as_the_drive_and_keys_of_that_time_count_after_it(self):
        self.count(12)
        self.program.save_as(self.sheet)
        self.count(12)
        self.wait_for_rescue()
        with self.disk.trouble("flush"):
            self.program.press(SAVE)
            self.disk.wait_for_trouble("core.csv")
            self.press(12)
        self.program.wait_total(36)
        self.assertEqual(counts_of(self.sheet.read_bytes()), self.expected(24))
        self.wait_for_rescue()
        self.assertEqual(counts_of(self.program.save_again(self.sheet)), self.expected(36))

    def test_a_save_that_the_drive_refuses_is_told_and_can_be_made_up(self):
        self.count(12)
        self.program.save_as(self.sheet)
        for call in ("open", "resize", "write", "flush"):
            self.count(12)
            with self.disk.trouble(call, errno.EIO):
                self.program.press(SAVE)
                self.program.click("Error", "OK")
                self.desk.gone("Error")
            self.program.window(MAIN)
            self.assertEqual(self.program.total(), self.counted)
            self.count(1)
            self.assertEqual(counts_of(self.program.save_again(self.sheet)), self.expected(self.counted))

    def test_keys_behind_a_back_up_that_waits_for_the_drive_all_count(self):
        self.count(90)
        with self.disk.trouble("write"):
            self.press(20)
            self.disk.wait_for_trouble("Master_back_up.csv")
        self.program.wait_total(110)
        self.assertEqual(counts_in(self.back_ups / "Master_back_up.csv"), self.expected(100))
        self.assertEqual(counts_of(self.program.save_as(self.sheet)), self.expected(110))

    def test_the_drive_fails_in_everything_and_counting_goes_on(self):
        self.count(12)
        with self.disk.trouble(error=errno.EIO):
            self.count(200)
        self.wait_for_rescue()
        self.assertEqual(counts_of(self.program.save_as(self.sheet)), self.expected(212))


if __name__ == "__main__":
    unittest.main()
