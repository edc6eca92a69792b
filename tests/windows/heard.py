"""Tells from a recording which sounds were played: 16-bit stereo at 44.1 kHz, as SDL's disk driver writes it."""
import array
import pathlib
import wave

from spoken import wait_for

NAMES = ["Key-1", "Key-2", "Key-3", "Opening", "Undo", "Save", "Alarm", "Error"]
COMPARED = 400       # samples that tell the waves apart
LONGEST_QUIET = 200  # samples of silence that may stand inside a sound
FRAME = 4            # bytes


def waves(folder):
    """The samples of each shipped sound, from its first that is not silent."""
    found = {}
    for name in NAMES:
        with wave.open(str(pathlib.Path(folder) / f"{name}.wav")) as file:
            samples = array.array("h", file.readframes(file.getnframes()))
        start = next(i for i, sample in enumerate(samples) if sample)
        found[name] = samples[start:]
    return found


def _same(recorded, sound):
    length = min(COMPARED, len(recorded), len(sound))
    return length > 0 and all(abs(a - b) <= 2 for a, b in zip(recorded[:length], sound[:length]))


class Recording:
    """The sounds in a file that is still being written."""

    def __init__(self, path, folder):
        self.path = pathlib.Path(path)
        self.waves = waves(folder)
        self.names = []  # of the sounds that have come to their end, in order; "?" for one that is none of them
        self._read = 0
        self._left = array.array("h")  # the left channel from the first sample that no ended sound holds

    def hear(self):
        """Reads on; returns the names."""
        self._take_new()
        while (sound := self._ended_sound()) is not None:
            self.names.append(next((name for name, known in self.waves.items() if _same(sound, known)), "?"))
        return self.names

    def wait_for(self, expected):
        """Until these sounds and no other have been heard to their ends."""
        wait_for(f"the sounds {expected}, not {self.names}", lambda: len(self.hear()) >= len(expected))
        if self.names != expected:
            raise AssertionError(f"heard {self.names}, not {expected}")

    def _take_new(self):
        if not self.path.exists():
            return
        with self.path.open("rb") as file:
            file.seek(self._read)
            new = file.read()
        new = new[: len(new) // FRAME * FRAME]
        self._read += len(new)
        self._left.extend(array.array("h", new)[0::2])

    def _ended_sound(self):
        """Takes the first sound off what is left, with the silence around it; None while it goes on."""
        begin = next((i for i, sample in enumerate(self._left) if sample), len(self._left))
        del self._left[:begin]
        quiet = 0
        for at, sample in enumerate(self._left):
            quiet = 0 if sample else quiet + 1
            if quiet == LONGEST_QUIET:
                sound = self._left[:at]
                del self._left[:at]
                return sound
        return None
