"""Keys that are held: a counter key counts on until its release, the undo key takes one grain back when it is let go and none before."""
import unittest

from desk import MAIN, START, Desk, Program
from keyboard import ENTER, PAD, UNDO
from spoken import wait_for

LONG = 1.2  # seconds: fifty repeats


class HeldKeysTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.desk.repeat(True)
        self.program = Program(self.desk)
        self.addCleanup(self.program.end)

    def counts(self, saved):
        return [int(line.rsplit(b",", 1)[1]) for line in saved.split(b"\r\n")[2:137]]

    def test_a_counter_key_counts_on_until_its_release(self):
        program, path = self.program, self.program.work / "held.csv"
        program.begin("1")
        program.hold(PAD[4])
        wait_for("the repeats of a held key", lambda: program.total() > 10)
        program.release(PAD[4])
        program.press(PAD[5])
        first = self.counts(program.save_as(path))
        self.assertGreater(first[4], 10)
        self.assertEqual(first[5], 1)
        self.assertEqual(sum(first), first[4] + 1)
        program.press(UNDO)
        first[5] = 0
        self.assertEqual(self.counts(program.save_again(path)), first)

    def test_the_undo_key_takes_one_grain_back_when_it_is_let_go(self):
        program = self.program
        program.begin("1")
        program.hold_for(LONG, UNDO)  # nothing to undo
        program.press(*PAD[:30])
        program.wait_total(30)
        program.hold_for(LONG, UNDO)
        saved = program.save_as(program.work / "undone.csv")
        self.assertEqual(self.counts(saved), [1] * 29 + [0] * 106)

    def test_a_key_pressed_again_within_the_same_moment_is_no_repeat(self):
        program = self.program
        program.begin("1")
        program.press(*PAD[:30])
        program.wait_total(30)
        program.press(*[UNDO] * 10)
        program.wait_total(20)
        program.press(*[PAD[44]] * 10)
        program.wait_total(30)

    def test_a_held_undo_key_turns_counter_keys_round_and_undoes_nothing_at_its_release(self):
        program = self.program
        program.begin("1")
        program.press(*PAD[:30])
        program.wait_total(30)
        program.hold(UNDO)
        program.hold_for(LONG, PAD[44])
        program.release(UNDO)
        program.press(PAD[43])
        counts = self.counts(program.save_as(program.work / "turned.csv"))
        self.assertLess(counts[44], 0)
        self.assertEqual(counts[:44] + counts[45:], [1] * 30 + [0] * 13 + [1] + [0] * 90)

    def test_enter_held_on_is_not_the_next_windows_key(self):
        program = self.program
        settings = program.folder / "References/KeySetting.csv"
        settings.write_text(settings.read_text().replace('"=",187,', '"[Enter]",13,'))  # it saves
        program.restart()
        self.program.window(START)
        program.press(ENTER)
        program.type("12.5")
        program.hold_for(LONG, ENTER)
        self.desk.gone(START)
        self.program.window(MAIN)
        program.press(PAD[0])
        program.wait_total(1)
        self.assertEqual(self.desk.windows("Save as"), [], "the save key was heard")
        program.press(ENTER)
        self.program.window("Save as")


if __name__ == "__main__":
    unittest.main()
