"""The scripts that come with the tables, run by Python and R."""

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

    def test_python_draws_each_taxon_and_zone(self):
        for way in WAYS:
            with self.subTest(way=way):
                folder = self.draw(way, PYTHON)
                drawn = (folder / "drawn.svg").read_text(encoding="utf-8")
                with open(folder / "zones.csv", encoding="utf-8", newline="") as file:
                    words = [row["Zone"] for row in csv.DictReader(file)]
                words += ["Poaceae", "Lycopodium", "small", "Age (BP)" if way in ("calendar", "named") else "Depth (cm)"]
                for word in words:  # matplotlib notes each text beside its outlines
                    self.assertIn(f"<!-- {word} -->", drawn)

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
