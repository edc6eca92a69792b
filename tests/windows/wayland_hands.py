"""Keys and a pointer for a Wayland desk, by the protocols zwp_virtual_keyboard_v1 and zwlr_virtual_pointer_v1 over its socket.

Keys are physical ones: the desk gets the keymap of the layout us and codes of places, as from a keyboard of metal.
"""
import array
import os
import socket
import struct
import subprocess

XKB_V1 = 1
DISPLAY = 1  # the first object of every connection
SYNC, GET_REGISTRY, BIND = 0, 1, 0
DISPLAY_ERROR, REGISTRY_GLOBAL, CALLBACK_DONE = 0, 0, 0
CREATE = 0                                      # of both managers
KEYMAP, KEY, MODIFIERS = 0, 1, 2                # of a keyboard
MOVE_TO, BUTTON, FRAME = 1, 2, 4                # of a pointer
BUTTONS = {1: 0x110, 2: 0x112, 3: 0x111}        # Linux's codes of the left, the middle and the right one
MODIFIER_OF = {50: 1, 62: 1, 37: 4, 105: 4, 64: 8}  # X key code: its bit in the keymap, of Shift, Ctrl and Alt
X_OFFSET = 8                                    # between X key codes and Linux's
BETWEEN_KEYS = 2                                # milliseconds


def _text(text):
    raw = text.encode() + b"\0"
    return struct.pack("=I", len(raw)) + raw + b"\0" * (-len(raw) % 4)


class Connection:
    """Objects are numbers, arguments are numbers or bytes in the form of the wire."""

    def __init__(self, path):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.settimeout(60)
        self.socket.connect(str(path))
        self.last_id = DISPLAY
        self.received = b""

    def new_id(self):
        self.last_id += 1
        return self.last_id

    def request(self, sender, opcode, *arguments, file=None):
        body = b"".join(part if isinstance(part, bytes) else struct.pack("=I", part) for part in arguments)
        message = struct.pack("=II", sender, (8 + len(body)) << 16 | opcode) + body
        files = [] if file is None else [(socket.SOL_SOCKET, socket.SCM_RIGHTS, array.array("i", [file]))]
        self.socket.sendmsg([message], files)

    def event(self):
        """Sender, opcode and body of the next one."""
        while len(self.received) < 8 or len(self.received) < self._size():
            more = self.socket.recv(65536)
            if not more:
                raise ConnectionError("the desk has closed the connection")
            self.received += more
        size = self._size()
        sender, head = struct.unpack_from("=II", self.received)
        body, self.received = self.received[8:size], self.received[size:]
        if (sender, head & 0xFFFF) == (DISPLAY, DISPLAY_ERROR):
            raise ConnectionError(f"the desk refuses: {body!r}")
        return sender, head & 0xFFFF, body

    def _size(self):
        return struct.unpack_from("=I", self.received, 4)[0] >> 16

    def sync(self):
        """Waits until the desk has taken all requests; returns the events that have come."""
        callback = self.new_id()
        self.request(DISPLAY, SYNC, callback)
        events = []
        while True:
            sender, opcode, body = self.event()
            if (sender, opcode) == (callback, CALLBACK_DONE):
                return events
            events.append((sender, opcode, body))


class Hands:
    def __init__(self, path, width, height):
        self.desk = Connection(path)
        self.size = (width, height)
        self.time = 0  # milliseconds of these hands
        self.modifiers = 0
        self.registry = self.desk.new_id()
        self.desk.request(DISPLAY, GET_REGISTRY, self.registry)
        self.globals = dict(self._global(body) for sender, opcode, body in self.desk.sync()
                            if (sender, opcode) == (self.registry, REGISTRY_GLOBAL))
        self.seat = self._bind("wl_seat")
        self.keyboard = self._create("zwp_virtual_keyboard_manager_v1")
        self._load_keymap()
        self.pointer = self._create("zwlr_virtual_pointer_manager_v1")
        self.desk.sync()

    def close(self):
        self.desk.socket.close()

    @staticmethod
    def _global(body):
        """An interface and its number."""
        number, length = struct.unpack_from("=II", body)
        return body[8 : 8 + length - 1].decode(), number

    def _bind(self, interface):
        bound = self.desk.new_id()
        version = 1
        self.desk.request(self.registry, BIND, self.globals[interface], _text(interface), version, bound)
        return bound

    def _create(self, manager):
        manager, created = self._bind(manager), self.desk.new_id()
        self.desk.request(manager, CREATE, self.seat, created)
        return created

    def _load_keymap(self):
        keymap = subprocess.run(["xkbcli", "compile-keymap", "--layout", "us"], capture_output=True, check=True).stdout + b"\0"
        with os.fdopen(os.memfd_create("keymap"), "wb") as file:
            file.write(keymap)
            file.flush()
            self.desk.request(self.keyboard, KEYMAP, XKB_V1, len(keymap), file=file.fileno())

    def _tick(self):
        self.time += BETWEEN_KEYS
        return self.time

    def send(self, steps):
        for code, down in steps:
            self.desk.request(self.keyboard, KEY, self._tick(), code - X_OFFSET, int(down))
            bit = MODIFIER_OF.get(code, 0)
            if bit:
                self.modifiers = self.modifiers | bit if down else self.modifiers & ~bit
                self.desk.request(self.keyboard, MODIFIERS, self.modifiers, 0, 0, 0)
        self.desk.sync()

    def move(self, x, y):
        self.desk.request(self.pointer, MOVE_TO, self._tick(), x, y, *self.size)
        self.desk.request(self.pointer, FRAME)
        self.desk.sync()

    def button(self, number, down):
        self.desk.request(self.pointer, BUTTON, self._tick(), BUTTONS[number], int(down))
        self.desk.request(self.pointer, FRAME)
        self.desk.sync()
