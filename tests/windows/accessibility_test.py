"""The program without eyes: its accessible tree is walked and used over D-Bus, as a screen reader does it."""
import unittest

import spoken
from desk import MAIN, START, Desk, Program
from keyboard import PAD, SHIFT_1
from spoken import wait_for

ROLES = {"frame", "dialog", "menu bar", "menu item", "popup menu", "separator", "text", "label", "push button", "radio button", "check box",
         "combo box", "list", "list item", "panel", "page tab list", "page tab", "image", "progress bar", "slider", "scroll bar",
         "spin button", "status bar"}
NAMELESS = {"popup menu", "menu bar", "separator", "label"}  # a label may have nothing to say
TOLD_APART = ROLES - NAMELESS - {"list", "list item"}
FOCUSABLE = {"text", "push button", "radio button", "check box", "combo box", "slider"}

PICTURE = r"Marlbrook 2\.5"


class AccessibilityTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.close)
        self.program = Program(self.desk)
        self.addCleanup(self.program.end)
        self.window = self.program.spoken_window

    # ---- What a reader does ----

    def press(self, window, button):
        """A button, once it can be pressed."""
        found = window.find("push button", button)
        found.wait_state("sensitive")
        found.act()

    def leave(self, title, button="OK"):
        self.program.window(title)
        self.press(self.window(title), button)
        self.desk.gone(title)

    def write(self, window, box, text):
        found = window.find("text", box)
        found.wait_state("focusable")
        found.type(text)
        found.wait_text(text)

    def choose(self, menu, item):
        """An item of the main window's menus, when that can be used."""
        opened = self.window(MAIN).find("menu item", menu)
        opened.wait_state("sensitive")
        opened.act()
        opened.find("menu item", item).act()

    def begin(self, name):
        """From the start face to the main window."""
        start = self.window(START)
        self.press(start, "Create new data file")
        self.write(start, "Name of the first sample", name)
        self.press(start, "OK")
        main = self.window(MAIN)
        main.find("push button", "Modify").wait_state("sensitive")
        return main

    def count(self, *keys):
        """The first grains of a sample, by real keys."""
        self.program.window(MAIN)
        self.program.press(*keys)
        self.program.wait_total(len(keys))

    # ---- What a reader finds ----

    def look_over(self, window, *wanted):
        """Every node on show has a role that says what it is and a name that tells it from the others; `wanted` are among them."""
        seen = set()
        for node in window.walk():
            role, name, states = node.role, node.name, node.states
            self.assertIn(role, ROLES, f"{window}: {name}")
            if role not in NAMELESS:
                self.assertTrue(name.strip(), f"{window}: a {role} without a name")
            if role in TOLD_APART:
                self.assertNotIn((role, name), seen, f"{window}: two of them")
            if role in FOCUSABLE and "sensitive" in states:
                self.assertIn("focusable", states, f"{window}: {role} {name}")
            seen.add((role, name))
        self.assertEqual(set(wanted) - seen, set(), f"{window} lacks them")
        return seen

    def test_the_start_face_and_the_main_window(self):
        start = self.window(START)
        self.look_over(start, ("push button", "Create new data file"), ("push button", "Open data file or template"),
                       ("image", "A pollen grain"))
        start.find("push button", "Create new data file").wait_state("focused")
        self.press(start, "Create new data file")
        start.find("text", "Name of the first sample").wait_state("focused")
        self.look_over(start, ("text", "Note"), ("text", "Additional info-6"), ("push button", "OK"))
        self.press(start, "OK")
        main = self.window(MAIN)
        main.find("push button", "Modify").wait_state("sensitive")
        seen = self.look_over(
            main, ("page tab list", "Bank"), ("page tab", "Neutral"), ("page tab", "Shift 1 and 2"), ("text", "Name of taxon 45"),
            ("text", "Count of taxon 1"), ("text", "All total"), ("text", "Subtotal-1"), ("radio button", "Set alarm: All total"),
            ("radio button", "Set alarm: Subtotal-2"), ("text", "Sample name"), ("combo box", "Sample on show"),
            ("combo box", "History"), ("text", "Note"), ("text", "Additional info-6"), ("push button", "Save"),
            ("image", "Taxa diversity vs. total count"), ("panel", "Totals"), ("menu item", "File"))
        self.assertNotIn(("text", "Count of taxon 46"), seen, "its tab is not in front")
        all_total, subtotal = (main.find("radio button", f"Set alarm: {name}") for name in ("All total", "Subtotal-1"))
        all_total.wait_state("checked")
        subtotal.act()
        subtotal.wait_state("checked")
        all_total.wait_state("checked", False)
        history = main.find("combo box", "History")
        history.act()
        history.wait_state("expanded")
        self.assertIn("(New sample: 1: ---)", [line.name for line in history.all("list item")])
        history.all("list item")[0].act()
        history.wait_state("expanded", False)

    def test_modify_mode_and_the_names_that_follow(self):
        main = self.begin("12.5")
        self.press(main, "Modify")
        main.find("push button", "Rename: Additional info-1").wait_state("sensitive")
        self.look_over(main)
        tab = main.find("page tab", "Shift 1 or 2")
        tab.act()
        tab.wait_state("selected")
        main.find("page tab", "Neutral").wait_state("selected", False)
        main.find("text", "Count of taxon 46")
        self.look_over(main)
        main.find("page tab", "Neutral").act()
        self.write(main, "Name of taxon 1", "Pinus")
        main.find("text", "Count of taxon 1: Pinus")
        self.press(main, "Rename: Additional info-1")
        naming = self.window("Parameter name")
        self.look_over(naming, ("text", "New name"))
        self.write(naming, "New name", "Tablets")
        self.leave("Parameter name")
        self.press(main, "Resume")
        main.find("push button", "Modify").wait_state("sensitive")
        self.look_over(main, ("text", "Tablets"))  # its label is hidden now
        self.choose("Tools", "Subtotal settings")
        subtotals = self.window("Subtotal setting")
        self.look_over(subtotals, ("check box", "Taxon: 135"), ("check box", "Taxon: Pinus"), ("panel", "Neutral"))
        box = subtotals.find("check box", "Taxon: 7")
        self.assertNotIn("checked", box.states)
        box.act()
        box.wait_state("checked")
        self.write(subtotals, "Name: Subtotal-1", "Trees")
        self.leave("Subtotal setting")
        self.look_over(main, ("text", "Trees"), ("radio button", "Set alarm: Trees"))

    def test_the_windows_of_keys(self):
        self.begin("12.5")
        self.choose("Tools", "Key settings")
        settings = self.window("Key settings")
        self.assertEqual(settings.role, "dialog")
        for tab, box in (("Key code", "Code of key 1"), ("Key number", "Number of the key at place 45"), ("Key definition", "Definition of key 1")):
            settings.find("page tab", tab).act()
            settings.find("text", box)
            self.look_over(settings, ("text", "Undo key"), ("radio button", "Right handed"), ("panel", "Functional keys"))
        self.press(settings, "Notice")
        self.look_over(self.window("Message from Marlbrook"), ("text", "Note 4"))
        self.leave("Message from Marlbrook")
        self.leave("Key settings", "Cancel")
        self.choose("Tools", "Initialize")
        self.look_over(self.window("Initialize"), ("text", "Key code: [Shift]"), ("text", "Key code: [Down]"))
        self.leave("Initialize")

    def test_pictures_and_boxes(self):
        self.begin("12.5")
        self.choose("About", "Marlbrook 2.7")
        self.look_over(self.window(START), ("label", "www.marlbrook.example"), ("image", "A pollen grain"))
        self.leave(START)
        self.choose("About", "Ergodex DX-1")
        self.look_over(self.window("Ergodex DX-1 input system"), ("image", "A keypad with three blocks of keys"))
        self.leave("Ergodex DX-1 input system")
        self.choose("Are you tired...?", "Coffee")
        self.program.window(PICTURE)
        picture = self.window(PICTURE)
        self.look_over(picture, ("image", "A cup of coffee"))
        picture.find("image", "A cup of coffee").act()
        self.desk.gone(PICTURE)

    def test_the_next_sample_the_diagram_and_a_new_sheet(self):
        main = self.begin("12.5")
        self.count(*PAD[:9])
        self.press(main, "Next sample")
        following = self.window(START)
        self.look_over(following, ("text", "Name of the next sample"))
        self.write(following, "Name of the next sample", "15")
        self.leave(START)
        main.find("text", "All total").wait_text("0")
        self.count(*PAD[:6])
        self.choose("Diagram", "Bar")
        diagram = self.window("Diagram")
        self.look_over(diagram, ("image", "Diagram"), ("slider", "Selected sample"), ("spin button", "Next or previous sample"),
                       ("scroll bar", "Columns in view"), ("status bar", "Status"), ("combo box", "Selected sample"),
                       ("check box", "Line of the selected sample stays: 15"))
        slider = diagram.find("slider", "Selected sample")
        slider.value = 1
        wait_for("the first sample", lambda: slider.value == 1)
        diagram.find("check box", "Line of the selected sample stays: 12.5")
        diagram.find("spin button", "Next or previous sample").act("Increase")
        wait_for("the second sample", lambda: slider.value == 2)

    def test_a_question_and_a_template(self):
        main, path = self.begin("12.5"), self.program.work / "template.csv"
        self.choose("File", "Create template")
        self.write(self.window("Save as"), "File name:", str(path))
        self.leave("Save as", "Save")
        wait_for("the template", path.exists)
        self.count(*PAD[:3])
        self.choose("File", "Quit")
        question = self.window("Caution!")
        self.assertEqual(question.role, "alert")
        question.find("label", "This action will abort current data. Do you proceed?")
        self.leave("Caution!", "No")
        main.find("text", "All total").wait_text("3")
        self.press(main, "Open")
        self.leave("Caution!", "Yes")
        self.write(self.window("Open"), "File name:", str(path))
        self.leave("Open", "Open")
        naming = self.window("New data sheet")
        self.look_over(naming, ("text", "Name of the first sample"), ("text", "Note"), ("text", "Additional info 6: Additional info-6"))
        self.write(naming, "Name of the first sample", "20")
        self.leave("New data sheet")
        main.find("text", "All total").wait_text("0")
        main.find("text", "Sample name").wait_text("20")

    def test_counts_and_banks_are_told(self):
        main = self.begin("12.5")
        total, bank = main.find("text", "All total"), main.find("page tab list", "Bank")
        self.program.window(MAIN)
        told = spoken.Told("object:property-change:accessible-value")
        self.addCleanup(told.close)
        # A program hears of those who listen later than they begin to, and until then it tells nothing.
        wait_for("a program that tells of its bank", lambda: self.program.chord(SHIFT_1) or told.events)
        wait_for("the bank", lambda: bank.value == 0)
        for count in (1, 2):
            told.events.clear()
            self.program.press(PAD[0])
            told.wait("the total", lambda _, node: node == total)
            self.assertEqual(total.value, count)
        main.find("text", "Count of taxon 1").wait_text("2")
        for level in (1, 0):
            told.events.clear()
            (self.program.hold if level else self.program.release)(SHIFT_1)
            told.wait("the bank", lambda _, node: node == bank)
            wait_for("the bank", lambda: bank.value == level)

    def test_a_sample_is_counted_renamed_and_saved_by_the_tree(self):
        main = self.begin("12.5")
        self.count(*PAD[:3], PAD[0])
        self.press(main, "Modify")
        self.write(main, "Sample name", "Top")
        self.write(main, "Name of taxon 1", "Pinus")
        self.press(main, "Resume")
        main.find("combo box", "Sample on show").find("text", "Sample on show").wait_text("Top")
        self.press(main, "Save")
        path = self.program.work / "core.csv"
        dialog = self.window("Save as")
        self.write(dialog, "File name:", str(path))
        self.leave("Save as", "Save")
        wait_for("the file", lambda: path.exists() and path.stat().st_size)
        main.find("push button", "Save").wait_state("sensitive", False)
        rows = path.read_text().split("\n")
        self.assertTrue(rows[1].rstrip().endswith('"Sample name","Top"'), rows[1])
        self.assertEqual(rows[2].rstrip(), '1,0,0,"Pinus",2')


if __name__ == "__main__":
    unittest.main()
