"""The diagram of a sheet under the mouse: a column is moved by the line of its sample, and what is copied is what is seen."""
import re
import subprocess
import unittest

from desk import MAIN, START, Desk, Program
from keyboard import ALT, DOWN, ENTER, PAD, TAB, key_of
from spoken import wait_for

DIAGRAM = "Diagram"  # the window, and the picture in it
TREE = "Cluster tree"
CURVE = "Taxa diversity vs. total count"
SAMPLES = "ABCDE"


def named_sheet(path):
    """A sheet of five named samples: each row a taxon, a few of them counted."""
    counts = {1: [1, 2, 3, 4, 5], 2: [9, 4, 6, 2, 1], 46: [0, 3, 0, 7, 2]}
    rows = [f'"{path}","Last saved (dd/mm/yyyy):","14/11/2026_(09:00:00)","Serial No.",1,2,3,4,5',
            '"Key index","Subtotal-1","Subtotal-2","Sample name",' + ",".join(f'"{name}"' for name in SAMPLES)]
    rows += [f'{slot},0,0,"{"Taxon" if slot in counts else "---"}",' + ",".join(map(str, counts.get(slot, [0] * 5))) for slot in range(1, 136)]
    rows += [f'"---","---","---","Additional info-{p}"' + ',"---"' * 5 for p in range(1, 7)]
    rows += ['"---","---","---","Note: "' + ',"---"' * 5]
    rows += [f'"---","---","---","{name}",0,0,0,0,0' for name in ("Subtotal-1", "Subtotal-2", "All total")]
    return "".join(row + "\r\n" for row in rows)


def middle(box):
    left, top, width, height = box
    return left + width // 2, top + height // 2


class DiagramTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.program = Program(self.desk)
        self.addCleanup(self.program.end)
        self.sheet = self.program.work / "named.csv"
        self.sheet.write_bytes(named_sheet(self.sheet).encode())
        self.open_diagram()

    def open_diagram(self):
        self.program.window(START)
        self.program.press(TAB, ENTER)  # Open data file or template
        self.program.answer_file_dialog("Open", self.sheet)
        self.choose(MAIN, "d", "Bar", [ENTER])
        self.window = self.program.window(DIAGRAM)
        self.picture = self.program.box(DIAGRAM, DIAGRAM)

    def choose(self, title, letter, item, keys):
        """From the menu of this letter, which has this item, by these keys."""
        self.program.window(title)
        self.program.chord(ALT, key_of(letter))
        wait_for(f"the menu with '{item}'", lambda: self.program.is_shown(title, item))
        self.program.press(*keys)
        wait_for(f"the end of the menu with '{item}'", lambda: not self.program.is_shown(title, item))

    # ---- Columns ----

    def line_of(self, sample):
        """On the line of the selected sample, 1..5: samples stand at 10, 20 ... 50 on a scale from 9 to 51."""
        left, top, width, height = self.picture
        return left + width // 2, round(top + height * (10 * sample - 9) / 42)

    def outside(self):
        return middle(self.program.box(DIAGRAM, "Taxa names"))

    def drag(self, button, *places):
        """Down at the first place, up at the last; a few steps on each way, as a hand makes them, and from beside to the first."""
        self.move_to(places[0][0] + 1, places[0][1])
        self.move_to(*places[0])
        self.desk.button(button, True)
        for begin, end in zip(places, places[1:]):
            for step in range(1, 6):
                self.move_to(*[round(b + (e - b) * step / 5) for b, e in zip(begin, end)])
        self.desk.button(button, False)

    def move_to(self, x, y):
        self.desk.move(x, y)
        self.desk.settle(self.window)

    def names_after_saving(self):
        self.desk.settle(self.window)
        self.program.activate(MAIN)
        self.program.press(PAD[0])
        saved = self.program.save_again(self.sheet).decode()
        return "".join(re.findall(r'"([A-E])"', saved.split("\r\n")[1]))

    def test_the_right_button_moves_a_column_to_where_it_is_let_go(self):
        self.drag(3, self.line_of(5), self.line_of(2))
        self.assertEqual(self.names_after_saving(), "AEBCD")

    def test_a_column_that_is_dragged_out_of_the_picture_stays(self):
        self.drag(3, self.line_of(5), self.line_of(2), self.outside())
        self.assertEqual(self.names_after_saving(), SAMPLES)

    def test_coming_back_into_the_picture_takes_nothing_up_again(self):
        self.drag(3, self.line_of(5), self.outside(), self.line_of(2))
        self.assertEqual(self.names_after_saving(), SAMPLES)

    # ---- Copies ----

    def pixels(self, *command, **options):
        return subprocess.run([str(word) for word in command], capture_output=True, check=True, **options).stdout

    def seen(self, box):
        """What the screen shows there."""
        left, top, width, height = box
        return self.pixels("convert", "png:-", "-crop", f"{width}x{height}+{left}+{top}", "+repage", "-depth", "8", "rgb:-",
                           input=self.desk.picture())

    def pasted(self):
        """What another program gets from the clipboard: its size, and the pixels."""
        png = self.desk.copied_picture()
        if not png:
            return None, b""
        size = self.pixels("identify", "-format", "%w %h", "png:-", input=png).split()
        return [int(part) for part in size], self.pixels("convert", "png:-", "-depth", "8", "rgb:-", input=png)

    def expect_copied(self, name, title=DIAGRAM, keys=(key_of("c"),)):
        """From the menu of the right button, which takes the keys that come after its click. What is copied is at least 1600 wide and
        shows the same, as a PNG and as a bitmap."""
        box = self.program.box(title, name)
        self.desk.press_button(3, *middle(box))
        self.program.press(*keys)
        wait_for("a large copy of the same shape", lambda: self.is_enlarged(self.pasted()[0], box))
        wait_for("a copy that shows what the screen shows", lambda: self.likeness(box) > 0.8)
        copied = self.pasted()[1]
        bitmap = self.pixels("convert", "bmp:-", "-depth", "8", "rgb:-", input=self.desk.copied_picture("image/bmp"))
        self.assertEqual(bitmap, copied)
        self.assertGreater(len(set(zip(copied[0::3], copied[1::3], copied[2::3]))), 2, "an empty picture proves nothing")

    def is_enlarged(self, size, box):
        if not size:
            return False
        width, height = size
        pixel, shape = width / box[2], box[3] / box[2]
        return width >= 1600 and abs(height - width * shape) <= pixel * (1 + shape)

    def likeness(self, box):
        """How well the copy, made as small as the picture, goes with what the screen shows there: 1 if they are the same."""
        size = f"{box[2]}x{box[3]}"
        small = ["-resize", f"{size}!", "-blur", "0x2"]
        copied, seen = self.program.work / "copied.png", self.program.work / "seen.png"
        self.pixels("convert", "png:-", *small, copied, input=self.desk.copied_picture())
        self.pixels("convert", "-size", size, "-depth", "8", "rgb:-", *small, seen, input=self.seen(box))
        told = subprocess.run(["compare", "-metric", "NCC", copied, seen, "null:"], capture_output=True, text=True, check=False).stderr
        return float(told)

    def test_the_copy_of_the_diagram_shows_the_diagram_at_a_size_to_print(self):
        self.expect_copied(DIAGRAM)

    def test_the_copies_carry_the_guide_lines_and_the_tree_is_copied_too(self):
        self.choose(DIAGRAM, "t", "CONISS", [DOWN, ENTER])       # Horizontal line
        self.choose(DIAGRAM, "t", "CONISS", [key_of("c")])
        self.program.control(DIAGRAM, TREE)
        self.expect_copied(DIAGRAM)
        self.expect_copied(TREE)

    def test_the_curve_of_taxa_is_copied_large_too(self):
        self.program.activate(MAIN)
        self.program.press(*PAD[:12])
        self.program.wait_total(5 + 1 + 2 + 12)
        self.expect_copied(CURVE, MAIN, [DOWN, ENTER])


if __name__ == "__main__":
    unittest.main()
