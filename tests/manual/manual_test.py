import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import examples
import manual
import program

ANSWERS = {"Yes", "No", "Cancel", "OK"}  # of message boxes: the words that the driver's `answer` takes
MENUS_UNSEEN = {"RightButton", "DiversityRB", "ByPass", "RightButton1", "RightButton2", "RightButton3", "RightButton4",
                "Save This EOF Only", "Save All EOF"}  # heads of popup menus, and a popup that nothing opens
PLACEHOLDERS = {"", "-", "---", "xxx"}


def words_of_the_program():
    words = set(ANSWERS)
    for window in program.controls():
        for captions in program.captions(window).values():
            words |= captions
    for title, text in program.messages():
        words |= {title, text}
    return (words | program.failure_words()) - PLACEHOLDERS


# What stands in bold for its weight, and is no caption. Each must be there: a line that is not needed leaves the list.
WEIGHT = {
    "Your counts are backed up all the time.", "bold", "No sound means: nothing was counted.", "A wrong key?",
    "A wrong name for a grain that you counted long ago?", "Beware:", "When you open a sheet.", "At each alarm.",
    "So get a back-up out before you go on counting.", "No sound, no back-up.", "After a save that failed, closing may not ask again", "Grains since the last alarm",
    "A sample above 32767 grains cannot be saved.", "A held key goes on counting", "Alt and the underlined letter of a menu opens it",
    "on a Dvorak keyboard", "no back-ups", "Your sheets lie where you save them.", "This is not the usual incremental sum of squares.",
    "A back-up", "A template", "A percentage table", "all columns as text", "One program at a time writes a sheet.",
}


class CaptionsTest(unittest.TestCase):
    def test_each_bold_word_stands_in_the_program(self):
        words = words_of_the_program()
        for page in [*manual.pages(), manual.Page(manual.README)]:
            for bold in page.bold():
                with self.subTest(page=page.name, caption=bold):
                    self.assertTrue(bold in words or bold in WEIGHT, "no control or message of the program reads so")

    def test_weight_is_used(self):
        used = {bold for page in manual.pages() for bold in page.bold()}
        self.assertEqual(WEIGHT - used, set())

    def test_the_program_was_asked(self):
        self.assertIn("Key settings", program.captions("frmMain")["MenuItem"])
        self.assertIn("Name of the next sample:", program.captions("frmNext")["Label"])
        self.assertIn("Key number", program.captions("frmKeyCode")["TabControl"])

    def test_a_page_names_what_can_be_clicked_in_its_window(self):
        pages = {window: page for page in manual.pages() for window in page.windows()}
        for window in program.controls():
            captions = program.captions(window)
            for kind in ("Button", "MenuItem", "OptionButton", "TabControl"):
                for caption in captions.get(kind, set()) - PLACEHOLDERS - MENUS_UNSEEN:
                    if re.fullmatch(r"\d+-\d+ \(.*\)", caption) or caption in ("Subtotal-1", "Subtotal-2") and kind == "MenuItem":
                        continue  # banks to move to, and names that are the user's
                    with self.subTest(window=window, caption=caption):
                        self.assertIn(caption, pages[window].bold())


def pictures_taken():
    """(window, picture): by the script that the driver plays, and of the program itself."""
    by_driver, of_program = [(manual.TOP / "docs" / name).read_text(encoding="utf-8") for name in ("pictures.drive", "about_picture.py")]
    return (re.findall(r"^image (\w+)(?:\.\w+)? \./pictures/(\S+)", by_driver, re.M)
            + [("frmAboutMB1", picture) for picture in re.findall(r'"pictures/(\S+)"', of_program)])


class PagesTest(unittest.TestCase):
    def test_each_window_has_one_page_with_its_picture(self):
        taken = pictures_taken()
        pages = [(window, page) for page in manual.pages() for window in page.windows()]
        self.assertEqual(sorted(window for window, _ in pages), sorted(program.controls()))
        for window, page in pages:
            with self.subTest(window=window):
                shown = {Path(picture).name for picture in page.pictures()}
                of_window = {name for source, name in taken if source == window}
                self.assertTrue(of_window)
                self.assertEqual(of_window, shown & {name for _, name in taken}, "its page shows these pictures of it")

    def test_each_message_has_its_entry(self):
        entries = set(manual.page("messages.md").headings(2))
        # Boxes of the desktop layer, which come before or after all windows.
        plain = {"Marlbrook is running already.", "Marlbrook needs 64 open files at a time.", "A word alone",
                 'A file with a quotation mark (") in its name or in that of a folder cannot be used.'}
        self.assertEqual(entries - plain, {text for _, text in program.messages()})
        self.assertTrue(plain <= entries)

    def test_an_entry_names_the_title_of_its_box(self):
        parts = re.split(r"^## (.*)$", manual.page("messages.md").text, flags=re.M)
        told = dict(zip(parts[1::2], parts[2::2]))
        for title, text in program.messages():
            with self.subTest(text=text):
                self.assertIn(f"**{title}**", told.get(text, ""))

    def test_no_message_box_of_the_code_is_left_out(self):
        page = manual.page("messages.md").text
        sentences = program.sentences_of_message_boxes()
        self.assertGreater(len(sentences), 15)
        for sentence in sentences:
            with self.subTest(sentence=sentence):
                self.assertTrue(any(part in page for part in (sentence, sentence.split(". ")[0] + ".")))

    def test_each_word_of_a_failure_is_explained(self):
        self.assertTrue(program.failure_words())
        self.assertLessEqual(program.failure_words(), set(manual.page("messages.md").bold()))

    def test_links_and_pictures_are_there(self):
        for page in [*manual.pages(), manual.Page(manual.README)]:
            for target in page.links() + page.pictures():
                with self.subTest(page=page.name, target=target):
                    self.assertTrue((page.path.parent / target.split("#")[0]).is_file())

    def test_each_page_can_be_reached_from_the_first(self):
        linked = set(manual.page("index.md").links())
        self.assertEqual({page.name for page in manual.pages()} - linked, {"index.md"})

    def test_each_page_has_one_title(self):
        for page in manual.pages():
            with self.subTest(page=page.name):
                self.assertEqual(len(page.headings(1)), 1)


class ScriptsTest(unittest.TestCase):
    def test_what_the_manual_tells_plays_as_told(self):
        for script in program.message_scripts():
            with self.subTest(script=script.name):
                ran = program.play_file(script)
                self.assertEqual(ran.returncode, 0, ran.stdout + ran.stderr)


class WebPagesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.out = Path(cls.folder.name)
        subprocess.run([sys.executable, manual.TOP / "docs" / "manual" / "make_html.py", cls.out], check=True)

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def test_each_page_is_made_and_leads_nowhere_outside(self):
        self.assertEqual({path.stem for path in self.out.glob("*.html")}, {page.path.stem for page in manual.pages()})
        for path in self.out.glob("*.html"):
            for target in re.findall(r'(?:href|src)="([^"]+)"', path.read_text(encoding="utf-8")):
                with self.subTest(page=path.name, target=target):
                    file, _, anchor = target.partition("#")
                    aim = self.out / (file or path.name)
                    self.assertTrue(aim.is_file())
                    if anchor:
                        self.assertIn(f'id="{anchor}"', aim.read_text(encoding="utf-8"))

    def test_each_page_of_some_length_has_its_list_of_contents(self):
        for page in manual.pages():
            with self.subTest(page=page.name):
                made = (self.out / f"{page.path.stem}.html").read_text(encoding="utf-8")
                for heading in page.headings(2):
                    self.assertEqual(made.count(f">{heading}<") >= 2, True, heading)


class ExamplesTest(examples.Examples):
    def test_the_page_shows_what_the_program_shows(self):
        self.assertEqual(len(self.expected.splitlines()), 12)
        self.assertEqual(self.page.blocks("text")[-1], self.expected)

    def test_the_sheet_beside_the_page_is_one_that_the_program_writes(self):
        saved = (self.work / "lake_core.csv").read_bytes().split(b"\r\n")
        shipped = self.shipped.split(b"\r\n")
        self.assertEqual(saved[1:143], shipped[1:143])
        self.assertEqual(saved[-4:], shipped[-4:])

    def test_the_lines_on_the_page_are_those_of_the_sheet(self):
        lines = self.shipped.decode("windows-1252").split("\r\n")
        for shown, line in zip(self.page.blocks("text")[0].splitlines(), lines):
            self.assertTrue(line.startswith(shown + ","))

    def test_python(self):
        self.run_example([sys.executable], self.page.blocks("python")[0])


if __name__ == "__main__":
    unittest.main()
