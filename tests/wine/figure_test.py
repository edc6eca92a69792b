"""marlbrook-figure as the setup has installed it on Windows, called as from a command line there: its files beside those of Linux."""
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

from computer import Computer, installed
from desk import TOP
from figure_program_test import Drawing

SHEET = TOP / "docs/manual/lake_core.csv"
LINUX = pathlib.Path(os.environ["MARLBROOK_LINUX_BIN"]) / "marlbrook-figure"
EVERYTHING = ["--marker", "Lycopodium", "--added", "Tablets*18583±764", "--weight", "Weight (g)", "--rate", "0.1", "--zones", "auto",
              "--concentration", "--richness", "--r", "--python"]
BAD_INPUT = 2


def tables(folder):
    return {path.name: path.read_bytes() for path in folder.iterdir()}


class FigureTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.computer = Computer(installed())
        cls.addClassCleanup(cls.computer.end)
        cls.linux = pathlib.Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.linux)

    def setUp(self):
        self.folder = self.computer.c / "cores"
        self.folder.mkdir()
        self.addCleanup(shutil.rmtree, self.folder)

    def draw(self, *arguments, folder=None):
        done = self.computer.run(self.computer.programs / "bin/marlbrook-figure.exe", *arguments, cwd=folder or self.folder)
        return done.returncode, (done.stdout + done.stderr).decode("utf-8").replace("\r\n", "\n")

    def draw_on_linux(self, sheet, *arguments):
        """The sheet under the same name; its folder."""
        folder = pathlib.Path(tempfile.mkdtemp(dir=self.linux))
        shutil.copy(sheet, folder)
        subprocess.run([LINUX, sheet.name, *arguments], cwd=folder, check=True)
        return folder

    def test_the_tables_are_those_of_linux_to_the_byte(self):
        shutil.copy(SHEET, self.folder)
        self.assertEqual(self.draw("lake_core.csv", *EVERYTHING), (0, ""))
        linux = self.draw_on_linux(SHEET, *EVERYTHING)
        self.assertEqual(tables(self.folder / "lake_core_tables"), tables(linux / "lake_core_tables"))

    def test_the_figure_is_that_of_linux_in_the_same_letters(self):
        """Wine has Liberation Sans in place of Arial, whose letters are as wide."""
        shutil.copy(SHEET, self.folder)
        self.assertEqual(self.draw("lake_core.csv", "--zones", "3", "--png", "100"), (0, ""))
        linux = self.draw_on_linux(SHEET, "--zones", "3", "--font", "Liberation Sans")
        here, there = (Drawing(folder / "lake_core.svg") for folder in (self.folder, linux))
        self.assertGreater(len(here.texts), 50)
        self.assertEqual([(text.text, text.angle, text.italic) for text in here.texts],
                         [(text.text, text.angle, text.italic) for text in there.texts])
        for text, other in zip(here.texts, there.texts):
            self.assertAlmostEqual(text.x, other.x, delta=0.1, msg=text.text)
            self.assertAlmostEqual(text.y, other.y, delta=0.1, msg=text.text)
        self.assertEqual(len(here.areas), len(there.areas))
        fonts = subprocess.run(["pdffonts", self.folder / "lake_core.pdf"], capture_output=True, text=True, check=True).stdout
        self.assertRegex(fonts, r"(?s)\A.*\n-+.*\n(\S*Liberation\S* .*\byes\s+\w+\s+yes\b.*\n)+\Z", "embedded, and can be searched")
        self.assertTrue((self.folder / "lake_core.png").read_bytes().startswith(b"\x89PNG"))

    def test_a_pattern_stands_for_its_sheets_and_each_is_drawn_as_if_alone(self):
        counted = SHEET.read_bytes().split(b"\r\n")
        other = b"\r\n".join(line.rsplit(b",", 3)[0] for line in counted)  # three samples less
        for name, content in (("core 1.csv", SHEET.read_bytes()), ("core 2.CSV", other), ("core.csvx", b"")):
            (self.folder / name).write_bytes(content)
        self.assertEqual(self.draw("*.csv", "--marker", "Lycopodium", "--added", "Tablets*18583", "--weight", "Weight (g)"), (0, ""))
        self.assertEqual({path.name for path in self.folder.iterdir()},
                         {"core 1.csv", "core 1.pdf", "core 1.svg", "core 1_tables", "core 2.CSV", "core 2.pdf", "core 2.svg", "core 2_tables",
                          "core.csvx"})
        for name in ("core 1.csv", "core 2.CSV"):
            linux = self.draw_on_linux(self.folder / name, "--marker", "Lycopodium", "--added", "Tablets*18583", "--weight", "Weight (g)")
            stem = name.rpartition(".")[0]
            self.assertEqual(tables(self.folder / f"{stem}_tables"), tables(linux / f"{stem}_tables"), name)

    def test_folders_in_letters_of_many_scripts_with_backslashes(self):
        lake = self.folder / "Jezioro Łąckie 山 Ω"
        lake.mkdir()
        shutil.copy(SHEET, lake / "ядро.csv")
        self.assertEqual(self.draw(self.computer.path(lake / "ядро.csv"), "--no-tables", folder=self.computer.c), (0, ""))
        self.assertTrue((lake / "ядро.pdf").exists())
        self.assertEqual(self.draw(r".\Jezioro Łąckie 山 Ω\*.csv", "--output", r"C:\cores\фигуры"), (0, ""))
        self.assertEqual(sorted(path.name for path in (self.folder / "фигуры").iterdir()), ["ядро.pdf", "ядро.svg", "ядро_tables"])

    def test_a_sheet_on_a_network(self):
        share = self.computer.share()
        shutil.copy(SHEET, share)
        self.assertEqual(self.draw(r"\\server\share\lake*.csv"), (0, ""))
        self.assertEqual({path.name for path in share.iterdir()}, {"lake_core.csv", "lake_core.pdf", "lake_core.svg", "lake_core_tables"})

    def test_what_cannot_be_drawn_is_told_in_one_line_and_leaves_no_file(self):
        status, said = self.draw("山.csv")
        self.assertEqual(status, BAD_INPUT)
        self.assertRegex(said, r"\Amarlbrook-figure: 山\.csv: [^\n]*not there[^\n]*\n\Z")
        self.assertEqual(self.draw("none*.csv")[0], BAD_INPUT)
        self.assertEqual(list(self.folder.iterdir()), [])

    def test_help_names_the_font_of_windows(self):
        status, said = self.draw("--help")
        self.assertEqual(status, 0)
        self.assertRegex(said, r"--font NAME +of the letters \(Arial\)")


if __name__ == "__main__":
    unittest.main()
