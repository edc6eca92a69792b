"""A computer with Windows as Wine makes one, on a desk of X11 of its own, and the program as its setup has installed it.

    computer = Computer(installed())      a user's, with the program; or Computer(bare())
    program = Installed(computer)         which runs there, with a user's hands on the keys
    computer.run(r"C:\\setup.exe", "/S")  another program, to its end

A computer is a folder (what Wine calls a prefix). It has a disk C:, and Z: is the disk that the tests themselves see. Each has its own, made of
hard links where nobody writes, so that a test begins with a fresh one and others run beside it.
"""
import atexit
import functools
import os
import pathlib
import shutil
import subprocess
import tempfile

from desk import BIN, MAIN, StartedProgram
from keyboard import END, ENTER, HOME, NAMED_KEY_CODES, SHIFT
from rescue_test import counts_in
from spoken import wait_for
from x11_desk import X11Desk

WINE, SERVER = "/usr/lib/wine/wine64", "/usr/lib/wine/wineserver64"
SETUP = next(BIN.parent.glob("Marlbrook-*-setup.exe"), None)
SHELL_FOLDERS = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders"


class Disk:
    """The folder of a computer, whether or not it runs."""

    def __init__(self, like=None):
        self.work = pathlib.Path(tempfile.mkdtemp(prefix="marlbrook-wine-"))
        atexit.register(self.end)
        self.prefix, self.home = self.work / "prefix", self.work / "home"
        self.c = self.prefix / "drive_c"
        self.env = {**os.environ, "WINEPREFIX": str(self.prefix), "WINEDEBUG": "-all", "HOME": str(self.home), "QT_QPA_PLATFORM": "windows",
                    "WINEDLLOVERRIDES": "winemenubuilder.exe,mscoree,mshtml="}  # no entries in menus of this system, no browser
        for name in ("DISPLAY", "WAYLAND_DISPLAY"):
            self.env.pop(name, None)
        self.home.mkdir()
        if like:
            self._copy(pathlib.Path(like))

    def _copy(self, prefix):
        shared = ["windows", "Program Files", "Program Files (x86)"]
        self.c.mkdir(parents=True)
        for entry in [*prefix.iterdir(), *(prefix / "drive_c").iterdir()]:
            if entry.name != "drive_c":
                how = ["--link"] if entry.name in shared else []
                subprocess.run(["cp", "--archive", *how, entry, self.prefix / entry.relative_to(prefix)], check=True)

    def run(self, *command, **options):
        """To its end; its status and what it says."""
        return subprocess.run([WINE, *[str(word) for word in command]], env=self.env, stdin=subprocess.DEVNULL, capture_output=True,
                              check=False, **options)

    def come_to_rest(self):
        """Until nothing runs there, and what was on its way to the registry is written."""
        subprocess.run([SERVER, "-w"], env=self.env, check=True)

    def end(self):
        if self.work.exists():
            subprocess.run([SERVER, "-k"], env=self.env, check=False)
            shutil.rmtree(self.work, ignore_errors=True)

    # ---- Its places ----

    @property
    def user(self):
        return next(folder for folder in (self.c / "users").iterdir() if folder.name != "Public")

    @property
    def programs(self):
        return self.user / "AppData/Local/Programs/Marlbrook"

    def path(self, file):
        """As the computer calls a file of its disk."""
        return "C:\\" + str(file.relative_to(self.c)).replace("/", "\\")

    def share(self):
        """The folder that its programs call \\\\server\\share."""
        folder = self.prefix / "dosdevices/unc/server/share"
        folder.mkdir(parents=True)
        return folder

    def set_value(self, key, name, value):
        self.run("reg", "add", key, "/v", name, "/t", "REG_SZ", "/d", value, "/f")


@functools.cache
def bare():
    """The folder of a computer without the program, whose first start is over: that of WINEPREFIX, or a new one."""
    given = os.environ.get("WINEPREFIX")
    if given:
        return given
    disk = Disk()
    disk.run("wineboot", "--init")
    disk.come_to_rest()
    return disk.prefix


@functools.cache
def installed():
    """That of one on which the setup has run, as its user lets it."""
    disk = Disk(bare())
    disk.run(SETUP, "/S")
    disk.come_to_rest()
    if not (disk.programs / "bin/marlbrook.exe").exists():
        raise AssertionError("the setup has not installed the program")
    return disk.prefix


class Computer(Disk):
    """One that is switched on."""

    def __init__(self, like, **desk):
        super().__init__(like)
        self.own = self.user / "AppData/Local/Marlbrook"  # what the program keeps for its user
        self.desk = X11Desk(**desk)
        self.env["DISPLAY"] = self.desk.env["DISPLAY"]

    def end(self):
        if self.work.exists():
            super().end()
            self.desk.close()


class Installed(StartedProgram):
    """The program, as after its first run. `program` is the file; `environment` comes on top of the computer's; `through` is a command that
    ends by running the words behind its own."""

    def __init__(self, computer, first_run=False, program=None, environment=(), through=()):
        self.computer = computer
        self.program = program or computer.programs / "bin/marlbrook.exe"
        self.folder = computer.own
        self.settings = self.folder / "References/KeySetting.csv"
        if not first_run:
            self._know_keyboard()
        self.sound = computer.work / "sound.raw"
        sounds = {"SDL_AUDIODRIVER": "disk", "SDL_DISKAUDIOFILE": "Z:" + str(self.sound)}
        super().__init__(computer.desk, [*through, WINE, str(self.program)], env={**computer.env, **sounds, **dict(environment)}, cwd=computer.c)

    def _know_keyboard(self):
        if self.settings.exists():
            return
        installed_settings = self.program.parents[1] / "share/marlbrook/References/KeySetting.csv"
        text = installed_settings.read_bytes().decode()
        for code in NAMED_KEY_CODES:
            text = text.replace(",999,", f",{code},", 1)
        self.settings.parent.mkdir(parents=True)
        self.settings.write_bytes(text.encode())

    def answer(self, title, *keys):
        """A message, by these keys together; in its first moment it takes none."""
        self.window(title)
        wait_for(f"the end of '{title}'", lambda: not self.desk.windows(title) or self.chord(*keys))

    @property
    def rescue(self):
        return self.folder / "References/Back up files/Rescue.csv"

    def wait_rescue(self, grains):
        """The copy of the sheet, a second later at the most, is what tells of the counts."""
        wait_for(f"a rescue of {grains} grains", lambda: sum(counts_in(self.rescue).values()) == grains)

    def wait_for_end(self):
        wait_for("the end of the program", lambda: self.process.poll() is not None)

    def kill(self):
        self.process.kill()
        self.process.wait()

    def answer_file_dialog(self, title, path):
        """That of Wine. It leaves the keys with nobody, so the main window is brought to the front as by a list of windows."""
        self.type_file_name(title, self.computer.path(path))
        self.press(ENTER)
        self.desk.gone(title)
        self.activate(MAIN)

    def type_file_name(self, title, name):
        """In place of the one that is proposed."""
        self.window(title)
        self.press(HOME)
        self.chord(SHIFT, END)
        self.type(name)

    def activate(self, title):
        window = self.desk.windows(title)[0]
        wait_for(f"'{title}' in front", lambda: self.desk.activate(window) or self.desk.in_front(window))  # it may be disabled for a moment
