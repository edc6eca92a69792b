"""A disk that runs full while a user counts, saves and backs up: a small one of the system's memory, in a mount namespace of the program."""
import os
import pathlib
import subprocess
import unittest

from desk import END_OF_SHEET, MAIN, START, Desk, Program
from keyboard import ENTER, PAD, SAVE, TAB
from spoken import wait_for

SAMPLES = 100                     # a sheet of some thirty kilobytes: eight pages and more
PAGE = os.sysconf("SC_PAGE_SIZE")
PLENTY = 256                      # pages
BACK_UPS = "program/References/Back up files"
AS_USER = [] if os.geteuid() == 0 else ["--map-current-user", "--keep-caps"]  # root may mount as it is
OWN_NAMESPACE = ["unshare", *AS_USER, "--mount"]
ON_SMALL_DISK = [*OWN_NAMESPACE, "sh", "-c", f'mount -t tmpfs -o size={PLENTY * PAGE} small "$HOME/{BACK_UPS}" && exec "$@"', "sh"]


def large_sheet(path):
    """A sheet with no count in its last sample."""
    samples = range(1, SAMPLES + 1)
    rows = [[f'"{path}"', '"Last saved (dd/mm/yyyy):"', '"22/11/2026_(10:00:00)"', '"Serial No."', *samples],
            ['"Key index"', '"Subtotal-1"', '"Subtotal-2"', '"Sample name"', *(f'"{sample}"' for sample in samples)],
            *([slot, 0, 0, '"---"', *[7] * (SAMPLES - 1), 0] for slot in range(1, 136)),
            *(['"---"', '"---"', '"---"', f'"Additional info-{number}"', *['"---"'] * SAMPLES] for number in range(1, 7)),
            ['"---"', '"---"', '"---"', '"Note: "', *['"Note: "'] * SAMPLES]]
    return "".join(",".join(str(cell) for cell in row) + "\r\n" for row in rows).encode()


def last_counts(sheet):
    return [int(row.rsplit(b",", 1)[1]) for row in sheet.split(b"\r\n")[2:137]]


class FullDiskTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.assert_mounting_is_allowed()
        self.program = Program(self.desk, through=ON_SMALL_DISK)
        self.addCleanup(self.program.end)
        self.program.window(START)
        self.small = pathlib.Path(f"/proc/{self.program.process.pid}/root{self.program.work}") / BACK_UPS
        self.sheet = self.program.work / BACK_UPS / "core.csv"  # as the program names it
        self.counted = 0

    def assert_mounting_is_allowed(self):
        tried = subprocess.run([*OWN_NAMESPACE, "mount", "-t", "tmpfs", "small", "/tmp"], capture_output=True, text=True, check=False)
        self.assertEqual(tried.returncode, 0, f"a small disk cannot be mounted here, and without one this is not tested: {tried.stderr}")

    def open_sheet(self):
        (self.small / "core.csv").write_bytes(large_sheet(self.sheet))
        self.program.press(TAB, ENTER)  # Open data file or template
        self.program.answer_file_dialog("Open", self.sheet)
        self.program.wait_total(0)

    def leave_room(self, pages):
        filler = self.small / "filler"
        filler.unlink(missing_ok=True)
        found = os.statvfs(self.small)
        with open(filler, "wb") as file:
            file.write(bytes((found.f_bavail - pages) * found.f_bsize))

    def count(self, keys):
        self.program.press_in_turn(self.counted, keys)
        self.counted += keys
        self.program.wait_total(self.counted)

    def expected(self):
        return [self.counted // len(PAD) + (slot < self.counted % len(PAD)) for slot in range(len(PAD))] + [0] * (135 - len(PAD))

    def saves(self):
        """Presses the save key; does the disk take the sheet?"""
        before = (self.small / "core.csv").stat().st_mtime_ns
        self.program.press(SAVE)
        wait_for("the save or its message", lambda: self.desk.windows("Error") or self.is_saved(before))
        if not self.desk.windows("Error"):
            return True
        self.program.click("Error", "OK")
        self.desk.gone("Error")
        self.program.window(MAIN)
        return False

    def is_saved(self, before):
        path = self.small / "core.csv"
        return path.stat().st_mtime_ns != before and END_OF_SHEET.search(path.read_bytes())

    def saved_counts(self):
        return last_counts((self.small / "core.csv").read_bytes())

    def test_what_is_counted_while_it_fills_is_saved_when_there_is_room(self):
        self.open_sheet()
        pages = -(-(self.small / "core.csv").stat().st_size // PAGE)
        outcomes = []
        for room in [*range(pages + 2), 2 * pages]:
            (self.small / "core.csv").write_bytes(b"")  # its own pages would be room
            self.leave_room(room)
            self.count(30)
            outcomes.append(self.saves())
            if outcomes[-1]:
                self.assertEqual(self.saved_counts(), self.expected())
        self.assertEqual(set(outcomes), {False, True}, "the disk was full, and then it was not")
        self.leave_room(PLENTY // 2)
        self.count(1)
        self.assertTrue(self.saves())
        self.assertEqual(self.saved_counts(), self.expected())

    def test_the_copy_and_the_back_up_that_found_no_room_are_made_when_there_is(self):
        self.open_sheet()
        self.leave_room(0)
        self.count(110)  # over a hundred
        self.assertFalse((self.small / "Rescue.csv").exists())
        self.leave_room(PLENTY // 2)
        rescue = self.small / "Rescue.csv"
        wait_for("the copy", lambda: rescue.exists() and last_counts(rescue.read_bytes()) == self.expected())
        self.count(90)
        ring = [path for path in self.small.glob("*back_up*") if path.stat().st_size > 0]
        self.assertIn(self.expected(), [last_counts(path.read_bytes()) for path in ring])


if __name__ == "__main__":
    unittest.main()
