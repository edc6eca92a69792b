"""The mathematics of the figure against R and its package vegan, on random counts."""

import os
import random
import subprocess
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
NUMBERS = Path(os.environ.get("MARLBROOK_BIN", HERE.parents[1] / "build/release/bin")) / "figure_numbers"
CORES = {11: (2, 3), 12: (7, 2), 13: (12, 21), 14: (40, 30), 15: (60, 135)}  # seed: samples and taxa


def matrix(seed, samples, taxa):
    """A core whose taxa come and go, most of them rare, many absent from a sample."""
    chance = random.Random(seed)
    rows = []
    means = [chance.expovariate(1) ** 3 * 10 for _ in range(taxa)]
    for _ in range(samples):
        means = [mean * chance.lognormvariate(0, 0.4) for mean in means]
        row = [int(chance.expovariate(1 / (mean + 0.1))) for mean in means]
        row[chance.randrange(taxa)] += 20
        rows.append(row)
    return rows


class SecondSourceTest(unittest.TestCase):
    def numbers(self, command, file):
        with file.open(encoding="ascii") as matrix_text:
            ran = subprocess.run(command, stdin=matrix_text, capture_output=True, text=True, timeout=300, check=False)
        self.assertEqual(ran.returncode, 0, ran.stderr)
        lines = [line.split() for line in ran.stdout.splitlines()]
        return {tuple(words): float(value) for *words, value in lines}

    def test_all_numbers_agree(self):
        for seed, (samples, taxa) in CORES.items():
            with self.subTest(seed=seed), tempfile.TemporaryDirectory() as folder:
                rows = matrix(seed, samples, taxa)
                size = min(sum(row) for row in rows)
                file = Path(folder) / "matrix"
                file.write_text(f"{samples} {taxa} {size}\n" + "".join(" ".join(map(str, row)) + "\n" for row in rows), encoding="ascii")
                ours = self.numbers([NUMBERS], file)
                theirs = self.numbers(["Rscript", "--vanilla", HERE / "second_source.R", file], file)
                self.assertEqual(ours.keys(), theirs.keys(), "the same samples are joined in the same order")
                self.assertEqual(len(ours), samples * (2 * taxa + 3) + (samples - 1) * 4 + 1)
                for what, value in theirs.items():
                    self.assertAlmostEqual(ours[what], value, delta=1e-9 * max(1, abs(value)), msg=" ".join(what))


if __name__ == "__main__":
    unittest.main()
