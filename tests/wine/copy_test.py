"""The diagram under Windows, and what another program pastes of it."""
import subprocess
import unittest

from computer import Computer, Installed, installed
from desk import START
from keyboard import ALT, ENTER, TAB, key_of
from spoken import wait_for

DIAGRAM = "Diagram"
TO_PRINT = 1600  # pixels from left to right, or more


def counted_sheet(path):
    """Two samples of three taxa."""
    counts = {1: (40, 10), 2: (25, 30), 46: (5, 60)}
    rows = [f'"{path}","Last saved (dd/mm/yyyy):","14/11/2026_(09:00:00)","Serial No.",1,2',
            '"Key index","Subtotal-1","Subtotal-2","Sample name","A","B"']
    rows += ['{},0,0,"{}",{},{}'.format(slot, "Taxon" if slot in counts else "---", *counts.get(slot, (0, 0))) for slot in range(1, 136)]
    rows += [f'"---","---","---","Additional info-{p}","---","---"' for p in range(1, 7)]
    rows += ['"---","---","---","Note: ","---","---"']
    rows += [f'"---","---","---","{name}",0,0' for name in ("Subtotal-1", "Subtotal-2", "All total")]
    return "".join(row + "\r\n" for row in rows).encode()


class CopyTest(unittest.TestCase):
    def setUp(self):
        self.computer = Computer(installed())
        self.addCleanup(self.computer.end)
        self.program = Installed(self.computer)

    def open_diagram(self):
        sheet = self.computer.c / "core.csv"
        sheet.write_bytes(counted_sheet(self.computer.path(sheet)))
        self.program.window(START)
        self.program.press(TAB, ENTER)  # Open data file or template
        self.program.answer_file_dialog("Open", sheet)
        self.program.chord(ALT, key_of("d"))
        self.program.press(ENTER)  # Bar
        return self.computer.desk.place(self.program.window(DIAGRAM))

    def pasted(self):
        """A picture as PNG. Wine makes one only for who has asked what there is."""
        offered = self.computer.desk.output("xclip", "-selection", "clipboard", "-target", "TARGETS", "-out")
        return self.computer.desk.copied_picture() if b"image/png" in offered else b""

    def test_the_diagram_is_pasted_at_a_size_to_print(self):
        left, top, width, height = self.open_diagram()
        self.computer.desk.press_button(3, left + width // 2, top + height // 2)
        self.program.press(key_of("c"))
        png = wait_for("a copy", self.pasted)
        told = subprocess.run(["identify", "-format", "%w %h %k", "png:-"], input=png, capture_output=True, check=True).stdout
        copied_width, copied_height, colours = map(int, told.split())
        self.assertGreaterEqual(copied_width, TO_PRINT)
        self.assertGreater(copied_height, TO_PRINT / 4)
        self.assertGreater(colours, 2, "an empty picture proves nothing")


if __name__ == "__main__":
    unittest.main()
