"""A desk of Wayland: sway without a screen. It asks sway itself for its windows, over its socket."""
import json
import os
import pathlib
import shutil
import socket
import struct
import tempfile

from screen import Screen
from spoken import wait_for
from wayland_hands import Hands

CONFIGURATION = pathlib.Path(__file__).with_name("sway.conf")
NOBODY = 65534  # sway will not run as root
RUN_COMMAND, GET_TREE = 0, 4


class WaylandDesk(Screen):
    def __init__(self, size="1366x768"):
        super().__init__()
        self.places = pathlib.Path(tempfile.mkdtemp(prefix="marlbrook-desk-"))
        as_nobody = []
        if os.geteuid() == 0:
            os.chown(self.places, NOBODY, NOBODY)
            as_nobody = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]
        outside = {key: value for key, value in os.environ.items() if key not in ("DISPLAY", "WAYLAND_DISPLAY")}
        own = {"XDG_RUNTIME_DIR": str(self.places), "SWAYSOCK": str(self.places / "sway"), "WLR_BACKENDS": "headless",
               "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1"}
        # By itself sway tells where a new window is to be before it puts it there, so a click at that place could go to another.
        at_once = "-Dnoatomic"
        self.start([*as_nobody, "sway", at_once, "--config", str(self._configuration(size))], env={**outside, **own})
        self.control = wait_for("sway", self._connect)
        display = wait_for("the display of Wayland", lambda: next(self.places.glob("wayland-?"), None))
        self.env = {**outside, "WAYLAND_DISPLAY": str(display), "QT_QPA_PLATFORM": "wayland"}
        self.hands = Hands(display, *[int(side) for side in size.split("x")])
        self.send, self.move, self.button = self.hands.send, self.hands.move, self.hands.button
        self.repeat(False)

    def _configuration(self, size):
        path = self.places / "configuration"
        path.write_text(CONFIGURATION.read_text(encoding="ascii") + f"output * resolution {size} position 0 0\n", encoding="ascii")
        return path

    def leave(self):
        if self.hands:
            self.hands.close()
            self.control.close()
        self.hands = None

    def close(self):
        super().close()
        shutil.rmtree(self.places)

    def _connect(self):
        control = socket.socket(socket.AF_UNIX)
        control.settimeout(60)
        try:
            control.connect(str(self.places / "sway"))
        except OSError:
            control.close()
            return None
        return control

    def _ask(self, kind, words=""):
        self.control.sendall(b"i3-ipc" + struct.pack("=II", len(words), kind) + words.encode())
        length, _ = struct.unpack("=6xII", self._receive(14))
        return json.loads(self._receive(length))

    def _receive(self, length):
        received = b""
        while len(received) < length:
            received += self.control.recv(length - len(received))
        return received

    def _command(self, words):
        for result in self._ask(RUN_COMMAND, words):
            if not result["success"]:
                raise AssertionError(f"sway does not take '{words}': {result}")

    def repeat(self, on):
        self._command("input * repeat_delay 200")
        self._command(f"input * repeat_rate {50 if on else 0}")

    # ---- Windows ----

    def _nodes(self):
        """Those that are windows, by their numbers, from the bottom to the top."""
        found, left = {}, [self._ask(GET_TREE)]
        while left:
            node = left.pop(0)
            if node.get("pid") and node["visible"]:
                found[node["id"]] = node
            left += node["nodes"] + node["floating_nodes"]
        return found

    def listed(self):
        return list(self._nodes())

    def title(self, window):
        return self._nodes().get(window, {}).get("name") or ""

    def place(self, window):
        node = self._nodes().get(window)
        if not node:
            return None
        outer, inner = node["rect"], node["window_rect"]
        return outer["x"] + inner["x"], outer["y"] + inner["y"], inner["width"], inner["height"]

    def in_front(self, window):
        return self._nodes().get(window, {}).get("focused", False)

    def activate(self, window):
        self._command(f"[con_id={window}] focus")

    def settle(self, window):
        """Nothing to wait for: here each step of the pointer reaches the program by itself."""

    # ---- What is seen and copied ----

    def picture(self):
        return self.output("grim", "-")

    def copied_picture(self, kind="image/png"):
        return self.output("wl-paste", "--type", kind)
