"""A screen of its own, the real program on it, and real keys and clicks: what the tests of the window stand on.

Every process that is started here is ended here, by its own id.
"""
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import time

TOP = pathlib.Path(__file__).resolve().parents[2]
BIN = pathlib.Path(os.environ.get("MARLBROOK_BIN", TOP / "build/release/bin"))
PATIENCE = 20  # seconds for anything to appear

# Physical keys by their X key codes, so that they are the same keys on every layout.
PAD = [24, 25, 26, 38, 39, 40, 52, 53, 54,  # Q W E / A S D / Z X C: counter keys 1..9
       27, 28, 29, 41, 42, 43, 55, 56, 57,  # R T Y / F G H / V B N
       30, 31, 32, 44, 45, 46, 58, 59, 60,  # U I O / J K L / M , .
       67, 68, 69, 10, 11, 12, 70, 71, 72,  # F1 F2 F3 / 1 2 3, F4 F5 F6 /
       13, 14, 15, 73, 74, 75, 16, 17, 18]  # 4 5 6, F7 F8 F9 / 7 8 9
SHIFT_1, SHIFT_2, UNDO, SAVE = 47, 33, 22, 21  # ; p BkSp =
NAMED_KEY_CODES = [16, 17, 46, 8, 27, 13, 32, 112, 37, 38, 39, 40]


def wait_for(what, condition):
    """The first true value of condition(), or an AssertionError that names `what`."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    raise AssertionError(f"nothing came of waiting for {what}")


class Desk:
    """An X display with a window manager and a keyboard layout."""

    def __init__(self, size="1366x768", layout="us", variant=""):
        read, write = os.pipe()
        self.processes = []
        self.start(["Xvfb", "-displayfd", str(write), "-screen", "0", f"{size}x24", "-nolisten", "tcp", "-noreset"], pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as number:
            self.env = dict(os.environ, DISPLAY=":" + number.readline().strip(), QT_QPA_PLATFORM="xcb")
        self.start(["openbox"], env=self.env)
        self.use_layout(layout, variant)
        self.run("xset", "r", "rate", "200", "50")

    def start(self, command, **options):
        process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options)
        self.processes.append(process)
        return process

    def run(self, *command):
        return subprocess.run(command, env=self.env, capture_output=True, text=True, check=False).stdout

    def use_layout(self, layout, variant=""):
        self.run("setxkbmap", "-layout", layout, "-variant", variant)

    def xdotool(self, *words):
        return self.run("xdotool", *[str(word) for word in words])

    def windows(self, title):
        return self.xdotool("search", "--onlyvisible", "--name", title).split()

    def window(self, title):
        """The window whose whole title matches the pattern, in front and with the keyboard."""
        found = wait_for(f"a window '{title}'", lambda: self.windows(title))[-1]
        self.xdotool("windowactivate", "--sync", found)
        return found

    def gone(self, title):
        wait_for(f"the end of the window '{title}'", lambda: not self.windows(title))

    def picture(self, path):
        subprocess.run(["import", "-window", "root", str(path)], env=self.env, check=False)

    def close(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait(timeout=10)


class StartedProgram:
    """A program that runs on a desk, started by this command, and a user's hands on its keys and its mouse."""

    def __init__(self, desk, command, **options):
        self.desk = desk
        self.command = command
        self.options = options
        self.start()

    def start(self):
        self.process = self.desk.start(self.command, **self.options)

    def stop(self):
        self.process.terminate()
        self.process.wait(timeout=10)

    def restart(self):
        self.stop()
        self.start()

    def point(self, window, size, x, y, menu_bar=False):
        """The pixels of x, y in a window; size is its design in twips, as are x and y."""
        shape = self.desk.xdotool("getwindowgeometry", "--shell", window)
        width = int(re.search(r"WIDTH=(\d+)", shape).group(1))
        height = int(re.search(r"HEIGHT=(\d+)", shape).group(1))
        factor = min(width / size[0], height / size[1])
        left, top = (width - size[0] * factor) / 2, (height - size[1] * factor) / (1 if menu_bar else 2)
        return round(left + x * factor), round(top + y * factor)

    def click(self, window, size, x, y, menu_bar=False):
        self.desk.xdotool("mousemove", "--window", window, *self.point(window, size, x, y, menu_bar), "click", 1)
        time.sleep(0.1)

    def click_main(self, x, y):
        self.click(self.main, (11400, 7980), x, y, menu_bar=True)

    def begin(self, name):
        """From the start face to a first sample of this name; the main window then has the keyboard."""
        start = self.desk.window(r"^Marlbrook 2\.7$")
        self.click(start, (7200, 2560), 4700, 1420)  # Create new data file
        time.sleep(0.3)
        self.desk.xdotool("type", "--delay", 30, name)
        self.desk.xdotool("key", "Return")  # OK
        self.desk.gone(r"^Marlbrook 2\.7$")
        self.main = self.desk.window(r"^Marlbrook 2\.7\.5$")
        time.sleep(0.3)

    def press(self, *codes, delay=12):
        """Each key pressed and released, in order, through one process so that they come quickly."""
        words = []
        for code in codes:
            words += ["keydown", code, "keyup", code, "sleep", delay / 1000]
        self.desk.xdotool(*words)

    def hold(self, *codes):
        self.desk.xdotool(*[word for code in codes for word in ("keydown", code, "sleep", 0.02)])

    def release(self, *codes):
        self.desk.xdotool(*[word for code in codes for word in ("keyup", code, "sleep", 0.02)])

    def save_as(self, path, key=SAVE):
        """The save key, and the name into the dialog that it opens. Returns the saved bytes."""
        self.press(key)
        self.desk.window("^Save as$")
        self.desk.xdotool("type", "--delay", 20, str(path))
        self.desk.xdotool("key", "Return")
        wait_for(f"the file {path}", lambda: path.exists() and path.stat().st_size)
        return path.read_bytes()

    def save_again(self, path, key=SAVE):
        before = path.stat().st_mtime_ns
        self.press(key)
        wait_for(f"a newer {path}", lambda: path.stat().st_mtime_ns != before and path.stat().st_size)
        return path.read_bytes()


class Program(StartedProgram):
    """The program in a folder of its own, as after its first run, its sounds written to a file."""

    def __init__(self, desk, first_run=False, environment=()):
        self.work = pathlib.Path(tempfile.mkdtemp(prefix="marlbrook-window-"))
        self.folder = self.work / "program"
        shutil.copytree(BIN.parent / "tree", self.folder)
        shutil.copy(BIN / "marlbrook", self.folder)
        if not first_run:
            self._know_keyboard()
        self.sound = self.work / "sound.raw"
        own_places = {"SDL_AUDIODRIVER": "disk", "SDL_DISKAUDIOFILE": str(self.sound), "HOME": str(self.work)}
        self.env = {**desk.env, **own_places, **dict(environment)}
        super().__init__(desk, [str(self.folder / "marlbrook")], env=self.env, cwd=self.work)

    def _know_keyboard(self):
        settings = self.folder / "References/KeySetting.csv"
        text = settings.read_bytes().decode()
        for code in NAMED_KEY_CODES:
            text = text.replace(",999,", f",{code},", 1)
        settings.write_bytes(text.encode())

    def end(self):
        self.stop()
        shutil.rmtree(self.work, ignore_errors=True)
