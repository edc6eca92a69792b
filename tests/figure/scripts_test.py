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
WAYS = ("silhouettes", "bars", "named")
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
                words += ["Poaceae", "Lycopodium", "small", {"bars": "Age (BP)", "named": "Sample"}.get(way, "Depth (cm)")]
                for word in words:  # matplotlib notes each text beside its outlines
                    self.assertIn(f"<!-- {word} -->", drawn)

    def test_r_draws(self):
        for way in WAYS:
            for locale in ("C.UTF-8", "C"):
                with self.subTest(way=way, locale=locale):
                    folder = self.draw(way, R, locale)
                    self.assertTrue((folder / "drawn.pdf").read_bytes().startswith(b"%PDF"))
                    self.assertRegex(self.said, "riojaPlot is not installed|^$")

    def test_r_reads_the_numbers_of_the_tables(self):
        folder = self.draw("silhouettes", R)
        asked = ('t <- read.csv("percentages_subtotal-1.csv", check.names = FALSE); '
                 'cat(t[["Percentage (%)"]][t$Taxon == "Pinus"], sum(read.csv("influx.csv")$Count..grains.))')
        ran = subprocess.run(["Rscript", "--vanilla", "-e", asked], cwd=folder, capture_output=True, text=True, timeout=300, check=True)
        self.assertEqual(ran.stdout, "75 25 0 420")


if __name__ == "__main__":
    unittest.main()
