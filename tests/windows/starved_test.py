"""A program that is late, for it shares one processor with four spinning processes: what is a repeat of a held key and what is a key of its
own must not depend on when it hears of it. It is asked for what came of the keys once it has its share of the machine again."""
import contextlib
import os
import signal
import subprocess
import sys
import unittest

from desk import MAIN, START, Desk, Program
from keyboard import ALT, ENTER, ESCAPE, NAMED_KEYS, PAD, TAB, UNDO, UP, chord, key_of
from spoken import wait_for

ALL_PROCESSORS = os.sched_getaffinity(0)
SPINNING = 4
LONG = 3  # seconds: a hundred and forty repeats
KEYS = 10_000


class StarvedTest(unittest.TestCase):
    def setUp(self):
        for _ in range(SPINNING):
            spinner = subprocess.Popen([sys.executable, "-c", "while True: pass"])
            self.addCleanup(spinner.wait)
            self.addCleanup(spinner.kill)
            os.sched_setaffinity(spinner.pid, {0})
        self.desk = Desk()
        self.addCleanup(self.desk.close)

    def start(self, **options):
        self.program = Program(self.desk, **options)
        self.addCleanup(self.program.end)

    def run_on(self, processors):
        for thread in os.listdir(f"/proc/{self.program.process.pid}/task"):
            os.sched_setaffinity(int(thread), processors)

    @contextlib.contextmanager
    def standing_still(self):
        """As late as can be: it hears of all that is done meanwhile at once."""
        self.program.process.send_signal(signal.SIGSTOP)
        yield
        self.program.process.send_signal(signal.SIGCONT)

    def hold(self, code, then=None):
        """Late, and with the keyboard repeating it."""
        self.run_on({0})
        self.desk.repeat(True)
        self.program.hold_for(LONG, code, then)
        self.desk.repeat(False)
        self.run_on(ALL_PROCESSORS)

    def begin(self):
        self.start()
        self.program.begin("12.5")

    def begin_with_thirty_grains(self):
        self.begin()
        self.program.press(*PAD[:30])
        self.program.wait_total(30)

    def counts(self):
        saved = self.program.save_as(self.program.work / "starved.csv")
        return [int(row.rsplit(b",", 1)[1]) for row in saved.split(b"\r\n")[2:137]]

    def wait_until_message_listens(self, title):
        """It hears no key in its first moment; after that Tab goes round its buttons."""
        def focused():
            return [node.name for node in self.program.spoken_window(title).walk() if "focused" in node.states]

        self.program.window(title)
        first = focused()
        wait_for("a message that takes keys", lambda: self.program.press(TAB) or focused() != first)

    def test_the_undo_key_held_alone_takes_one_grain_back(self):
        self.begin_with_thirty_grains()
        self.hold(UNDO)
        self.program.wait_total(29)
        self.assertEqual(self.counts(), [1] * 29 + [0] * 106)

    def test_the_undo_key_held_with_a_counter_key_takes_that_one_off(self):
        self.begin_with_thirty_grains()
        self.hold(UNDO, then=PAD[2])
        self.program.wait_total(29)
        self.assertEqual(self.counts(), [1, 1, 0] + [1] * 27 + [0] * 105)

    def test_a_counter_key_counts_on_and_stops_at_its_release(self):
        self.begin()
        self.hold(PAD[4])
        self.program.press(PAD[5])
        wait_for("the key behind it", lambda: self.program.text(MAIN, "Count of taxon 6") == "1")
        held = self.program.total() - 1
        self.assertGreater(held, 10)
        self.program.press(PAD[6])
        self.program.wait_total(held + 2)
        self.assertEqual(self.counts(), [0] * 4 + [held, 1, 1] + [0] * 128)

    def test_a_held_key_fills_one_box_of_the_first_run(self):
        self.start(first_run=True)
        self.desk.window("Initialize")
        for key in NAMED_KEYS[:2]:
            self.hold(key)
        self.program.press(NAMED_KEYS[2])
        wait_for("the third box", lambda: self.program.text("Initialize", r"Key code: \[Delete\]") == "46")
        self.assertEqual([self.program.text("Initialize", rf"Key code: \[{name}\]") for name in ("Shift", "Ctrl", "BkSp")], ["16", "17", ""])

    def name_sample_where_enter_saves(self):
        """Enter is then OK of the start face, the save key of the main window, Save in the dialog that asks for a name."""
        self.start()
        settings = self.program.folder / "References/KeySetting.csv"
        settings.write_text(settings.read_text().replace('"=",187,', '"[Enter]",13,'))
        self.program.restart()
        self.desk.window(START)
        self.program.press(ENTER)
        self.program.type("12.5")

    def assert_nothing_is_saved(self):
        self.desk.window(MAIN)
        self.program.press(PAD[0])
        self.program.wait_total(1)
        self.assertEqual(self.desk.windows("Save as"), [])
        self.assertEqual(list(self.program.work.glob("*.csv")), [])

    def test_enter_held_over_three_windows_answers_the_first(self):
        self.name_sample_where_enter_saves()
        self.hold(ENTER)
        self.assert_nothing_is_saved()

    def test_enter_let_go_before_the_program_hears_of_it_answers_the_first(self):
        self.name_sample_where_enter_saves()
        with self.standing_still():
            self.hold(ENTER)
        self.assert_nothing_is_saved()

    def test_counter_keys_behind_the_key_that_closes_a_menu_count(self):
        self.begin()
        self.program.chord(ALT, key_of("f"))
        wait_for("the menu", lambda: self.program.is_shown(MAIN, "Quit"))
        with self.standing_still():
            self.program.press(ESCAPE, *PAD[:5])
        self.program.wait_total(5)

    def test_counter_keys_behind_the_key_that_closes_a_message_count(self):
        self.begin_with_thirty_grains()
        self.program.click(MAIN, "Reset")
        self.wait_until_message_listens("Caution!")
        with self.standing_still():
            self.program.press(ESCAPE, *PAD[:5])
        self.program.wait_total(35)

    def test_quit_by_a_held_enter_goes_on_asking(self):
        self.begin_with_thirty_grains()
        self.program.chord(ALT, key_of("f"))
        wait_for("the menu", lambda: self.program.is_shown(MAIN, "Quit"))
        self.program.press(UP)
        self.hold(ENTER)
        self.desk.window("Caution!")
        self.program.press(ESCAPE)
        self.desk.gone("Caution!")
        self.desk.window(MAIN)
        self.assertEqual(self.counts(), [1] * 30 + [0] * 105)

    def test_ten_thousand_keys_count_once_each(self):
        self.begin()
        keys = [PAD[key % 45] for key in range(KEYS)]
        self.run_on({0})
        self.program.press(*keys)
        self.run_on(ALL_PROCESSORS)
        self.program.wait_total(KEYS)
        self.assertEqual(self.counts(), [KEYS // 45 + (slot < KEYS % 45) for slot in range(45)] + [0] * 90)


if __name__ == "__main__":
    unittest.main()
