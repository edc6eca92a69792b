"""Each of the 45 keys in each of the three banks counts its own slot: alone, again and again, and with the undo key held."""
import unittest

from desk import Desk, Program
from keyboard import PAD, SHIFT_1, SHIFT_2, UNDO

BURST = 150
SHIFTS = [[], [SHIFT_2], [SHIFT_1, SHIFT_2]]
SAMPLE_SIZES = [lambda slot: slot % 12 + 1, lambda slot: slot // 12 + 1]  # together they tell every slot from every other


class EveryKeyTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)

    def press_all(self, program, times, also_held=()):
        """In bursts: a desk of Wayland gives up a program that leaves it many hundreds of keys."""
        total = program.total()
        for bank, shifts in enumerate(SHIFTS):
            keys = [code for number, code in enumerate(PAD, 1) for _ in range(times(bank * 45 + number))]
            program.hold(*shifts, *also_held)
            for begin in range(0, len(keys), BURST):
                burst = keys[begin:begin + BURST]
                total += -len(burst) if UNDO in also_held else len(burst)
                program.press(*burst)
                program.wait_total(total)
            program.release(*also_held, *reversed(shifts))

    def counts(self, saved):
        return [int(line.rsplit(",", 1)[1]) for line in saved.decode().split("\r\n")[2:137]]

    def test_every_key_counts_its_own_slot_in_every_bank(self):
        for times in SAMPLE_SIZES:
            program = Program(self.desk)
            self.addCleanup(program.end)
            program.begin("1")
            self.press_all(program, times)
            path = program.work / "all.csv"
            wanted = [times(slot) for slot in range(1, 136)]
            self.assertEqual(self.counts(program.save_as(path)), wanted)
            self.press_all(program, lambda slot: 1, also_held=[UNDO])
            self.assertEqual(self.counts(program.save_again(path)), [count - 1 for count in wanted])
            program.stop()


if __name__ == "__main__":
    unittest.main()
