"""The scripts that come with the tables, run by Python and R."""

import ast
import csv
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
TABLES = Path(os.environ.get("MARLBROOK_BIN", HERE.parents[1] / "build/release/bin")) / "write_tables"
WAYS = ("silhouettes", "bars", "calendar", "named")
PYTHON = (sys.executable, "figure.py", "drawn.svg")
R = ("Rscript", "--vanilla", "figure.R", "drawn.pdf")


class ScriptsTest(unittest.TestCase):
    def draw(self, way, command, locale="C.UTF-8"):
        """The folder of the tables after the script has drawn from them."""
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        subprocess.run([TABLES, folder.name, way], timeout=60, check=True)
        before = sorted(os.listdir(folder.name))
        ran = subprocess.run(command, cwd=folder.name, env={**os.environ, "LC_ALL": locale}, capture_output=True, text=True, timeout=300, check=False)
        self.assertEqual(ran.returncode, 0, ran.stderr)
        self.assertLessEqual(set(before), set(os.listdir(folder.name)), "nothing is gone")
        self.said = ran.stdout + ran.stderr
        return Path(folder.name)

    def ask_python(self, way, asked):
        """What Python prints of the variables that the script leaves."""
        asked = f"import runpy; globals().update(runpy.run_path('figure.py')); {asked}"
        self.draw(way, (sys.executable, "-c", asked))
        return self.said

    def ask_r(self, way, asked):
        self.draw(way, ("Rscript", "--vanilla", "-e", asked))
        return self.said

    def test_python_draws_each_taxon_and_the_zones_and_the_title_of_the_figure(self):
        for way in WAYS:
            with self.subTest(way=way):
                folder = self.draw(way, PYTHON)
                drawn = (folder / "drawn.svg").read_text(encoding="utf-8")
                said = {"Poaceae", "Lycopodium", "Age (BP)" if way in ("calendar", "named") else "Depth (cm)"}
                with open(folder / "zones.csv", encoding="utf-8", newline="") as file:
                    zones = {row["Zone"] for row in csv.DictReader(file)}
                if way != "bars":
                    said |= zones
                if way == "silhouettes":
                    said |= {"Small core"}
                for word in said | zones | {"Small core"}:  # matplotlib notes each text beside its outlines
                    self.assertEqual(f"<!-- {word} -->" in drawn, word in said, word)

    def test_python_draws_in_the_style_and_the_colours_of_the_figure(self):
        """By their colours: bars; areas and dots; lines. Of four columns, the last of no group."""
        green, orange, black = "#009e73", "#e69f00", "#000000"
        dark_green, dark_orange = "#005f45", "#8a5f00"
        pale_green, pale_orange, pale_black = (colour + "4c" for colour in (green, orange, black))
        asked = ("from matplotlib.colors import to_hex; "
                 "colours = lambda items, of: [to_hex(colour, keep_alpha=colour[3] < 1) for item in items for colour in of(item)]; "
                 "print([(colours(axes.patches, lambda bar: [bar.get_facecolor()]), "
                 "colours(axes.collections, lambda area: area.get_facecolor()), "
                 "[to_hex(line.get_color()) for line in axes.lines if len(line.get_ydata()) == 3]) for axes in columns[:4]])")
        drawn = {
            "silhouettes": [([], [pale_green, green], [dark_green])] * 2 + [([], [pale_orange, orange], [dark_orange]),
                                                                            ([], [pale_black, black], [black])],
            "bars": [([green] * 3, [pale_green], [dark_green])] * 2 + [([orange] * 3, [pale_orange], [dark_orange]),
                                                                       ([black] * 3, [pale_black], [black])],
            "calendar": [([], [pale_green], [dark_green])] * 2 + [([], [pale_orange], [dark_orange]), ([], [pale_black], [black])],
            "named": [([], [pale_black, black], [])] * 2 + [([], [pale_orange, dark_orange], []), ([], [pale_black, black], [])],
        }
        for way, columns in drawn.items():
            with self.subTest(way=way):
                self.assertEqual(ast.literal_eval(self.ask_python(way, asked)), columns)

    def test_r_draws_in_the_style_and_the_colours_of_the_figure(self):
        """The calls that draw a column, by their colours."""
        spies = ('polygon <- function(..., col) cat("area", col, ""); '
                 'segments <- function(..., col = "") if (col != "") cat("bars", col, ""); '
                 'points <- function(..., col) cat("dots", col, ""); '
                 'lines <- function(..., col = "") if (col != "") cat("line", col, ""); '
                 'source("figure.R")')
        drawn = {
            "silhouettes": "area #009E734D area #009e73 line #005E45 " * 2 +
                           "area #E69F004D area #e69f00 line #8A5F00 area #0000004D area black line #000000",
            "bars": "area #009E734D bars #009e73 line #005E45 " * 2 +
                    "area #E69F004D bars #e69f00 line #8A5F00 area #0000004D bars black line #000000",
            "calendar": "area #009E734D line #005E45 " * 2 + "area #E69F004D line #8A5F00 area #0000004D line #000000",
            "named": "area #0000004D bars #000000 dots #000000 " * 2 +
                     "area #E69F004D bars #8A5F00 dots #8A5F00 area #0000004D bars #000000 dots #000000",
        }
        for way, calls in drawn.items():
            with self.subTest(way=way):
                self.assertEqual(self.ask_r(way, spies).split("riojaPlot")[0].strip(), calls)

    def test_the_tree_is_that_of_the_figure(self):
        """Of each merge its height and the places of the two clusters."""
        trees = {"silhouettes": [[0.0625, 20, 40], [0.583333, 10, 30]], "bars": [[0.1, 10, 20], [0.5, 15, 40]],
                 "calendar": [[0.1, 2000, 1950], [0.5, 1975, 1900]], "named": []}
        python = ("print([[float(line.get_xdata()[1]), *map(float, line.get_ydata()[::3])] "
                  "for line in (tree.lines if TREE else []) if len(line.get_xdata()) == 4])")
        r = 'lines <- function(x, y, ...) if (length(x) == 4) cat(x[2], y[1], y[4], ""); source("figure.R")'
        for way, tree in trees.items():
            with self.subTest(way=way):
                self.assertEqual(ast.literal_eval(self.ask_python(way, python)), tree)
                told = self.ask_r(way, r).split("riojaPlot")[0].split()
                self.assertEqual([float(number) for number in told], [number for merge in tree for number in merge])

    def test_python_draws_downwards_what_the_tables_say(self):
        asked = ("import runpy; drawn = runpy.run_path('figure.py'); upper, lower = drawn['columns'][0].get_ylim()[::-1]; "
                 "print(upper, lower, drawn['percentages']['Pinus'], drawn['widths'])")
        for way, ends in {"silhouettes": (10, 40), "calendar": (2000, 1900)}.items():
            with self.subTest(way=way):
                self.draw(way, (sys.executable, "-c", asked))
                upper, lower, rest = self.said.split(" ", 2)
                self.assertLess((float(upper) - ends[0]) * (ends[1] - ends[0]), 0, "a little above the uppermost sample")
                self.assertGreater((float(lower) - ends[1]) * (ends[1] - ends[0]), 0, "a little below the lowest")
                self.assertEqual(rest.strip(), "[75.0, 25.0, 0.0] [80, 100, 30, 130]")

    def test_r_draws_downwards_what_the_tables_say(self):
        asked = 'source("figure.R"); cat(downwards, percentages[, "Pinus"], widths)'
        for way, ends in {"silhouettes": "40.9 9.1", "calendar": "1897 2003"}.items():
            with self.subTest(way=way):
                self.draw(way, ("Rscript", "--vanilla", "-e", asked))
                self.assertIn(f"{ends} 75 25 0 80 100 30 130", self.said)

    def test_r_draws(self):
        for way in WAYS:
            for locale in ("C.UTF-8", "C"):
                with self.subTest(way=way, locale=locale):
                    folder = self.draw(way, R, locale)
                    self.assertTrue((folder / "drawn.pdf").read_bytes().startswith(b"%PDF"))
                    self.assertNotIn("Warning", self.said)


if __name__ == "__main__":
    unittest.main()
