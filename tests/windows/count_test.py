"""Thirty grains over three banks, one reversed, one undone, saved by key: the file, the sounds, and no character anywhere."""
import re
import unittest

from desk import Desk, Program
from heard import Recording
from keyboard import PAD, SHIFT_1, SHIFT_2, UNDO

STAMP = re.compile(rb"\d\d/\d\d/\d\d\d\d(_| )\(\d\d:\d\d:\d\d\)")


def expected_sheet(path, counts):
    """The bytes of a sheet of one sample with these counts by slot, its times masked."""
    lines = [f'"{path}","Last saved (dd/mm/yyyy):","STAMP","Serial No.",1',
             '"Key index","Subtotal-1","Subtotal-2","Sample name","12.5"']
    lines += [f'{slot},0,0,"---",{counts.get(slot, 0)}' for slot in range(1, 136)]
    lines += [f'"---","---","---","Additional info-{p}","---"' for p in range(1, 7)]
    lines += ['"---","---","---","Note: ","Created: STAMP', "Note: ", 'Last saved: STAMP"']
    lines += ['"---","---","---","Subtotal-1",0', '"---","---","---","Subtotal-2",0',
              f'"---","---","---","All total",{sum(counts.values())}']
    return "".join(line + "\r\n" for line in lines).encode()


def count_thirty(program, path):
    """Thirty grains over three banks, one reversed, one undone, each heard to its end, and saved: the bytes of the file without its times,
    and the counts that are to stand in it."""
    recording = Recording(program.sound, program.folder / "Sound files")
    sounds = ["Opening"]
    recording.wait_for(sounds)

    def press(codes, sound):  # a sound would cut off the one before
        for code in codes:
            program.press(code)
            sounds.append(sound)
            recording.wait_for(sounds)

    press(PAD[:10], "Key-1")
    program.hold(SHIFT_1)
    press(PAD[10:20], "Key-2")
    program.hold(SHIFT_2)
    press(PAD[20:30], "Key-3")
    program.release(SHIFT_1, SHIFT_2)
    program.hold(UNDO)
    press(PAD[:1], "Undo")
    program.release(UNDO)
    press(PAD[1:2], "Key-1")
    press([UNDO], "Undo")
    saved = program.save_as(path)
    recording.wait_for([*sounds, "Save"])
    return STAMP.sub(b"STAMP", saved), {slot: 1 for slot in [*range(2, 11), *range(56, 66), *range(111, 121)]}


class CountTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.program = Program(self.desk)
        self.addCleanup(self.program.end)
        self.program.begin("12.5")

    def test_thirty_grains_reach_the_file_and_the_ear(self):
        path = self.program.work / "core.csv"
        saved, counts = count_thirty(self.program, path)
        self.assertEqual(saved.decode(), expected_sheet(path, counts).decode())

    def test_fast_keys_all_count(self):
        # Keys that a program has not taken yet lie with the desk; one of Wayland gives up a program that leaves it many hundreds.
        for burst in range(1, 5):
            self.program.press(*PAD * 5)
            self.program.wait_total(len(PAD) * 5 * burst)
        saved = self.program.save_as(self.program.work / "fast.csv").decode()
        self.assertEqual(saved.split("\r\n")[2:137], [f'{slot},0,0,"---",{20 * (slot <= 45)}' for slot in range(1, 136)])


if __name__ == "__main__":
    unittest.main()
