"""Where windows stand on the screen: whole, with their frames, and where their user has left them."""
import json
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

from desk import PAD, Desk, Program, wait_for

START, MAIN, DIAGRAM = r"^Marlbrook 2\.7$", r"^Marlbrook 2\.7\.5$", "^Diagram$"
NEXT_SAMPLE = (2480, 7720)
SCREEN = (1366, 768)


class Places(unittest.TestCase):
    def setUp(self):
        self.desk = Desk(f"{SCREEN[0]}x{SCREEN[1]}")
        self.addCleanup(self.desk.close)
        # What is mapped while it starts up is not seen.
        wait_for("the window manager", lambda: "WINDOW" in self.desk.run("xprop", "-root", "_NET_CLIENT_LIST"))

    def start(self, **environment):
        self.program = Program(self.desk, environment=environment)
        self.addCleanup(self.program.end)

    def place(self, window):
        """Left, top, width and height of a window inside its frame, and the frame's left, right, top and bottom."""
        shape = self.desk.run("xwininfo", "-id", window)
        numbers = [int(re.search(rf"{name}: +(-?\d+)", shape).group(1))
                   for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]
        frame = re.findall(r"\d+", self.desk.run("xprop", "-id", window, "_NET_FRAME_EXTENTS").partition("=")[2])
        return tuple(numbers), tuple(int(part) for part in frame)

    def wait_for_place(self, window, condition, what):
        def found():
            inside, frame = self.place(window)
            return frame and condition(inside) and (inside, frame)
        return wait_for(what, found)

    def expect_whole_on_screen(self, title):
        inside, frame = self.wait_for_place(self.desk.window(title), lambda _: True, f"the frame of {title}")
        self.assertGreater(frame[2], 0, "no title bar")
        self.assertGreaterEqual(inside[0] - frame[0], 0, title)
        self.assertGreaterEqual(inside[1] - frame[2], 0, title)
        self.assertLessEqual(inside[0] + inside[2] + frame[1], SCREEN[0], title)
        self.assertLessEqual(inside[1] + inside[3] + frame[3], SCREEN[1], title)
        return inside


class DiagramPlacesTest(Places):
    def setUp(self):
        super().setUp()
        self.start()
        self.program.begin("10")
        self.program.press(PAD[0])
        self.program.click_main(*NEXT_SAMPLE)
        self.desk.window(START)
        self.desk.xdotool("type", "--delay", 30, "20")
        self.desk.xdotool("key", "Return")
        self.desk.gone(START)
        self.open_diagram()

    def open_diagram(self):
        self.desk.window(MAIN)
        self.desk.xdotool("key", "alt+d", "key", "Return")  # Bar
        self.diagram = self.desk.window(DIAGRAM)

    def open_diagram_again(self):
        self.desk.window(DIAGRAM)
        self.desk.xdotool("key", "alt+F4")
        self.desk.gone(DIAGRAM)
        self.open_diagram()

    def test_closed_and_opened_it_stays_where_its_user_has_put_it(self):
        self.desk.xdotool("windowsize", "--sync", self.diagram, 1000, 600, "windowmove", "--sync", self.diagram, 200, 100)
        before, _ = self.wait_for_place(self.diagram, lambda inside: inside[2:] == (1000, 600) and inside[0] >= 200, "the new place")
        for _ in range(4):
            self.open_diagram_again()
            self.wait_for_place(self.diagram, lambda inside: inside == before, f"the diagram at {before}")

    def test_filling_the_screen_it_fills_it_again_and_then_shrinks_to_its_old_size(self):
        before, _ = self.place(self.diagram)
        self.double_click_title(before)
        full, _ = self.wait_for_place(self.diagram, lambda inside: inside[2] == SCREEN[0], "a diagram over the whole screen")
        for _ in range(2):
            self.open_diagram_again()
            self.wait_for_place(self.diagram, lambda inside: inside == full, f"the diagram at {full}")
        self.double_click_title(full)
        self.wait_for_place(self.diagram, lambda inside: inside == before, f"the diagram at {before}")

    def double_click_title(self, inside):
        self.desk.xdotool("mousemove", inside[0] + inside[2] // 2, inside[1] - 8, "click", "--repeat", 2, "--delay", 60, 1)


class DensePlacesTest(Places):
    """The screen has fewer of the toolkit's pixels than the main window has by design."""

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


class Sway:
    """A Wayland desktop without a screen, in a folder of its own."""

    def __init__(self, size):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="marlbrook-sway-"))
        config = self.folder / "config"
        config.write_text(f"output HEADLESS-1 mode {size}\nxwayland disable\n")
        own_places = {"XDG_RUNTIME_DIR": str(self.folder), "HOME": str(self.folder)}
        without_devices = {"WLR_BACKENDS": "headless", "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1"}
        self.env = {**os.environ, **own_places, **without_devices, "QT_QPA_PLATFORM": "wayland"}
        for name in ("DISPLAY", "WAYLAND_DISPLAY", "SWAYSOCK"):
            self.env.pop(name, None)
        self.processes = []
        self.start([*self.as_nobody(), "sway", "-c", str(config)], env=self.env)
        self.env["SWAYSOCK"] = str(wait_for("sway", lambda: list(self.folder.glob("sway-ipc*")))[0])
        self.env["WAYLAND_DISPLAY"] = wait_for("a display", lambda: list(self.folder.glob("wayland-?")))[0].name
        self.start(["wtype", "-s", "1000000000", "-k", "Shift_L"], env=self.env)  # so that there is a keyboard all the time
        wait_for("a keyboard", lambda: '"type": "keyboard"' in self.ask("get_inputs"))

    def as_nobody(self):
        """Sway does not start for root."""
        if os.geteuid() != 0:
            return []
        os.chown(self.folder, 65534, 65534)
        return ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"]

    def start(self, command, **options):
        process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options)
        self.processes.append(process)
        return process

    def ask(self, what):
        return subprocess.run(["swaymsg", "-t", what], env=self.env, capture_output=True, check=True, text=True).stdout

    def window(self, title):
        """The rectangle of the window with the keyboard, if its title matches the pattern."""
        return next((node["rect"] for node in self.nodes(json.loads(self.ask("get_tree"))) if node["focused"] and re.match(title, node["name"] or "")), None)

    def nodes(self, node):
        yield node
        for child in node["nodes"] + node["floating_nodes"]:
            yield from self.nodes(child)

    def press(self, key):
        subprocess.run(["wtype", "-k", key], env=self.env, check=True)

    def close(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait(timeout=10)
        shutil.rmtree(self.folder, ignore_errors=True)


class WaylandPlacesTest(unittest.TestCase):
    def test_the_start_face_unfolds_on_the_screen(self):
        for width, height in ((1366, 768), (1920, 1080)):
            with self.subTest(height=height):
                desk = Sway(f"{width}x{height}")
                self.addCleanup(desk.close)
                program = Program(desk)
                self.addCleanup(program.end)
                small = wait_for("the start face", lambda: desk.window(START))
                desk.press("Return")  # Create new data file
                large = wait_for("the fields of the first sample", lambda: self.larger(desk.window(START), small))
                self.assertGreaterEqual(large["y"], 0)
                self.assertLessEqual(large["y"] + large["height"], height)

    def larger(self, now, before):
        return now if now and now["height"] > 2 * before["height"] else None


if __name__ == "__main__":
    unittest.main()
