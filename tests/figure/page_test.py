"""What the page on the figure promises: its commands run on the sheet of the manual, and leave the files that it names."""

import csv
import os
import re
import shlex
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

import manual

PROGRAM = Path(os.environ.get("MARLBROOK_BIN", manual.TOP / "build/release/bin")) / "marlbrook-figure"
PAGE = manual.page("figure.md")
SECTION = PAGE.text.split("\n## The tables\n")[1].split("\n## ")[0]
NAMED = set(re.findall(r"`(\w[\w-]*\.csv)`", SECTION)) - {"lake_core.csv"}


class PageTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        shutil.copy(manual.FOLDER / "lake_core.csv", self.folder)

    def run_program(self, arguments):
        ran = subprocess.run([PROGRAM, *arguments], cwd=self.folder, capture_output=True, text=True, timeout=120, check=False)
        self.assertEqual(ran.returncode, 0, ran.stderr)
        return {path.name for path in (self.folder / "lake_core_tables").iterdir()}

    def test_each_command_runs(self):
        commands = [line for block in PAGE.blocks("text") for line in block.splitlines() if line.startswith("marlbrook-figure ")]
        self.assertGreaterEqual(len(commands), 2)
        for command in commands:
            with self.subTest(command=command):
                self.run_program(shlex.split(command)[1:])

    def test_the_tables_are_those_of_the_page(self):
        self.assertEqual(self.run_program(["lake_core.csv"]), NAMED - {"concentrations.csv", "influx.csv"})
        full = ["--marker", "Lycopodium", "--added", "Tablets*18583", "--volume", "1", "--rate", "0.1", "--r", "--python"]
        self.assertEqual(self.run_program(["lake_core.csv", *full]), NAMED | {"figure.R", "figure.py"})

    def test_percentages_are_those_of_the_counts(self):
        """As the page on the file format reckons them: Pinus in percent of the trees."""
        self.run_program(["lake_core.csv"])
        with open(self.folder / "lake_core_tables/percentages_subtotal-1.csv", encoding="utf-8", newline="") as file:
            rows = [row for row in csv.DictReader(file) if row["Taxon"] == "Pinus"]
        printed = "".join(f"{row['Sample']} {row['Sum (grains)']} {float(row['Percentage (%)']):.1f}\n" for row in rows)
        self.assertIn(printed, manual.page("file_format.md").blocks("text"))


if __name__ == "__main__":
    unittest.main()
