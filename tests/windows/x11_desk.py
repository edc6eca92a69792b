"""A desk of X11: Xvfb with a window manager and a keyboard layout."""
import os
import pathlib
import re

from Xlib import X, display, error, protocol
from Xlib.ext import xtest

from screen import Screen
from spoken import wait_for

OPENBOX = pathlib.Path(__file__).with_name("openbox.xml")
RUNNING = "running"  # name of the root window once the manager is up
PAGER = 2            # who asks the manager
ICONIC = 3           # the state of a minimised window


class X11Desk(Screen):
    def __init__(self, size="1366x768", layout="us", variant=""):
        super().__init__()
        read, write = os.pipe()
        self.start(["Xvfb", "-displayfd", str(write), "-screen", "0", f"{size}x24", "-nolisten", "tcp", "-noreset"], pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as number:
            name = ":" + number.readline().strip()
        outside = {key: value for key, value in os.environ.items() if key != "WAYLAND_DISPLAY"}
        self.env = {**outside, "DISPLAY": name, "QT_QPA_PLATFORM": "xcb"}
        self.display = display.Display(name)
        self.root = self.display.screen().root
        self.pings = 0
        # It tells that it manages windows before it gives new ones the keyboard; the command it runs tells when it does.
        self.start(["openbox", "--config-file", str(OPENBOX), "--startup", f"xsetroot -name {RUNNING}"], env=self.env)
        wait_for("the window manager", lambda: self._property(self.root, "WM_NAME") == RUNNING.encode())
        self.use_layout(layout, variant)
        self.repeat(False)

    def leave(self):
        if self.display:
            self.display.close()
        self.display = None

    def use_layout(self, layout, variant=""):
        self.output("setxkbmap", "-layout", layout, "-variant", variant)

    def key_that_types(self, symbol):
        """Its X key code, as the server has it: the first symbol of a key is what it types without Shift."""
        return int(re.search(rf"^keycode +(\d+) = {symbol} ", self.output("xmodmap", "-pke").decode(), re.M).group(1))

    def repeat(self, on):
        if on:
            self.output("xset", "r", "rate", 200, 50)
        self.output("xset", "r", "on" if on else "off")

    # ---- Windows ----

    def _property(self, window, name):
        """The value of a window's property; None if there is none or no such window."""
        try:
            found = window.get_full_property(self.display.intern_atom(name), X.AnyPropertyType)
        except error.BadWindow:
            return None
        return found.value if found else None

    def _window(self, window):
        return self.display.create_resource_object("window", window)

    def listed(self):
        found = self._property(self.root, "_NET_CLIENT_LIST_STACKING")
        return [] if found is None else list(found)

    def title(self, window):
        return bytes(self._property(self._window(window), "_NET_WM_NAME") or b"").decode()

    def place(self, window):
        try:
            shape = self._window(window).get_geometry()
            corner = self._window(window).translate_coords(self.root, 0, 0)
        except error.BadDrawable:
            return None
        return -corner.x, -corner.y, shape.width, shape.height

    def in_front(self, window):
        focus = self.display.get_input_focus().focus
        active = self._property(self.root, "_NET_ACTIVE_WINDOW")
        return active is not None and active[0] == window == getattr(focus, "id", None)

    def _tell(self, window, to, message, mask, *data):
        """A message about a window, as managers and pagers send them."""
        event = protocol.event.ClientMessage(window=window, client_type=self.display.intern_atom(message),
                                             data=(32, [*data, *[0] * (5 - len(data))]))
        to.send_event(event, event_mask=mask)
        self.display.sync()

    def _ask_manager(self, window, message, *data):
        self._tell(window, self.root, message, X.SubstructureRedirectMask | X.SubstructureNotifyMask, *data)

    def activate(self, window):
        self._ask_manager(window, "_NET_ACTIVE_WINDOW", PAGER, X.CurrentTime)

    def put(self, window, left, top, width, height):
        left_top_width_height = 0b1111
        self._ask_manager(window, "_NET_MOVERESIZE_WINDOW", X.StaticGravity | left_top_width_height << 8 | PAGER << 12, left, top, width, height)

    def maximise(self, window, on):
        sides = [self.display.intern_atom(f"_NET_WM_STATE_MAXIMIZED_{side}") for side in ("HORZ", "VERT")]
        self._ask_manager(window, "_NET_WM_STATE", int(on), *sides, PAGER)

    def minimise(self, window):
        self._ask_manager(window, "WM_CHANGE_STATE", ICONIC)

    def frame(self, window):
        return tuple(self._property(self._window(window), "_NET_FRAME_EXTENTS") or ())

    def settle(self, window):
        """The program answers a ping when it has taken all that came before it."""
        self.pings += 1
        ping = self.display.intern_atom("_NET_WM_PING")
        self.root.change_attributes(event_mask=X.StructureNotifyMask)  # the answer goes to whoever watches the root
        self._tell(window, self._window(window), "WM_PROTOCOLS", X.NoEventMask, ping, self.pings, window)
        wait_for("the answer to a ping", lambda: self._is_answered([ping, self.pings, window]))

    def _is_answered(self, ping):
        while self.display.pending_events():
            event = self.display.next_event()
            if isinstance(event, protocol.event.ClientMessage) and list(event.data[1][:3]) == ping:
                return True
        return False

    # ---- Hands ----

    def send(self, steps):
        for code, down in steps:
            xtest.fake_input(self.display, X.KeyPress if down else X.KeyRelease, code)
        self.display.sync()

    def move(self, x, y):
        xtest.fake_input(self.display, X.MotionNotify, x=x, y=y)
        self.display.sync()

    def button(self, number, down):
        xtest.fake_input(self.display, X.ButtonPress if down else X.ButtonRelease, number)
        self.display.sync()

    # ---- What is seen and copied ----

    def picture(self):
        return self.output("import", "-window", "root", "png:-")

    def copied_picture(self, kind="image/png"):
        return self.output("xclip", "-selection", "clipboard", "-target", kind, "-out")
