"""marlbrook-figure as a user runs it: its files judged against the sheet."""
import ast
import csv
import math
import os
import pty
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
PROGRAM = Path(os.environ["MARLBROOK_BIN"]) / "marlbrook-figure"
SHEET = ROOT / "docs/manual/lake_core.csv"
SVG = "{http://www.w3.org/2000/svg}"
FIRST_TAXON, TAXA = 2, 135  # rows of a sheet
LABELS = 4  # cells before those of the samples


def run(*arguments):
    return subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True, timeout=120)


def draw(folder, *arguments):
    done = run(*arguments, "--output", folder)
    assert (done.returncode, done.stderr) == (0, ""), done.stderr
    return folder


def rows_of(sheet):
    with open(sheet, encoding="windows-1252", newline="") as file:
        return list(csv.reader(file))


def percentages(rows):
    """By taxon, of all counts: a list, from the uppermost sample down."""
    counts = {row[3]: [int(cell) for cell in row[LABELS:]] for row in rows[FIRST_TAXON:FIRST_TAXON + TAXA] if row[3] != "---"}
    sums = [sum(column) for column in zip(*counts.values())]
    return {name: [100 * count / total for count, total in zip(row, sums)] for name, row in counts.items()}


class Text:
    def __init__(self, element, matrix):
        a, b, c, d, e, f = matrix
        x, y = float(element.get("x")), float(element.get("y"))
        self.text = "".join(element.itertext())
        self.x, self.y = a * x + c * y + e, b * x + d * y + f
        self.angle = round(-math.degrees(math.atan2(b, a)))
        self.italic = element.get("font-style") == "italic"


class Shape:
    def __init__(self, points, fill):
        self.points, self.fill = points, fill
        self.left, self.right = min(x for x, _ in points), max(x for x, _ in points)
        self.top, self.bottom = min(y for _, y in points), max(y for _, y in points)
        self.middle = (self.top + self.bottom) / 2


class Drawing:
    """What an SVG file shows, in points of the page."""

    def __init__(self, path):
        root = ElementTree.parse(path).getroot()
        self.width, self.height = map(float, root.get("viewBox").split()[2:])
        self.texts, self.areas, self.lines, self.dashed = [], [], [], []
        for group in root.iter(SVG + "g"):
            matrix = [float(part) for part in re.findall(r"-?[\d.]+(?:e-?\d+)?", group.get("transform", ""))] or [1, 0, 0, 1, 0, 0]
            for element in group:
                self._take(element, group, matrix)

    def _take(self, element, group, matrix):
        if element.tag == SVG + "text":
            self.texts.append(Text(element, matrix))
        elif element.tag == SVG + "polyline":
            points = [tuple(map(float, point.split(","))) for point in element.get("points").split()]
            (self.dashed if group.get("stroke-dasharray") else self.lines).append(Shape(points, None))
        elif element.tag == SVG + "path":
            for part in element.get("d").split("M")[1:]:
                points = [tuple(map(float, point.split(","))) for point in re.findall(r"-?[\d.e-]+,-?[\d.e-]+", part)]
                self.areas.append(Shape(points, group.get("fill")))

    def saying(self, text):
        return [each for each in self.texts if each.text.strip() == text]


def read_to_end(terminal):
    """What came from its other end, which is closed: in one piece or in several."""
    said = b""
    try:
        while piece := os.read(terminal, 65536):
            said += piece
    except OSError:  # as Linux tells the end
        pass
    os.close(terminal)
    return said.decode()


class SvgTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        draw(cls.folder.name, SHEET, "--zones", 3, "--no-summary")
        cls.drawing = Drawing(Path(cls.folder.name) / "lake_core.svg")
        cls.rows = rows_of(SHEET)
        cls.shares = percentages(cls.rows)
        cls.depths = [float(name) for name in cls.rows[1][LABELS:]]

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def y_of_depth(self, depth):
        """By the numbers 10 and 90 of the axis: those furthest to the left."""
        first, last = (min(self.drawing.saying(number), key=lambda text: text.x).y for number in ("10", "90"))
        middle_of_letters = 0.36 * 6.5
        return first + (depth - 10) / 80 * (last - first) - middle_of_letters

    def left_of(self, taxon):
        """The axis of the column that the name stands over."""
        name = self.drawing.saying(taxon)[0]
        axes = [line.left for line in self.drawing.lines if line.left == line.right and line.bottom - line.top > 100 and line.left < name.x]
        return max(axes)

    def test_each_taxon_stands_over_its_column_in_the_order_of_the_sheet(self):
        lefts = [self.left_of(taxon) for taxon in self.shares]
        self.assertEqual(lefts, sorted(lefts))
        self.assertEqual(len(set(lefts)), 23)

    def test_each_bar_is_as_long_as_its_percentage_on_one_scale(self):
        zero, twenty = (min((text for text in self.drawing.saying(number) if text.y > 500), key=lambda text: text.x)
                        for number in ("0", "20"))
        scale = (twenty.x + 4.1 - zero.x - 2.05) / 20  # from middle to middle: letters of half their size
        for taxon, shares in self.shares.items():
            left = self.left_of(taxon)
            bars = [area for area in self.drawing.areas if abs(area.left - left) < 0.01 and area.bottom < 550]
            found = [(depth, share) for depth, share in zip(self.depths, shares) if share > 0]
            self.assertEqual(len(bars), len(found), taxon)
            for bar, (depth, share) in zip(bars, found):
                self.assertAlmostEqual(bar.middle, self.y_of_depth(depth), delta=0.1, msg=taxon)
                self.assertAlmostEqual(bar.right - bar.left, share * scale, delta=0.02 * share * scale + 0.02, msg=taxon)

    def test_ticks_stand_at_their_numbers(self):
        axis = min(line.left for line in self.drawing.lines if line.left == line.right and line.bottom - line.top > 100)
        marks = [line for line in self.drawing.lines if line.top == line.bottom and abs(line.right - axis) < 0.01 and line.right - line.left > 2.5]
        self.assertEqual(len(marks), 9)
        for mark, depth in zip(sorted(marks, key=lambda line: line.top), range(10, 100, 10)):
            self.assertAlmostEqual(mark.top, self.y_of_depth(depth), delta=0.1)
        samples = [line for line in self.drawing.lines if line.top == line.bottom and abs(line.left - axis) < 0.01 and line.right - line.left < 2.5]
        for mark, depth in zip(sorted(samples, key=lambda line: line.top), self.depths, strict=True):
            self.assertAlmostEqual(mark.top, self.y_of_depth(depth), delta=0.1)

    def test_percent_ticks_are_equally_far_in_every_column(self):
        below = max(line.bottom for line in self.drawing.lines if line.left == line.right and line.bottom - line.top > 100)
        ticks = sorted(line.left for line in self.drawing.lines if line.left == line.right and abs(line.top - below) < 0.01)
        lefts = [*(self.left_of(taxon) for taxon in self.shares), self.left_of("Cluster tree")]
        steps = set()
        for left, right, shares in zip(lefts, lefts[1:], self.shares.values()):
            own = [tick for tick in ticks if left - 0.01 <= tick < right - 0.01]
            self.assertEqual(len(own), max(1, math.ceil(max(shares) / 5)) + 1, "from 0 to the one beyond the largest value, each 5 percent")
            steps |= {round(b - a, 1) for a, b in zip(own, own[1:])}
        self.assertLessEqual(max(steps) - min(steps), 0.11, steps)

    def test_zone_lines_are_where_the_table_has_them(self):
        with open(Path(self.folder.name) / "lake_core_tables/zones.csv", encoding="utf-8", newline="") as file:
            tops = [float(zone["Top (cm)"]) for zone in csv.DictReader(file)][1:]
        lines = sorted(line.top for line in self.drawing.dashed)
        self.assertEqual(len(lines), 2)
        for line, top in zip(lines, tops):
            self.assertAlmostEqual(line, self.y_of_depth(top), delta=0.1)
        for name in ("LPAZ-1", "LPAZ-2", "LPAZ-3"):
            self.assertEqual(len(self.drawing.saying(name)), 1)

    def test_genera_are_in_italics_and_read_upward(self):
        for taxon in self.shares:
            name = self.drawing.saying(taxon)[0]
            self.assertEqual(name.italic, not taxon.endswith("ae"), taxon)
            self.assertEqual(name.angle, 90, taxon)

    def test_letters_have_a_font_of_their_kind_where_theirs_is_missing(self):
        svg = (Path(self.folder.name) / "lake_core.svg").read_text(encoding="utf-8")
        fonts = re.findall(r'font-family="(DejaVu Sans[^"]*)"', svg)
        self.assertGreater(len(fonts), 23)
        self.assertEqual(set(fonts), {"DejaVu Sans, sans-serif"})

    def test_the_tree_spans_the_samples(self):
        left = self.left_of("Cluster tree")
        brackets = [line for line in self.drawing.lines if len(line.points) == 4 and line.left >= left - 0.01]
        self.assertEqual(len(brackets), 11)
        self.assertAlmostEqual(min(line.top for line in brackets), self.y_of_depth(4), delta=0.1)
        self.assertAlmostEqual(max(line.bottom for line in brackets), self.y_of_depth(92), delta=0.1)


class FilesTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def ask(self, program, *arguments):
        return subprocess.run([program, *map(str, arguments)], capture_output=True, text=True, check=True).stdout

    def left_in_folder(self):
        return sorted(path.relative_to(self.folder).as_posix() for path in self.folder.rglob("*"))

    def copy(self, name, rows):
        path = self.folder / name
        with open(path, "w", encoding="windows-1252", newline="") as file:
            csv.writer(file, quoting=csv.QUOTE_ALL).writerows(rows)
        return path

    def assert_refused(self, sheet, said, *arguments):
        before = self.left_in_folder()
        done = run(sheet, *arguments)
        self.assertEqual(done.returncode, 2, done.stderr)
        self.assertEqual(done.stdout, "")
        self.assertRegex(done.stderr, r"\Amarlbrook-figure: [^\n]*" + re.escape(said) + r"[^\n]*\n\Z")
        self.assertEqual(self.left_in_folder(), before)

    def test_figure_and_tables_lie_beside_the_sheet(self):
        sheet = self.copy("core.csv", rows_of(SHEET))
        self.assertEqual(run(sheet).returncode, 0)
        left = self.left_in_folder()
        self.assertEqual([name for name in left if "/" not in name], ["core.csv", "core.pdf", "core.svg", "core_tables"])
        self.assertIn("core_tables/percentages_all.csv", left)

    def test_the_pdf_has_its_letters_and_one_page_of_a4(self):
        draw(self.folder, SHEET, "--no-tables")
        pdf = self.folder / "lake_core.pdf"
        words = self.ask("pdftotext", pdf, "-").split()
        for taxon in percentages(rows_of(SHEET)):
            self.assertIn(taxon, words)
        self.assertIn("Depth", words)
        fonts = self.ask("pdffonts", pdf).splitlines()[2:]
        self.assertTrue(fonts)
        for font in fonts:
            self.assertRegex(font, r"\byes\s+\w+\s+yes\b", "embedded, and its letters can be searched")
        about = self.ask("pdfinfo", pdf)
        self.assertIn("(A4)", about)
        self.assertRegex(about, r"Pages:\s+1\n")

    def test_nothing_is_cut_off_at_the_edge_of_the_page(self):
        draw(self.folder, SHEET, "--no-tables", "--names", 45, "--zones", "auto", "--sums", "--richness")
        picture = subprocess.run(["pdftoppm", "-r", "50", "-gray", self.folder / "lake_core.pdf"], capture_output=True, check=True).stdout
        width, height = map(int, re.match(rb"P5\s+(\d+)\s+(\d+)", picture).groups())
        dots = picture[-width * height:]
        rows = [dots[row * width:(row + 1) * width] for row in range(height)]
        margin = 10  # dots
        self.assertTrue(all(dot == 255 for row in rows[:margin] + rows[-margin:] for dot in row))
        self.assertTrue(all(dot == 255 for row in rows for dot in row[:margin] + row[-margin:]))
        self.assertLess(sum(dot == 255 for dot in dots), 0.95 * len(dots), "and there is a figure")

    def test_scripts_draw_the_taxa_of_the_figure(self):
        draw(self.folder, SHEET, "--python", "--order", "Poaceae,Betula", "--min", 10, "--upright", "Alnus", "--marker", "Lycopodium")
        script = (self.folder / "lake_core_tables/figure.py").read_text()
        taxa, italic = (ast.literal_eval(re.search(rf"^{name} = (\[.*?\])$", script, re.MULTILINE | re.DOTALL).group(1))
                        for name in ("TAXA", "ITALIC"))
        self.assertEqual(taxa[:3], ["Poaceae", "Betula", "Pinus"])
        self.assertEqual(set(taxa), {name for name, shares in percentages(rows_of(SHEET)).items() if max(shares) >= 10} - {"Lycopodium"})
        self.assertEqual(italic, [name for name in taxa if not name.endswith("ae") and name != "Alnus"])

    def test_scripts_draw_what_the_figure_shows(self):
        draw(self.folder, SHEET, "--r", "--style", "curve", "--tree", "none", "--zones", 2, "--title", "Lake", "--exaggerate", 5)
        script = (self.folder / "lake_core_tables/figure.R").read_text()
        for line in ('TITLE <- "Lake"', 'STYLE <- "curve"', 'EXAGGERATE <- 5', 'TREE <- ""', "ZONES <- TRUE"):
            self.assertIn(f"\n{line}\n", script)
        colours = dict(re.findall(r'"(#\w{6})" = c\((.*?)\)', script, re.DOTALL))
        self.assertEqual(len(colours), 3)
        rows = rows_of(SHEET)[FIRST_TAXON:FIRST_TAXON + TAXA]
        trees, herbs, others = (re.findall(r'"(.*?)"', names) for names in colours.values())
        self.assertEqual(trees, [row[3] for row in rows if row[1] == "1"])
        self.assertEqual(herbs, [row[3] for row in rows if row[2] == "1"])
        self.assertEqual(set(others), {"Lycopodium", "Pediastrum"})

    def test_lists_of_names_take_blanks_and_commas(self):
        rows = rows_of(SHEET)
        pinus = next(row for row in rows if row[3] == "Pinus")
        pinus[3] = "Pinus, Haploxylon"
        sheet = self.copy("core.csv", rows)
        draw(self.folder, sheet, "--python", "--order", r"Betula , Pinus\, Haploxylon", "--order", "Poaceae", "--upright", r"Pinus\, Haploxylon")
        script = (self.folder / "core_tables/figure.py").read_text()
        self.assertRegex(script, r'\nTAXA = \["Betula", "Pinus, Haploxylon", "Poaceae", ')
        self.assertNotIn("Pinus, Haploxylon", re.search(r"\nITALIC = \[(.*?)\]\n", script, re.DOTALL).group(1))

    def test_a_picture_has_its_dots(self):
        draw(self.folder, SHEET, "--no-tables", "--png", 100)
        head = (self.folder / "lake_core.png").read_bytes()[16:24]
        width, height = int.from_bytes(head[:4], "big"), int.from_bytes(head[4:], "big")
        drawing = Drawing(self.folder / "lake_core.svg")
        self.assertAlmostEqual(width, drawing.width * 100 / 72, delta=2)
        self.assertAlmostEqual(height, 595 * 100 / 72, delta=1)

    def test_a_long_core_takes_pages_and_a_wide_svg(self):
        rows = rows_of(SHEET)
        samples = 250
        for i, row in enumerate(rows):
            row[LABELS:] = [str(i * 7 % 40 + sample % 9) for sample in range(samples)]
        rows[0][LABELS:] = rows[1][LABELS:] = [str(sample + 1) for sample in range(samples)]
        for i in range(TAXA):
            rows[FIRST_TAXON + i][3] = f"Longissima {i}"
        draw(self.folder, self.copy("long.csv", rows), "--no-tables")
        self.assertGreater(Drawing(self.folder / "long.svg").width, 1500)
        pages = int(re.search(r"Pages:\s+(\d+)", self.ask("pdfinfo", self.folder / "long.pdf")).group(1))
        self.assertGreater(pages, 1)
        words = self.ask("pdftotext", self.folder / "long.pdf", "-")
        self.assertEqual(len(set(re.findall(r"Longissima \d+", words))), TAXA)

    def test_a_sheet_that_cannot_be_drawn_leaves_no_file(self):
        rows = rows_of(SHEET)
        self.assert_refused(self.copy("template.csv", [row[:LABELS] for row in rows]), "this is a template")
        self.assert_refused(self.copy("one.csv", [row[:LABELS + 1] for row in rows]), "has one")
        self.assert_refused(self.copy("table.csv", rows[:143] + rows[144:]), "this is a percentage table")
        self.assert_refused(self.copy("cut.csv", rows[:137] + rows[144:]), "not a whole one")
        self.assert_refused(self.copy("torn.csv", rows[:40]), "not a whole one")
        rows[FIRST_TAXON][LABELS + 2] = "-3"
        self.assert_refused(self.copy("negative.csv", rows), "the count of Pinus in sample 20 is below zero")
        self.assert_refused(self.folder / "none.csv", "not there")
        rows = rows_of(SHEET)
        rows[FIRST_TAXON][1] = "2"
        self.assert_refused(self.copy("flags.csv", rows), "the flag of Pinus for Trees is 2")
        for name in ("top", "10.0", "10.50", "010", "+10", " 10"):
            rows = rows_of(SHEET)
            rows[1][LABELS + 1] = name
            self.assert_refused(self.copy("named.csv", rows), f'sample "{name}": a depth is a plain number such as 10 or 10.5')
        rows = rows_of(SHEET)
        rows[1][LABELS] = "-9999"
        self.assert_refused(self.copy("unnamed.csv", rows), "the first sample has no name yet")
        rows = rows_of(SHEET)
        rows[FIRST_TAXON][3] = "Lycopodium"
        for way in ((), ("--added", "2*18583", "--volume", "1")):
            self.assert_refused(self.copy("two.csv", rows), 'more than one taxon is named "Lycopodium"', "--marker", "Lycopodium", *way)

    def test_a_number_out_of_its_range_leaves_no_file(self):
        sheet = self.copy("core.csv", rows_of(SHEET))
        for option, *wrong in (("--exaggerate", "nan", "0.5", "many"), ("--min", "nan", "-1", "101"), ("--page", "nanx100", "100xnan", "100", "1x100"),
                               ("--zones", "-1", "0", "1.5", "99999999999999999999")):
            for value in wrong:
                with self.subTest(option=option, value=value):
                    self.assert_refused(sheet, f"{option}: takes ", option, value)

    def test_scripts_are_refused_without_their_tables(self):
        sheet = self.copy("core.csv", rows_of(SHEET))
        for script in ("--r", "--python"):
            self.assert_refused(sheet, script + ": ", "--no-tables", script)

    def test_an_option_that_the_sheet_cannot_follow_leaves_no_file(self):
        sheet = self.copy("core.csv", rows_of(SHEET))
        self.assert_refused(sheet, "Lykopodium", "--marker", "Lykopodium")
        self.assert_refused(sheet, "Age", "--age", "Age")
        self.assert_refused(sheet, "Abies", "--order", "Pinus,Abies")
        self.assert_refused(sheet, "--page", "--page", "letter")
        self.assert_refused(sheet, "--zones", "--zones", "none")
        self.assert_refused(sheet, "--style", "--style", "pie")
        for option in (["--concentration"], ["--volume", "1"], ["--weight", "1"], ["--rate", "1"]):
            self.assert_refused(sheet, f"{option[0]}: takes --marker and --added", *option, "--marker", "Lycopodium")
        self.assert_refused(sheet, "Pi nus", "--marker", "Pi\nnus")
        self.assert_refused(sheet, "13", "--zones", 13)

    def test_influx_by_ages_takes_depths_and_keeps_nothing_else_from_a_sheet(self):
        rows = rows_of(SHEET)
        ages = next(row for row in rows if row[3] == "Tablets")
        ages[3:] = ["Age (BP)", *(str(100 * sample) for sample in range(len(rows[1][LABELS:])))]
        marker = "--marker", "Lycopodium", "--added", "2*18583", "--volume", "1", "--age", "Age (BP)"
        draw(self.folder, self.copy("deep.csv", rows), *marker)
        self.assertIn("deep_tables/influx.csv", self.left_in_folder())
        rows[1][LABELS] = "top"
        ways = {"named": "influx by ages takes depths for names of samples"}
        self.copy("named.csv", rows)
        rows[1][LABELS] = "4"
        ages[LABELS] = ages[LABELS + 1]
        ways["equal"] = "the ages neither rise nor fall all the way down, so there is no influx"
        self.copy("equal.csv", rows)
        for name, said in ways.items():
            done = run(self.folder / f"{name}.csv", *marker)
            self.assertEqual(done.returncode, 0)
            self.assertRegex(done.stderr, rf"\Amarlbrook-figure: [^\n]*{name}\.csv: influx\.csv is left out: {said}\n\Z")
            left = self.left_in_folder()
            self.assertIn(f"{name}.svg", left)
            self.assertIn(f"{name}_tables/concentrations.csv", left)
            self.assertNotIn(f"{name}_tables/influx.csv", left)

    def test_of_many_sheets_the_good_ones_are_drawn(self):
        rows = rows_of(SHEET)
        sheets = [self.copy(f"core {i}.csv", rows) for i in range(5)]
        sheets.insert(2, self.copy("template.csv", [row[:LABELS] for row in rows]))
        done = run(*sheets, "--no-tables")
        self.assertEqual(done.returncode, 2)
        self.assertEqual(len(done.stderr.splitlines()), 1, done.stderr)
        self.assertEqual(len(list(self.folder.glob("core *.pdf"))), 5)
        self.assertEqual(list(self.folder.glob("template.*")), [self.folder / "template.csv"])

    def test_a_terminal_shows_how_far_it_has_come(self):
        rows = rows_of(SHEET)
        sheets = [self.copy("core.csv", rows), self.copy("template.csv", [row[:LABELS] for row in rows]), self.copy("other.csv", rows)]
        ours, theirs = pty.openpty()
        done = subprocess.run([PROGRAM, *sheets, "--no-tables"], stderr=theirs, timeout=120)
        os.close(theirs)
        said = read_to_end(ours)
        self.assertEqual(done.returncode, 2)
        self.assertIn("0 of 3", said)
        self.assertIn("3 of 3", said)
        self.assertRegex(said, r"\r\x1b\[Kmarlbrook-figure: [^\r\n]*template\.csv: this is a template")
        self.assertTrue(said.endswith("\r\x1b[K"), "the bar is gone at the end")

    def test_two_sheets_do_not_write_the_same_files(self):
        (self.folder / "other").mkdir()
        sheets = [self.copy("core.csv", rows_of(SHEET)), self.copy("other/core.csv", rows_of(SHEET))]
        done = run(*sheets, "--output", self.folder / "figures")
        self.assertEqual(done.returncode, 2)
        self.assertFalse((self.folder / "figures").exists())

    def test_one_sheet_by_two_ways_is_one_sheet(self):
        sheet = self.copy("core.csv", rows_of(SHEET))
        (self.folder / "link").symlink_to(self.folder)
        for other in (f"{self.folder}/./core.csv", self.folder / "link/core.csv", os.path.relpath(sheet)):
            done = run(sheet, other)
            self.assertEqual((done.returncode, self.left_in_folder()), (2, ["core.csv", "link"]), other)
            self.assertIn("would take the place", done.stderr)

    def test_a_folder_in_the_way_leaves_the_files_before_it(self):
        sheet = self.copy("core.csv", rows_of(SHEET))
        (self.folder / "core.svg").mkdir()
        done = run(sheet)
        self.assertEqual(done.returncode, 1)
        self.assertRegex(done.stderr, r"\A[^\n]*core\.svg: it is a folder\n\Z")
        self.assertEqual(self.left_in_folder(), ["core.csv", "core.svg"])

    def test_all_folders_on_the_way_are_made(self):
        draw(self.folder / "a/b", SHEET, "--no-tables")
        self.assertEqual(self.left_in_folder(), ["a", "a/b", "a/b/lake_core.pdf", "a/b/lake_core.svg"])

    def test_tables_that_a_call_does_not_make_go_and_what_is_the_users_stays(self):
        draw(self.folder, SHEET, "--marker", "Lycopodium", "--added", "2*18583", "--volume", "1", "--rate", "0.1", "--r", "--png", "50")
        tables = self.folder / "lake_core_tables"
        (tables / "notes.csv").write_text("mine")
        (tables / "figure.R").write_text("changed")
        draw(self.folder, SHEET, "--no-tables")
        self.assertTrue((tables / "influx.csv").exists(), "the figure alone")
        draw(self.folder, SHEET)
        self.assertFalse({"concentrations.csv", "influx.csv"} & {path.name for path in tables.iterdir()})
        self.assertEqual([(tables / name).read_text() for name in ("notes.csv", "figure.R")], ["mine", "changed"])
        self.assertTrue((self.folder / "lake_core.png").exists())

    def test_what_cannot_be_written_leaves_the_files_before_it(self):
        sheet = self.copy("core.csv", rows_of(SHEET))
        (self.folder / "core.svg").write_text("before")
        (self.folder / "core_tables").write_text("no folder")
        done = run(sheet)
        self.assertEqual(done.returncode, 1)
        self.assertEqual(len(done.stderr.splitlines()), 1)
        self.assertEqual((self.folder / "core.svg").read_text(), "before")
        self.assertEqual(self.left_in_folder(), ["core.csv", "core.svg", "core_tables"])

    def test_files_of_an_earlier_call_are_replaced(self):
        sheet = self.copy("core.csv", rows_of(SHEET))
        (self.folder / "core.svg").write_text("before")
        self.assertEqual(run(sheet, "--no-tables").returncode, 0)
        self.assertIn("Pinus", (self.folder / "core.svg").read_text())
        self.assertEqual(self.left_in_folder(), ["core.csv", "core.pdf", "core.svg"])


class WordsTest(unittest.TestCase):
    def options(self, text):
        return set(re.findall(r"--[a-z][a-z-]*[a-z]|--r\b", text))

    def test_help_has_examples_that_it_understands(self):
        done = run("--help")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        examples = re.findall(r"^  marlbrook-figure (.*)$", done.stdout, re.MULTILINE)
        self.assertGreaterEqual(len(examples), 3)
        for example in examples:
            self.assertLessEqual(self.options(example), self.options(done.stdout.split("Examples:")[0]))

    def test_the_version_is_that_of_the_program(self):
        version = re.search(r"VERSION ([\d.]+) LANG", (ROOT / "CMakeLists.txt").read_text()).group(1)
        self.assertEqual(run("--version").stdout, f"marlbrook-figure {version}\n")


if __name__ == "__main__":
    unittest.main()
