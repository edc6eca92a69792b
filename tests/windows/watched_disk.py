"""The disk that a program has its HOME on, watched: what it would hold if the power went, and calls that wait or fail.

    disk = WatchedDisk()
    program = Program(desk, environment=disk.environment)
    with disk.trouble("flush", errno.EIO): ...        whatever is flushed meanwhile fails
    with disk.trouble(): ...                          the drive does not answer meanwhile
    for state, until in disk.states(): state.after_cut(chance)

The library watched_disk.cpp in the program writes down each call and makes it wait or fail.
"""
import contextlib
import dataclasses
import os
import pathlib
import shutil
import tempfile

from desk import BIN
from spoken import wait_for

LIBRARY = BIN / "libwatched_disk.so"


@dataclasses.dataclass
class Note:
    """A call that the program has made. `number` is an offset or a size, `content` what it wrote, the new name or the name of the call."""
    time: float  # as time.monotonic() tells it
    kind: str
    inode: int
    number: int
    path: str
    content: bytes


class WatchedDisk:
    def __init__(self):
        if not LIBRARY.exists():
            raise AssertionError(f"{LIBRARY} is missing: build the target watched_disk")
        self.notes = pathlib.Path(tempfile.mkdtemp(prefix="marlbrook-disk-"))
        self.environment = {"LD_PRELOAD": str(LIBRARY), "WATCHED_DISK": str(self.notes)}

    def close(self):
        shutil.rmtree(self.notes)

    # ---- Trouble ----

    @contextlib.contextmanager
    def trouble(self, call="any", error=0):
        """Meanwhile this call fails with this number of errno, or waits if it is 0."""
        trouble, beside = self.notes / "trouble", self.notes / "beside"
        beside.write_text(f"{call} {error}", encoding="ascii")
        os.replace(beside, trouble)
        try:
            yield
        finally:
            trouble.unlink()

    def wait_for_trouble(self, name, times=1):
        """Until calls for a file of this name have met it as often."""
        wait_for(f"trouble with {name}", lambda: sum(
            note.kind in ("waits", "fails") and pathlib.Path(note.path).name == name for note in self.journal()) >= times)

    # ---- What it holds ----

    def journal(self):
        """All calls so far. A kill may have broken off the last note."""
        notes, text, place = [], (self.notes / "journal").read_bytes(), 0
        while (end := text.find(b"\n", place)) >= 0:
            time, kind, inode, number, length, path = text[place:end].decode().split(" ", 5)
            place = end + 1 + int(length)
            if place <= len(text):
                notes.append(Note(int(time) / 1e9, kind, int(inode), int(number), path, text[end + 1:place]))
        return notes

    def states(self, journal=None, end=None):
        """What the disk held after each call, and when the next call changed that, or `end`. It is one state that changes."""
        journal = journal or self.journal()
        state = DiskState()
        for place, note in enumerate(journal):
            state.take(note)
            yield state, journal[place + 1].time if place + 1 < len(journal) else end or note.time


class File:
    """`flushed` is on the disk for sure; of what was done since then the disk may have taken any part."""

    def __init__(self):
        self.flushed = b""
        self.since = []  # (offset, bytes), or (size, None)

    def content(self, done=None, last_bytes=None):
        """With the first `done` changes since the flush, and of the last of them as many bytes; None: all."""
        found = bytearray(self.flushed)
        changes = self.since[:done]
        for place, (number, written) in enumerate(changes):
            if written is None:
                found = found[:number].ljust(number, b"\0")
                continue
            written = written[:last_bytes] if place == len(changes) - 1 else written
            found = found.ljust(number, b"\0")
            found[number:number + len(written)] = written
        return bytes(found)

    def after_cut(self, chance):
        """Forgotten, or the beginning of it is there."""
        if not self.since or chance.random() < 0.5:
            return self.flushed
        done = chance.randint(1, len(self.since))
        return self.content(done, chance.randint(0, len(self.since[done - 1][1] or b"")))


class DiskState:
    """The files that the program has made since it was watched. A file is under its name for sure once its folder is flushed."""

    def __init__(self):
        self.files = {}    # by inode
        self.names = {}    # path: File, as the program sees it
        self.flushed = {}  # folder: path: File
        self.since = {}    # folder: changes of names in their order, each path: File, or None for a name that has gone

    def take(self, note):
        folder = os.path.dirname(note.path)
        if note.kind == "new":
            self.files[note.inode] = File()
            self._change(folder, {note.path: self.files[note.inode]})
        elif note.kind == "rename" and note.path in self.names:
            to = note.content.decode()
            if os.path.dirname(to) != folder:
                raise AssertionError(f"{note.path} went to another folder: what a cut leaves of that is not known here")
            self._change(folder, {note.path: None, to: self.names[note.path]})
        elif note.kind == "remove" and note.path in self.names:
            self._change(folder, {note.path: None})
        elif note.kind == "flush" and note.inode in self.files:
            file = self.files[note.inode]
            file.flushed, file.since = file.content(), []
        elif note.kind == "flush":
            for change in self.since.pop(note.path, []):
                _apply(change, self.flushed.setdefault(note.path, {}))
        elif note.kind in ("write", "resize") and note.inode in self.files:
            self.files[note.inode].since.append((note.number, note.content if note.kind == "write" else None))

    def _change(self, folder, change):
        _apply(change, self.names)
        self.since.setdefault(folder, []).append(change)

    def seen(self):
        """As the program sees it: path: bytes."""
        return {path: file.content() for path, file in self.names.items()}

    def after_cut(self, chance):
        """What the disk may hold when the power has gone now: path: bytes."""
        found = {}
        for folder in {*self.flushed, *self.since}:
            names, changes = dict(self.flushed.get(folder, {})), self.since.get(folder, [])
            for change in changes[:chance.randint(0, len(changes))]:
                _apply(change, names)
            found.update((path, file.after_cut(chance)) for path, file in names.items())
        return found


def _apply(change, names):
    for path, file in change.items():
        if file is None:
            names.pop(path, None)
        else:
            names[path] = file
