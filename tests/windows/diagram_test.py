"""The diagram of a sheet under the mouse: a column is moved by the line of its sample, and what is copied is what is seen."""
import re
import subprocess
import time
import unittest

from desk import PAD, Desk, Program, wait_for

SIZE = (9735, 7545)  # of the window, in twips
PICTURE = (420, 2455, 7425, 4560)
PICTURE_BESIDE_TREE = (420, 2455, 5425, 4560)
TREE = (7675, 2455, 2000, 4560)
NAMES_MIDDLE = (3000, 1400)
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
        start = self.desk.window(r"^Marlbrook 2\.7$")
        self.program.click(start, (7200, 2560), 4700, 2000)  # Open data file or template
        self.desk.window("^Open$")
        self.desk.xdotool("type", "--delay", 20, str(self.sheet))
        self.desk.xdotool("key", "Return")
        self.main = self.desk.window(r"^Marlbrook 2\.7\.5 - \[named\]$")
        time.sleep(0.3)
        self.desk.xdotool("key", "alt+d")
        time.sleep(0.3)
        self.desk.xdotool("key", "Return")  # Bar
        self.diagram = self.desk.window("^Diagram$")
        time.sleep(0.5)

    def place(self, x, y):
        """The pixels of a place in the diagram's window that is told in twips."""
        shape = self.desk.xdotool("getwindowgeometry", "--shell", self.diagram)
        width, height = (int(re.search(rf"^{name}=(\d+)", shape, re.M).group(1)) for name in ("WIDTH", "HEIGHT"))
        factor = width / SIZE[0]
        return round(x * factor), round(height - (SIZE[1] - y) * factor)

    def move_to(self, x, y):
        self.desk.xdotool("mousemove", "--window", self.diagram, x, y, "sleep", 0.03)

    def line_of(self, sample):
        """On the line of the selected sample, 1..5: samples stand at 10, 20 ... 50 on a scale from 9 to 51."""
        return self.place(PICTURE[0] + PICTURE[2] / 2, PICTURE[1] + PICTURE[3] * (10 * sample - 9) / 42)

    def drag(self, button, *places):
        """Down at the first place, up at the last; a few steps on each way, as a hand makes them."""
        self.move_to(*places[0])
        self.desk.xdotool("sleep", 0.2, "mousedown", button)
        for begin, end in zip(places, places[1:]):
            for step in range(1, 6):
                self.move_to(*[round(b + (e - b) * step / 5) for b, e in zip(begin, end)])
        self.desk.xdotool("mouseup", button)
        time.sleep(0.3)

    def names_after_saving(self):
        self.desk.xdotool("windowactivate", "--sync", self.main)
        time.sleep(0.2)
        self.program.press(PAD[0])
        saved = self.program.save_again(self.sheet).decode()
        return "".join(re.findall(r'"([A-E])"', saved.split("\r\n")[1]))

    def test_the_right_button_moves_a_column_to_where_it_is_let_go(self):
        self.drag(3, self.line_of(5), self.line_of(2))
        self.assertEqual(self.names_after_saving(), "AEBCD")

    def test_a_column_that_is_dragged_out_of_the_picture_stays(self):
        self.drag(3, self.line_of(5), self.line_of(2), self.place(*NAMES_MIDDLE))
        self.assertEqual(self.names_after_saving(), SAMPLES)

    def test_coming_back_into_the_picture_takes_nothing_up_again(self):
        self.drag(3, self.line_of(5), self.place(*NAMES_MIDDLE), self.line_of(2))
        self.assertEqual(self.names_after_saving(), SAMPLES)

    def seen(self, box, size):
        """What the screen shows of a box, in twips, of the diagram's window. The toolkit may round its place either way."""
        window = self.program.work / "window.png"
        self.pixels("import", "-window", self.diagram, window)
        left, top = self.place(box[0], box[1])
        return [self.pixels("convert", window, "-crop", f"{size[0]}x{size[1]}+{x}+{y}", "+repage", "-depth", "8", "rgb:-")
                for x in (left - 1, left, left + 1) for y in (top - 1, top, top + 1)]

    def pixels(self, *command, **options):
        return subprocess.run([str(word) for word in command], env=self.desk.env, capture_output=True, check=True, **options).stdout

    def pasted(self):
        """What another program gets from the clipboard: pixels, and width and height."""
        png = wait_for("a picture on the clipboard",
                       lambda: subprocess.run(["xclip", "-selection", "clipboard", "-target", "image/png", "-out"], env=self.desk.env,
                                              capture_output=True, check=False).stdout)
        size = self.pixels("identify", "-format", "%w %h", "png:-", input=png).split()
        return self.pixels("convert", "png:-", "-depth", "8", "rgb:-", input=png), tuple(int(part) for part in size)

    def copy_by_popup(self, x, y):
        self.move_to(x, y)
        self.desk.xdotool("sleep", 0.2, "click", 3, "sleep", 0.3, "key", "c", "sleep", 0.3)

    def expect_copied(self, box):
        copied, size = self.pasted()
        right, bottom = self.place(box[0] + box[2], box[1] + box[3])
        left, top = self.place(box[0], box[1])
        self.assertLessEqual(abs(size[0] - (right - left)) + abs(size[1] - (bottom - top)), 2)
        self.assertIn(copied, self.seen(box, size), "the copy differs from the screen")
        self.assertGreater(len(set(zip(copied[0::3], copied[1::3], copied[2::3]))), 2, "an empty picture proves nothing")

    def test_the_copy_of_the_diagram_is_the_diagram_pixel_for_pixel(self):
        self.copy_by_popup(*self.place(6000, 3600))
        self.expect_copied(PICTURE)

    def test_the_copies_carry_the_guide_lines_and_the_tree_is_copied_too(self):
        self.desk.xdotool("key", "alt+t", "sleep", 0.3, "key", "Down", "Return", "sleep", 0.3)  # Horizontal line
        self.desk.xdotool("key", "alt+t", "sleep", 0.3, "key", "c", "sleep", 0.5)                # CONISS
        self.copy_by_popup(*self.place(4000, 3600))
        self.expect_copied(PICTURE_BESIDE_TREE)
        self.copy_by_popup(*self.place(8500, 3600))
        self.expect_copied(TREE)


if __name__ == "__main__":
    unittest.main()
