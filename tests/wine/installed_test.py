"""The program as its setup has installed it on Windows, from the first run to the saved sheet: by real keys, under Wine."""
import csv
import os
import unittest

from computer import Computer, Installed, bare, installed
from count_test import STAMP, count_thirty, expected_sheet
from desk import MAIN, START
from heard import Recording
from keyboard import ALT, DOWN, ENTER, NAMED_KEY_CODES, NAMED_KEYS, PAD, key_of
from rescue_test import counts_in
from spoken import wait_for

FIRST_NAMED_ROW = 51
DIAGRAM = "Diagram"


class InstalledTest(unittest.TestCase):
    def start(self, **options):
        self.computer = Computer(installed())
        self.addCleanup(self.computer.end)
        self.program = Installed(self.computer, **options)

    def named_codes(self):
        rows = list(csv.reader(self.program.settings.read_text(encoding="ascii").splitlines()))
        return [row[1] for row in rows[FIRST_NAMED_ROW:]]

    def test_first_run_then_a_name_then_counting(self):
        self.start(first_run=True)
        program = self.program
        program.window("Initialize")
        self.assertEqual(self.named_codes(), ["999"] * 12)
        expected = program.settings.read_bytes()
        for code in NAMED_KEY_CODES:
            expected = expected.replace(b",999,", b",%d," % code, 1)
        program.press(*NAMED_KEYS, ENTER)
        self.computer.desk.gone("Initialize")
        self.assertEqual(program.settings.read_bytes(), expected, "as under Linux, to the byte")
        program.begin("12.5")
        program.press(*PAD)
        path = self.computer.c / "first.csv"
        saved = program.save_as(path)
        self.assertEqual(STAMP.sub(b"STAMP", saved), expected_sheet("C:\\first.csv", {slot: 1 for slot in range(1, 46)}))

    def test_three_banks_undo_and_sounds(self):
        self.start()
        self.program.begin("12.5")
        saved, counts = count_thirty(self.program, self.computer.c / "core.csv")
        self.assertEqual(saved, expected_sheet("C:\\core.csv", counts))

    def test_a_hundred_is_heard_and_backed_up_and_the_next_sample_begins(self):
        self.start()
        program = self.program
        program.begin("10")
        recording = Recording(program.sound, program.folder / "Sound files")
        program.press_in_turn(0, 99)
        program.wait_rescue(99)
        back_ups = program.folder / "References/Back up files"
        self.assertEqual(os.listdir(back_ups), ["Rescue.csv"])
        program.press(PAD[99 % len(PAD)])
        wait_for("a back-up of 100 grains", lambda: any(sum(counts_in(path).values()) == 100 for path in back_ups.glob("*back_up*")))
        wait_for("the alarm", lambda: "Alarm" in recording.hear())
        path = self.computer.c / "two.csv"
        program.save_as(path)
        program.chord(ALT, key_of("f"))
        program.press(DOWN, DOWN, ENTER)  # Next sample
        program.window(START)
        program.type("20")
        program.press(ENTER)
        self.computer.desk.gone(START)
        program.window(MAIN)
        program.press(*PAD[:2])
        saved = program.save_again(path).decode().split("\r\n")
        self.assertTrue(saved[1].endswith('"Sample name","10","20"'), saved[1])
        self.assertEqual([row.rsplit(",", 2)[1:] for row in saved[2:5]], [["3", "1"], ["3", "1"], ["3", "0"]])

    def test_a_second_start_is_refused_and_the_first_counts_on(self):
        self.start()
        self.program.begin("10")
        second = Installed(self.computer)
        wait_for("its message", lambda: self.computer.desk.windows("Marlbrook"))
        second.activate("Marlbrook")
        second.answer("Marlbrook", ENTER)
        second.wait_for_end()
        self.assertEqual(second.process.returncode, 0)
        self.program.activate(MAIN)
        self.program.press(PAD[0])
        self.program.wait_rescue(1)


if __name__ == "__main__":
    unittest.main()
