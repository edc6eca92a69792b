"""Sheets that no analyst wrote, as large as any that is read: the program opens them, or does not, without keeping its user waiting, and
counts on."""
import os
import unittest

from desk import MAIN, START, Program
from keyboard import ENTER, PAD, TAB
from spoken import wait_for
from x11_desk import X11Desk

SIZE = 16_000_000  # bytes
SLOTS, FIELDS = 135, 6
MOST_SECONDS = 3.0  # of the processor, for the program alone; a third of it where nothing else runs, and a fault takes ten times as much
MOST_MEMORY = 300_000  # kB, at the most at any time
TICKS = os.sysconf("SC_CLK_TCK")  # a second
GRAINS = 5


def filled(part, size=SIZE):
    part = part.encode()
    return part * (size // len(part))


def sheet(path="/old/place.csv", subtotal="Trees", sample="10", taxon="Pinus", count=str(GRAINS), field="Depth", value="7", note="Note"):
    """A sheet of one sample whose second taxon has been counted. Texts are bytes or words; `taxon`, `field` and `value` may be functions of
    their row, from 1."""
    def text(content, row=1):
        content = content(row) if callable(content) else content if row == 1 else "---"
        return b'"' + (content if isinstance(content, bytes) else content.encode()) + b'"'

    def number(content):
        return content if isinstance(content, bytes) else content.encode()

    rows = [[text(path), b'"Last saved (dd/mm/yyyy):"', b'"13/11/2026_(09:00:00)"', b'"Serial No."', b"1"],
            [b'"Key index"', text(subtotal), b'"Herbs"', b'"Sample name"', text(sample)]]
    rows += [[b"%d" % row, b"1", b"0", text(taxon, row), number(count if row == 2 else "0")] for row in range(1, SLOTS + 1)]
    rows += [[b'"---"'] * 3 + [text(field, row), text(value, row)] for row in range(1, FIELDS + 1)]
    rows += [[b'"---"'] * 3 + [b'"Note: "', text(note)]]
    rows += [[b'"---"'] * 3 + [text(label), b"0"] for label in ("Trees", "Herbs", "All total")]
    return b"".join(b",".join(row) + b"\r\n" for row in rows)


def each(part, rows):
    """As much of it for each row as makes a sheet of the full size."""
    return lambda row: filled(part, SIZE // rows)


NO_SHEETS = {
    "one line of letters": lambda: filled("x"),
    "one line of digits": lambda: filled("9"),
    "NULs": lambda: filled("\0"),
    "line ends": lambda: filled("\r\n"),
    "blanks": lambda: filled(" "),
    "marks and letters": lambda: filled('"a"b'),
    "accents cut in half": lambda: b"\xC3" * SIZE,
    "a note that is larger as a text": lambda: sheet(note=b"\x80" * SIZE),
}
OF_EMPTY_CELLS = {
    "commas": lambda: filled(","),
    "quotation marks": lambda: filled('"'),
}
SHEETS = {
    "digits where a count stands": lambda: sheet(count=filled("0") + str(GRAINS).encode()),
    "a path": lambda: sheet(path=filled("/")),
    "a subtotal": lambda: sheet(subtotal=filled("x")),
    "a sample name": lambda: sheet(sample=filled("x")),
    "a taxon": lambda: sheet(taxon=filled("x")),
    "a taxon of accents": lambda: sheet(taxon=filled("\u00E9")),
    "taxa of words": lambda: sheet(taxon=each("Abies alba ", SLOTS)),
    "taxa without width": lambda: sheet(taxon=each("\u200B", SLOTS)),
    "a field": lambda: sheet(field=filled("x")),
    "values of words": lambda: sheet(value=each("value ", FIELDS)),
    "a note of one word": lambda: sheet(note=filled("x")),
    "a note of words": lambda: sheet(note=filled("word ")),
    "a note of short lines": lambda: sheet(note=filled("a\r\n")),
    "a note of empty lines": lambda: sheet(note=filled("\r\n")),
    "a note of the letter beta": lambda: sheet(note=filled("\u03B2")),
    "a note in both directions": lambda: sheet(note=filled("\u05D0a ")),
    "a note without width": lambda: sheet(note=filled("\u200B")),
    "a note of accents on one letter": lambda: sheet(note=b"e" + filled("\u0301")),
    "a note of trees": lambda: sheet(note=filled("\U0001F332")),
    "a note that never ends": lambda: sheet(note="MARK").split(b"MARK")[0] + filled("x"),
    "a sheet with a long tail": lambda: sheet() + filled("1,2,3\r\n"),
}


class HostileSheetsTest(unittest.TestCase):
    def setUp(self):
        self.desk = X11Desk()
        self.addCleanup(self.desk.close)

    def seconds(self):
        """Of the processor, so far."""
        with open(f"/proc/{self.program.process.pid}/stat", encoding="ascii") as stat:
            return sum(int(ticks) for ticks in stat.read().rsplit(")", 1)[1].split()[11:13]) / TICKS

    def memory(self):
        """In kB, at the most so far."""
        with open(f"/proc/{self.program.process.pid}/status", encoding="ascii") as status:
            return next(int(line.split()[1]) for line in status if line.startswith("VmHWM"))

    def open(self, content):
        """From the start face. Tells what the processor had done for the program before."""
        path = self.program.work / "hostile.csv"
        path.write_bytes(content)
        self.program.window(START)
        self.program.press(TAB, ENTER)  # Open data file or template
        self.program.window("Open")
        self.program.enter_file_name("Open", path)
        before = self.seconds()
        self.program.press(ENTER)
        self.desk.gone("Open")
        return before

    def begin_sheet(self):
        """From the start face. Until the dialog is gone altogether it hears of nothing."""
        create = self.program.control(START, "Create new data file", "push button")
        wait_for("the box for the name", lambda: self.program.is_shown(START, "Name of the first sample") or create.act())
        self.program.control(START, "Name of the first sample", "text").type("10")
        self.program.control(START, "OK", "push button").act()

    def check(self, content, total, error=False):
        """`total`: before one more grain. `error`: it is told in a box."""
        before = self.open(content)
        if error:
            self.program.click("Error", "OK")
        if not total:
            self.begin_sheet()
        self.program.window(MAIN)
        self.program.wait_total(total)
        self.program.press(PAD[1])
        self.program.wait_total(total + 1)
        rescue = self.program.folder / "References/Back up files/Rescue.csv"
        wait_for("the copy of what was counted", rescue.exists)
        seconds, memory = self.seconds() - before, self.memory()
        print(f"{seconds:.2f} s, {memory / 1000:.0f} MB", flush=True)
        self.assertLess(seconds, MOST_SECONDS)
        self.assertLess(memory, MOST_MEMORY)

    def check_each(self, shapes, total, error=False):
        for name, make in shapes.items():
            with self.subTest(name):
                print(name, end=": ", flush=True)
                self.program = Program(self.desk)
                try:
                    self.check(make(), total, error)
                finally:
                    self.program.end()

    def test_what_is_no_sheet_is_not_opened(self):
        self.check_each(NO_SHEETS, 0)

    def test_a_sheet_of_empty_cells_is_told_of(self):
        self.check_each(OF_EMPTY_CELLS, 0, error=True)

    def test_what_is_a_sheet_is_opened(self):
        self.check_each(SHEETS, GRAINS)


if __name__ == "__main__":
    unittest.main()
