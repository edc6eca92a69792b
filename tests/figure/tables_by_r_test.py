"""Richness and zones that marlbrook-figure finds in the manual's sheet against R and vegan, from the cells of that sheet."""

import subprocess
import unittest
from pathlib import Path

from lake_core import make_tables, read, sheet

HERE = Path(__file__).resolve().parent


class TablesByRTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tables = make_tables(cls, "--basis", "subtotal-1", "--proportions", "--zones", "auto")
        trees = [row[4:] for row in sheet()[2:137] if row[1] == "1"]
        samples = list(zip(*trees))
        size = min(sum(map(int, sample)) for sample in samples)
        matrix = cls.tables.parent / "matrix"
        matrix.write_text(f"{len(samples)} {len(trees)} {size}\n" + "\n".join(" ".join(sample) for sample in samples), encoding="ascii")
        ran = subprocess.run(["Rscript", "--vanilla", HERE / "second_source.R", matrix], capture_output=True, text=True, timeout=300, check=True)
        cls.theirs = {}
        for line in ran.stdout.splitlines():
            what, first, second, value = line.split()
            cls.theirs.setdefault(what, []).append((int(first), int(second), float(value)))

    def check(self, cells, numbers):
        self.assertEqual(len(cells), len(numbers))
        for cell, number in zip(cells, numbers):
            self.assertAlmostEqual(float(cell), number, delta=1e-5 * max(abs(number), 1e-6))

    def test_richness(self):
        table = read(self.tables / "diversity.csv")[1:]
        for column, what in ((4, "rarefied"), (5, "shannon"), (6, "simpson")):
            with self.subTest(what=what):
                self.check([row[column] for row in table], [value for *_, value in self.theirs[what]])

    def test_the_tree_and_the_zones(self):
        table = read(self.tables / "merges.csv")[1:]
        self.assertEqual([int(row[1]) - 1 for row in table], [first for _, first, _ in self.theirs["rise"]])
        self.assertEqual([int(row[2]) - 1 for row in table], [value for *_, value in self.theirs["middle"]])
        self.assertEqual([int(row[3]) for row in table], [end for _, end, _ in self.theirs["middle"]])
        self.check([row[8] for row in table], [value for *_, value in self.theirs["rise"]])
        self.check([row[9] for row in table], [value for *_, value in self.theirs["total"]])
        self.check([row[12] for row in reversed(table)], [value for *_, value in self.theirs["piece"]])
        self.assertEqual(len(read(self.tables / "zones.csv")) - 1, self.theirs["zones"][0][2])


if __name__ == "__main__":
    unittest.main()
