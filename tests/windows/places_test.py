"""Where windows stand on a screen of X11: whole, with their frames, and where their user has left them."""
import signal
import subprocess
import unittest

from desk import MAIN, START, Program
from keyboard import ALT, ENTER, PAD, key_of
from spoken import wait_for
from x11_desk import X11Desk

DIAGRAM = "Diagram"
SCREEN = (1366, 768)
PLACE = (200, 100, 1000, 600)
F4 = 70


class Places(unittest.TestCase):
    def setUp(self):
        self.desk = X11Desk(f"{SCREEN[0]}x{SCREEN[1]}")
        self.addCleanup(self.desk.close)

    def start(self, **environment):
        self.program = Program(self.desk, environment=environment)
        self.addCleanup(self.program.end)


class DiagramPlacesTest(Places):
    def setUp(self):
        super().setUp()
        self.start()
        self.program.begin("10")
        self.program.press(PAD[0])
        self.program.click(MAIN, "Next sample")
        self.program.window(START)
        self.program.type("20")
        self.program.press(ENTER)
        self.desk.gone(START)
        self.open_diagram()

    def open_diagram(self):
        self.program.window(MAIN)
        self.program.chord(ALT, key_of("d"))
        self.program.control(MAIN, "Bar")
        self.program.press(ENTER)
        self.diagram = self.program.window(DIAGRAM)

    def open_diagram_again(self):
        self.program.window(DIAGRAM)
        self.program.chord(ALT, F4)
        self.desk.gone(DIAGRAM)
        self.open_diagram()

    def wait_for_place(self, place):
        wait_for(f"the diagram at {place}", lambda: self.desk.place(self.diagram) == place)

    def put(self):
        # Until it has taken in its frame, the program moves a new window itself.
        wait_for(f"the diagram put to {PLACE}", lambda: self.desk.put(self.diagram, *PLACE) or self.desk.place(self.diagram) == PLACE)

    def test_closed_and_opened_it_stays_where_its_user_has_put_it(self):
        self.put()
        for _ in range(4):
            self.open_diagram_again()
            self.wait_for_place(PLACE)

    def test_a_late_program_that_hears_of_place_and_close_at_once_keeps_the_place(self):
        self.program.process.send_signal(signal.SIGSTOP)
        self.put()
        self.program.chord(ALT, F4)
        self.program.process.send_signal(signal.SIGCONT)
        self.desk.gone(DIAGRAM)
        self.open_diagram()
        self.wait_for_place(PLACE)

    def test_filling_the_screen_it_fills_it_again_and_then_shrinks_to_its_old_size(self):
        before = self.desk.place(self.diagram)
        self.desk.maximise(self.diagram, True)
        wait_for("a diagram over the whole screen", lambda: self.desk.place(self.diagram)[2] == SCREEN[0])
        full = self.desk.place(self.diagram)
        for _ in range(2):
            self.open_diagram_again()
            self.wait_for_place(full)
        self.desk.maximise(self.diagram, False)
        self.wait_for_place(before)

    def test_in_a_maximised_window_all_of_the_new_room_is_the_drawing_s(self):
        window, drawing = self.sizes()
        self.desk.maximise(self.diagram, True)
        wait_for("a diagram over the whole screen", lambda: self.desk.place(self.diagram)[2] == SCREEN[0])
        wait_for("a drawing that has grown by as much", lambda: self.has_all_of_the_new_room(window, drawing))

    def sizes(self):
        """Width and height of the window and of the drawing in it."""
        return self.desk.place(self.diagram)[2:], self.program.box(DIAGRAM, DIAGRAM)[2:]

    def has_all_of_the_new_room(self, window_before, drawing_before):
        """But for a pixel or two: all places are rounded to whole ones."""
        window, drawing = self.sizes()
        return all(abs((window[way] - window_before[way]) - (drawing[way] - drawing_before[way])) <= 2 for way in (0, 1))


class DensePlacesTest(Places):
    """The screen has fewer of the toolkit's pixels than the main window takes."""

    def expect_whole_on_screen(self, title):
        window = self.program.window(title)
        left_side, right_side, title_bar, bottom = wait_for(f"the frame of {title}", lambda: self.desk.frame(window))
        left, top, width, height = self.desk.place(window)
        self.assertGreater(title_bar, 0, "no title bar")
        self.assertGreaterEqual(left - left_side, 0, title)
        self.assertGreaterEqual(top - title_bar, 0, title)
        self.assertLessEqual(left + width + right_side, SCREEN[0], title)
        self.assertLessEqual(top + height + bottom, SCREEN[1], title)

    def expect_all_whole(self):
        self.expect_whole_on_screen(START)
        self.program.begin("10")
        self.expect_whole_on_screen(MAIN)

    def test_by_the_scale_of_the_toolkit(self):
        self.start(QT_SCALE_FACTOR="2")
        self.expect_all_whole()

    def test_by_the_density_of_the_desktop(self):
        subprocess.run(["xrdb", "-merge"], input="Xft.dpi: 192\n", text=True, env=self.desk.env, check=True)
        self.start()
        self.expect_all_whole()


if __name__ == "__main__":
    unittest.main()
