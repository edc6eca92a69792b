"""What the tests know of a desk, whatever draws its windows: the processes on it, the windows by their titles, the one with the keyboard.

Every process that is started here is ended here, by its own id.
"""
import atexit
import re
import subprocess

from spoken import wait_for


class Screen:
    """A screen of its own without a monitor. A kind of desk says how it looks for windows and moves keys and pointer:

        listed()                the windows, from the bottom to the top
        title(window)           "" if it has gone
        place(window)           left, top, width, height of its inside on the screen; None if it has gone
        in_front(window)        does it get the keys?
        activate(window)        asks for that
        send(steps)             keys down and up: (X key code, is it down)
        move(x, y)              the pointer
        button(number, down)    1 is the left one, 3 the right one
        settle(window)          waits until the window's program has taken the moves of the pointer so far
        repeat(on)              held keys repeat, from 200 ms on 50 times a second; at first they do not
        leave()                 ends the connections of the tests with it, if there are any
        picture()               the bytes of a PNG of all that is on it
        copied_picture(kind)    the bytes of a picture from the clipboard, a PNG if no other kind is named

    Windows of X11 have frames, and their user moves them:

        frame(window)           the width of its frame at the left, right, top and bottom; () before it has one
        put(window, ...)        asks for this left, top, width, height of its inside
        maximise(window, on)    asks for that
        minimise(window)        likewise
    """

    def __init__(self):
        self.processes = []
        self.env = {}
        atexit.register(self._end_processes)  # of a desk that never came up too

    def start(self, command, **options):
        process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options)
        self.processes.append(process)
        return process

    def output(self, *command):
        return subprocess.run([str(word) for word in command], env=self.env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                              check=False).stdout

    def windows(self, title):
        """Those whose whole title matches the pattern."""
        return [window for window in self.listed() if re.fullmatch(title, self.title(window))]

    def titles(self):
        return [self.title(window) for window in self.listed()]

    def window(self, title):
        """Such a window; waits until it gets the keys."""
        try:
            return wait_for(f"a window '{title}' in front", lambda: next((w for w in self.windows(title) if self.in_front(w)), None))
        except AssertionError as failure:
            raise AssertionError(f"{failure}; there are {self.titles()}") from None

    def gone(self, title):
        wait_for(f"the end of the window '{title}'", lambda: not self.windows(title))

    def press_button(self, number, x, y):
        self.move(x, y)
        self.button(number, True)
        self.button(number, False)

    def lose(self):
        """What draws the windows is gone, as if it had failed."""
        self.leave()
        self.processes[0].kill()
        self.processes[0].wait()

    def close(self):
        self.leave()
        self._end_processes()

    def _end_processes(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait(timeout=60)
