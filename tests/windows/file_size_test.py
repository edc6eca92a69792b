"""A limit that the system sets to the size of files: to the program it is a full disk. Under Wayland no window could come up under it."""
import pathlib
import resource
import shutil
import tempfile
import unittest

from desk import BIN, MAIN, Program, StartedProgram
from keyboard import ENTER, PAD, SAVE
from spoken import wait_for
from x11_desk import X11Desk

LIMIT = 1000  # bytes: less than any sheet


class FileSizeTest(unittest.TestCase):
    def test_a_save_that_the_limit_cuts_short_is_told_and_can_be_made_up(self):
        desk = X11Desk()
        self.addCleanup(desk.close)
        program = Program(desk)
        self.addCleanup(program.end)
        program.begin("10")
        program.press(*PAD[:12])
        program.wait_total(12)
        path = program.work / "core.csv"
        usual = resource.prlimit(program.process.pid, resource.RLIMIT_FSIZE)
        resource.prlimit(program.process.pid, resource.RLIMIT_FSIZE, (LIMIT, usual[1]))
        program.press(SAVE)
        program.window("Save as")
        program.enter_file_name("Save as", path)
        program.press(ENTER)
        program.click("Error", "OK")
        self.assertLessEqual(path.stat().st_size, LIMIT)
        resource.prlimit(program.process.pid, resource.RLIMIT_FSIZE, usual)
        program.window(MAIN)
        saved = program.save_again(path).decode().split("\r\n")
        self.assertEqual(saved[2:137], [f'{slot},0,0,"---",{int(slot <= 12)}' for slot in range(1, 136)])

    def test_it_starts_under_a_limit_and_lays_down_what_it_may(self):
        desk = X11Desk()
        self.addCleanup(desk.close)
        work = pathlib.Path(tempfile.mkdtemp(prefix="marlbrook-limit-"))
        self.addCleanup(shutil.rmtree, work)
        shutil.copytree(BIN.parent / "tree", work / "share/marlbrook")
        (work / "bin").mkdir()
        shutil.copy(BIN / "marlbrook", work / "bin")
        program = StartedProgram(desk, ["prlimit", f"--fsize={LIMIT}", str(work / "bin/marlbrook")], env={**desk.env, "HOME": str(work)},
                                 cwd=work)
        self.addCleanup(program.stop)
        wait_for("a window", desk.titles)


if __name__ == "__main__":
    unittest.main()
