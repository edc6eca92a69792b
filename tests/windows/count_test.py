"""Thirty grains over three banks, one reversed, one undone, saved by key: the file, the sounds, and no character anywhere."""
import re
import time
import unittest

from desk import PAD, SAVE, SHIFT_1, SHIFT_2, UNDO, Desk, Program
from heard import heard

STAMP = re.compile(rb"\d\d/\d\d/\d\d\d\d(_| )\(\d\d:\d\d:\d\d\)")
PAUSE = 110  # milliseconds between keys: every sound is heard to its end


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


class CountTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.program = Program(self.desk)
        self.addCleanup(self.program.end)
        self.program.begin("12.5")

    def test_thirty_grains_reach_the_file_and_the_ear(self):
        program, path = self.program, self.program.work / "core.csv"
        time.sleep(2)  # the opening sound is heard to its end
        program.press(*PAD[:10], delay=PAUSE)
        program.hold(SHIFT_1)
        program.press(*PAD[10:20], delay=PAUSE)
        program.hold(SHIFT_2)
        program.press(*PAD[20:30], delay=PAUSE)
        program.release(SHIFT_1, SHIFT_2)
        program.hold(UNDO)
        program.press(PAD[0], delay=200)
        program.release(UNDO)
        time.sleep(0.2)
        program.press(PAD[1], delay=PAUSE)
        program.press(UNDO, delay=200)
        saved = program.save_as(path)
        time.sleep(0.5)
        counts = {slot: 1 for slot in [*range(2, 11), *range(56, 66), *range(111, 121)]}
        self.assertEqual(STAMP.sub(b"STAMP", saved).decode(), expected_sheet(path, counts).decode())
        self.assertEqual(heard(program.sound, program.folder / "Sound files"),
                         ["Opening"] + ["Key-1"] * 10 + ["Key-2"] * 10 + ["Key-3"] * 10 + ["Undo", "Key-1", "Undo", "Save"])

    def test_a_key_that_is_held_counts_on_and_its_release_is_one(self):
        program, path = self.program, self.program.work / "held.csv"
        program.hold(UNDO)  # held alone, it repeats without effect
        time.sleep(0.8)
        program.release(UNDO)
        program.hold(PAD[4])
        time.sleep(1.0)
        program.release(PAD[4])
        program.press(PAD[5])
        saved = program.save_as(path).decode()
        counts = [int(line.rsplit(",", 1)[1]) for line in saved.split("\r\n")[2:137]]
        self.assertGreater(counts[4], 10)
        self.assertEqual(counts[5], 1)
        self.assertEqual(sum(counts), counts[4] + 1)
        program.press(UNDO)
        again = program.save_again(path).decode()
        self.assertEqual(again.split("\r\n")[7], '6,0,0,"---",0')


if __name__ == "__main__":
    unittest.main()
