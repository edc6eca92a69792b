"""The setup on a computer that has the program already, and the uninstaller: what the user keeps stays as it is, to the byte."""
import os
import pathlib
import subprocess
import unittest

from computer import SETUP, Computer, Disk, Installed, installed
from desk import BIN, MAIN, START
from full_disk_test import OWN_NAMESPACE
from keyboard import ENTER, NAMED_KEYS, PAD, SAVE
from rescue_test import counts_of
from spoken import wait_for

UNINSTALL_KEY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Marlbrook"
REFUSED = 2


def content(folder):
    """Every file below a folder, with its bytes; every folder, with None."""
    return {path.relative_to(folder): path.read_bytes() if path.is_file() else None for path in folder.rglob("*")}


class SetupTest(unittest.TestCase):
    def setUp(self):
        self.computer = Computer(installed())
        self.addCleanup(self.computer.end)
        self.start_menu = self.computer.user / "AppData/Roaming/Microsoft/Windows/Start Menu/Programs"

    def count_and_save(self, sheet):
        """A session in which its user changes what is their own."""
        program = Installed(self.computer)
        program.begin("10")
        program.press(*PAD[:5])
        program.save_as(sheet)
        (self.computer.own / "Sound files/Alarm.wav").write_bytes(b"the user's own")
        (self.computer.own / "References/Back up files/kept.csv").write_bytes(b"an old core")
        return program

    def in_start_menu(self):
        return sorted(path.stem for path in self.start_menu.glob("*arlbrook*"))

    def is_known(self):
        return self.computer.run("reg", "query", UNINSTALL_KEY, "/v", "DisplayVersion").returncode == 0

    def uninstall(self):
        self.computer.run(self.computer.programs / "uninstall.exe", "/S")  # it goes on by a copy of itself
        wait_for("the end of the uninstaller", lambda: not self.computer.programs.exists())

    def test_it_installs_for_its_user_alone(self):
        self.assertEqual(self.in_start_menu(), ["Marlbrook", "Marlbrook manual"])
        self.assertTrue((self.computer.programs / "share/doc/marlbrook/manual/index.html").exists())
        self.assertTrue(self.is_known())
        self.assertEqual(sorted(os.listdir(self.computer.programs)), ["bin", "share", "uninstall.exe"])
        for machine in ("Program Files", "ProgramData/Microsoft/Windows/Start Menu"):
            self.assertFalse([path for path in (self.computer.c / machine).rglob("*arlbrook*")], machine)

    def test_over_an_older_one_uninstalled_and_installed_again_the_users_own_stays(self):
        sheet = self.computer.user / "core.csv"
        self.count_and_save(sheet).kill()
        own, saved, fresh = content(self.computer.own), sheet.read_bytes(), content(self.computer.programs)
        (self.computer.programs / "bin/of_an_older_version.dll").write_bytes(b"old")
        with open(self.computer.programs / "share/marlbrook/laid_down.txt", "a", encoding="ascii") as laid_down:
            laid_down.write("bin\\of_an_older_version.dll\n")
        (self.computer.programs / "bin/marlbrook.exe").write_bytes(b"old")
        self.assertEqual(self.computer.run(SETUP, "/S").returncode, 0)
        self.assertEqual(content(self.computer.programs), fresh)
        self.assertEqual(content(self.computer.own), own)
        self.uninstall()
        self.assertFalse(self.is_known())
        self.assertEqual(self.in_start_menu(), [])
        self.assertEqual(content(self.computer.own), own)
        self.assertEqual(self.computer.run(SETUP, "/S").returncode, 0)
        self.assertEqual(content(self.computer.programs), fresh)
        self.assertEqual(content(self.computer.own), own)
        self.assertEqual(sheet.read_bytes(), saved)
        Installed(self.computer).window(START)

    def test_what_it_has_not_laid_down_stays_among_the_programs(self):
        tools = self.computer.c / "tools"
        (tools / "bin").mkdir(parents=True)
        (tools / "bin/mine.txt").write_bytes(b"mine")
        self.assertEqual(self.computer.run(SETUP, "/S", r"/D=C:\tools").returncode, 0)
        (tools / "share/marlbrook/notes.txt").write_bytes(b"mine too")
        self.computer.run(tools / "uninstall.exe", "/S")
        wait_for("the end of the uninstaller", lambda: not (tools / "uninstall.exe").exists())
        self.assertEqual([path for path in sorted(content(tools)) if content(tools)[path] is not None],
                         [pathlib.Path("bin/mine.txt"), pathlib.Path("share/marlbrook/notes.txt")])

    def test_while_the_program_runs_nothing_is_replaced(self):
        program = Installed(self.computer)
        program.window(START)
        before = content(self.computer.programs)
        self.assertEqual(self.computer.run(SETUP, "/S").returncode, REFUSED)
        self.assertEqual(content(self.computer.programs), before)
        self.computer.run(self.computer.programs / "uninstall.exe", "/S", f"_?={self.computer.path(self.computer.programs)}")
        self.assertEqual(content(self.computer.programs), before)

    def test_a_session_changes_nothing_among_the_programs(self):
        before = content(self.computer.programs)
        self.count_and_save(self.computer.c / "core.csv")
        self.assertEqual(content(self.computer.programs), before)


class FolderTest(unittest.TestCase):
    def setUp(self):
        self.computer = Computer(installed())
        self.addCleanup(self.computer.end)

    def unpack(self, place):
        zipped = next(BIN.parent.glob("Marlbrook-*-windows.zip"))
        subprocess.run(["unzip", "-q", zipped, "-d", place], check=True)
        return next(place.iterdir())

    def test_unpacked_anywhere_it_keeps_everything_beside_itself(self):
        folder = self.unpack(self.computer.c / "My stick (E)")
        program = Installed(self.computer, program=folder / "marlbrook.exe", first_run=True)
        program.window("Initialize")
        self.assertTrue((folder / ".marlbrook.lock").exists())
        self.assertFalse(self.computer.own.exists())

    def test_where_nobody_may_write_it_keeps_its_own_with_its_user_and_a_save_there_loses_nothing(self):
        folder = self.unpack(self.computer.c / "For all")
        before = content(folder)
        for_reading = [*OWN_NAMESPACE, "sh", "-c", 'mount --bind -o ro "$0" "$0" && exec "$@"', str(folder)]
        program = Installed(self.computer, program=folder / "marlbrook.exe", first_run=True, through=for_reading)
        program.window("Initialize")
        program.press(*NAMED_KEYS, ENTER)
        self.computer.desk.gone("Initialize")
        program.begin("10")
        program.press(*PAD[:3])
        program.wait_rescue(3)
        program.press(SAVE)
        program.type_file_name("Save as", self.computer.path(folder / "core.csv"))
        program.press(ENTER)
        self.computer.desk.gone("Save as")
        program.answer("Error", ENTER)
        program.activate(MAIN)
        self.assertEqual(counts_of(program.save_as(self.computer.c / "core.csv")), {1: 1, 2: 1, 3: 1})
        self.assertTrue(program.settings.is_relative_to(self.computer.own))
        self.assertEqual(content(folder), before)


if __name__ == "__main__":
    unittest.main()
