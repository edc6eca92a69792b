"""A screen of its own, the real program on it, and real keys and clicks: what the tests of the window stand on.

Nothing here waits for time. What a test waits for is a window, what the program says to a screen reader, or a file.
"""
import os
import pathlib
import re
import shutil
import tempfile
import time

import spoken
from keyboard import ENTER, NAMED_KEY_CODES, PAD, SAVE, chord, down_and_up, typing
from spoken import wait_for
from wayland_desk import WaylandDesk
from x11_desk import X11Desk

TOP = pathlib.Path(__file__).resolve().parents[2]
BIN = pathlib.Path(os.environ.get("MARLBROOK_BIN", TOP / "build/release/bin"))
START, MAIN = r"Marlbrook 2\.7", r"Marlbrook 2\.7(\.5|( - |\.5 - ).*)"
END_OF_SHEET = re.compile(rb'"All total"[^\r\n]*\r\n\Z')

Desk = {"x11": X11Desk, "wayland": WaylandDesk}[os.environ.get("MARLBROOK_DESK", "x11")]


class StartedProgram:
    """A program that runs on a desk, started by this command, and a user's hands on its keys."""

    def __init__(self, desk, command, **options):
        self.desk = desk
        self.command = command
        self.options = options
        self.start()

    def start(self):
        self.process = self.desk.start(self.command, **self.options)

    def stop(self):
        self.process.terminate()
        self.process.wait(timeout=60)

    def restart(self):
        self.stop()
        self.start()

    def press(self, *codes):
        """Each key pressed and released, one after the other."""
        self.desk.send(down_and_up(*codes))

    def press_in_turn(self, before, keys):
        """So many counter keys, one after the other round the pad, that many having been pressed before."""
        for number in range(before, before + keys):
            self.press(PAD[number % len(PAD)])

    def chord(self, *codes):
        self.desk.send(chord(*codes))

    def hold(self, *codes):
        self.desk.send([(code, True) for code in codes])

    def release(self, *codes):
        self.desk.send([(code, False) for code in codes])

    def hold_for(self, seconds, code, then=None):
        """Where the length is the subject. A busy machine makes fewer repeats of it, so no test may need a number of them. `then` is a key
        that is pressed at its end, before it is let go."""
        self.hold(code)
        time.sleep(seconds)
        if then:
            self.press(then)
        self.release(code)

    def type(self, text):
        """On the layout us."""
        self.desk.send(typing(text))

    def window(self, title):
        """A window whose whole title matches the pattern; waits until it gets the keys."""
        return self.desk.window(title)

    def begin(self, name):
        """From the start face to a first sample of this name; the main window then has the keyboard."""
        self.window(START)
        self.press(ENTER)  # Create new data file
        self.type(name)
        self.press(ENTER)  # OK
        self.desk.gone(START)
        self.window(MAIN)

    def save_as(self, path, key=SAVE):
        """The save key, and the name into the dialog that it opens. Returns the saved bytes."""
        self.press(key)
        self.answer_file_dialog("Save as", path)
        return self._saved(path, lambda: path.exists())

    def answer_file_dialog(self, title, path):
        self.window(title)
        self.enter_file_name(title, path)
        self.press(ENTER)
        self.desk.gone(title)
        self.window(MAIN)

    def enter_file_name(self, _title, path):
        self.type(str(path))

    def save_again(self, path, key=SAVE):
        before = path.stat().st_mtime_ns
        self.press(key)
        return self._saved(path, lambda: path.stat().st_mtime_ns != before)

    @staticmethod
    def _saved(path, is_new):
        return wait_for(f"a new {path}, whole", lambda: is_new() and END_OF_SHEET.search(path.read_bytes()) and path.read_bytes())


class Program(StartedProgram):
    """The program in a folder of its own, as after its first run, its sounds written to a file. Its controls are found by the names that a
    screen reader says, in the window whose title matches a pattern. `through` is a command that ends by running the words behind its own."""

    def __init__(self, desk, first_run=False, environment=(), through=()):
        self.work = pathlib.Path(tempfile.mkdtemp(prefix="marlbrook-window-"))
        self.folder = self.work / "program"
        shutil.copytree(BIN.parent / "tree", self.folder)
        shutil.copy(BIN / "marlbrook", self.folder)
        if not first_run:
            self._know_keyboard()
        self.sound = self.work / "sound.raw"
        own_places = {"SDL_AUDIODRIVER": "disk", "SDL_DISKAUDIOFILE": str(self.sound), "HOME": str(self.work)}
        self.env = {**desk.env, **spoken.environment(), **own_places, **dict(environment)}
        super().__init__(desk, [*through, str(self.folder / "marlbrook")], env=self.env, cwd=self.work)

    def start(self):
        self._tree = None
        self._controls = {}
        super().start()

    def _know_keyboard(self):
        settings = self.folder / "References/KeySetting.csv"
        text = settings.read_bytes().decode()
        for code in NAMED_KEY_CODES:
            text = text.replace(",999,", f",{code},", 1)
        settings.write_bytes(text.encode())

    def end(self):
        self.stop()
        shutil.rmtree(self.work, ignore_errors=True)

    # ---- What it says to a screen reader ----

    def spoken_window(self, title):
        """A window on show whose whole title matches the pattern; waits for it."""
        self._tree = self._tree or spoken.program(self.process.pid)
        return wait_for(f"a spoken window '{title}'", lambda: next(
            (node for node in self._tree.children if re.fullmatch(title, node.name) and "showing" in node.states), None))

    def window(self, title):
        """The program says itself that it has taken in which window is in front."""
        found = super().window(title)
        wait_for(f"'{title}' to be the active window", lambda: "active" in self.spoken_window(title).states)
        return found

    def activate(self, title):
        """Brings a window to the front, as by a list of windows."""
        self.desk.activate(self.desk.windows(title)[0])
        self.window(title)

    def enter_file_name(self, title, path):
        """As a screen reader's user does: no list of names comes up over the box and takes keys while it comes."""
        self.control(title, "File name:", "text").type(str(path))

    def control(self, title, name, role=None):
        """What bears this name in a window; waits for it."""
        key = (title, name, role)
        if key not in self._controls or not self._is_there(self._controls[key]):
            self._controls[key] = wait_for(f"'{name}' in '{title}'", lambda: self._find(self.spoken_window(title), name, role))
        return self._controls[key]

    def is_shown(self, title, name):
        return self._find(self.spoken_window(title), name, None) is not None

    @staticmethod
    def _is_there(node):
        try:
            return "showing" in node.states
        except Exception:  # whatever the bus says of what has gone
            return False

    @staticmethod
    def _find(window, name, role):
        return next((node for child in window.children if "showing" in child.states
                     for node in child.walk() if role in (None, node.role) and re.fullmatch(name, node.name)), None)

    def text(self, title, name):
        return self.control(title, name, "text").text

    def total(self):
        return int(self.text(MAIN, "All total:?"))

    def wait_total(self, count):
        wait_for(f"a total of {count}", lambda: self.total() == count)

    def wait_focus(self, title, name):
        wait_for(f"the focus on '{name}'", lambda: "focused" in self.control(title, name).states)

    # ---- The mouse ----

    def box(self, title, name, role=None):
        """Left, top, width, height of a control on the screen, once it is all inside its window and the window is laid out."""
        return wait_for(f"the place of '{name}' in '{title}'", lambda: self._box(title, self.control(title, name, role)))

    def _box(self, title, node):
        on_screen = next((self.desk.place(window) for window in self.desk.windows(title)), None)
        window, inside = _extents(self.spoken_window(title)), _extents(node)
        left, top = inside.x - window.x, inside.y - window.y
        is_laid_out = on_screen and on_screen[2:] == (window.width, window.height)
        if not is_laid_out or min(left, top) < 0 or left + inside.width > window.width or top + inside.height > window.height:
            return None
        return on_screen[0] + left, on_screen[1] + top, inside.width, inside.height

    def click(self, title, name, role="push button", button=1):
        """The middle of a control in the window in front, as soon as it can be used."""
        self.window(title)
        wait_for(f"the use of '{name}'", lambda: "enabled" in self.control(title, name, role).states)
        left, top, width, height = self.box(title, name, role)
        self.desk.press_button(button, left + width // 2, top + height // 2)


def _extents(node):
    from pyatspi import DESKTOP_COORDS
    return node.accessible.queryComponent().getExtents(DESKTOP_COORDS)
