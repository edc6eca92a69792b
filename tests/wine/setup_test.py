"""The setup on a computer that has the program already, and the uninstaller: what the user keeps stays as it is, to the byte."""
import os
import pathlib
import subprocess
import unittest

from computer import SETUP, Computer, Disk, Installed, installed
from desk import BIN, START
from keyboard import PAD
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
    def test_unpacked_anywhere_it_keeps_everything_beside_itself(self):
        computer = Computer(installed())
        self.addCleanup(computer.end)
        folder = computer.c / "My stick (E)"
        subprocess.run(["unzip", "-q", next(BIN.parent.glob("Marlbrook-*-windows.zip")), "-d", folder], check=True)
        folder = next(folder.iterdir())
        program = Installed(computer, program=folder / "marlbrook.exe", first_run=True)
        program.window("Initialize")
        self.assertTrue((folder / ".marlbrook.lock").exists())
        self.assertFalse(computer.own.exists())


if __name__ == "__main__":
    unittest.main()
