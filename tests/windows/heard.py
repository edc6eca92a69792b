"""Tells from a recording which sounds were played: 16-bit stereo at 44.1 kHz, as SDL's disk driver writes it."""
import array
import pathlib
import wave

NAMES = ["Key-1", "Key-2", "Key-3", "Opening", "Undo", "Save", "Alarm", "Error"]
COMPARED = 400       # samples that tell the waves apart
LONGEST_QUIET = 200  # samples of silence that may stand inside a sound


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


def heard(recording, folder):
    """The names of the sounds in the order in which they began, or "?" for one that is none of them."""
    frames = array.array("h", pathlib.Path(recording).read_bytes()[: pathlib.Path(recording).stat().st_size // 4 * 4])
    left = frames[0::2]
    sounds = waves(folder)
    names, at = [], 0
    while at < len(left):
        if not left[at]:
            at += 1
            continue
        name = next((name for name, sound in sounds.items() if _same(left[at : at + COMPARED], sound)), "?")
        names.append(name)
        quiet = 0
        while at < len(left) and quiet < LONGEST_QUIET:  # to its end: the next silence
            quiet = 0 if left[at] else quiet + 1
            at += 1
    return names
