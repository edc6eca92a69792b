"""The tables that marlbrook-figure makes of the manual's sheet against the cells of that sheet, reckoned anew from the formulas of the manual."""

import math
import unittest

from lake_core import make_tables, read, sheet

FILES = {"percentages_all.csv": None, "percentages_subtotal-1.csv": 1, "percentages_subtotal-2.csv": 2}  # and the flags' column in the sheet
EACH, DEVIATION, RATE = 18583, 764, 0.2
Z = 1.96


def limits(count, total, inside):
    sign = -1 if inside else 1
    p, wide = count / total, Z * Z / total
    middle, reach = p + wide / 2, Z * math.sqrt(p * (1 + sign * p) / total + wide / total / 4)
    return [100 * (middle + side * reach) / (1 - sign * wide) for side in (-1, 1)]


class TablesOfSheetTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tables = make_tables(cls, "--marker", "Lycopodium", "--added", f"Tablets*{EACH}+-{DEVIATION}", "--weight", "Weight (g)",
                                 "--rate", str(RATE))
        rows = sheet()
        cls.names = rows[1][4:]
        cls.taxa = [row for row in rows[2:137] if any(count != "0" for count in row[4:])]
        cls.info = {row[3]: row[4:] for row in rows[137:143]}

    def check(self, cells, numbers):
        for cell, number in zip(cells, numbers, strict=True):
            self.assertAlmostEqual(float(cell), number, delta=1e-5 * max(abs(number), 1e-6), msg=cells)

    def test_percentages_and_their_limits(self):
        for name, flag in FILES.items():
            table = iter(read(self.tables / name)[1:])
            for sample, sample_name in enumerate(self.names, start=4):
                total = sum(int(row[sample]) for row in self.taxa if flag is None or row[flag] == "1")
                for row in self.taxa:
                    count, inside = int(row[sample]), flag is None or row[flag] == "1"
                    told = next(table)
                    with self.subTest(table=name, sample=sample_name, taxon=row[3]):
                        self.assertEqual(told[:6], [sample_name, sample_name, row[3], str(int(inside)), str(count), str(total)])
                        self.check(told[6:], [100 * count / total, *limits(count, total, inside)])
            self.assertEqual(list(table), [], name)

    def test_concentrations_and_influx(self):
        markers = next(row for row in self.taxa if row[3] == "Lycopodium")
        others = [row for row in self.taxa if row is not markers]
        sums = {"All total": others, "Trees": [row for row in others if row[1] == "1"], "Herbs": [row for row in others if row[2] == "1"]}
        kinds = [("taxon", row[3], [row]) for row in others] + [("sum", name, rows) for name, rows in sums.items()]
        concentrations, influx = (iter(read(self.tables / name)[1:]) for name in ("concentrations.csv", "influx.csv"))
        for sample, sample_name in enumerate(self.names, start=4):
            tablets, weight = (float(self.info[name][sample - 4]) for name in ("Tablets", "Weight (g)"))
            found = int(markers[sample])
            for kind, name, rows in kinds:
                count = sum(int(row[sample]) for row in rows)
                value = count * tablets * EACH / (found * weight)
                told, flow = next(concentrations), next(influx)
                with self.subTest(sample=sample_name, name=name):
                    self.assertEqual(told[2:6], [kind, name, str(count), str(found)])
                    self.check(told[6:9], [tablets * EACH, weight, value])
                    self.check(flow[5:7], [RATE, value * RATE])
                    if count == 0:
                        self.assertEqual([told[9], flow[7]], ["", ""])
                    else:
                        error = value * math.sqrt((DEVIATION / EACH) ** 2 / tablets + 1 / count + 1 / found)
                        self.check([told[9], flow[7]], [error, error * RATE])
        self.assertEqual([*concentrations, *influx], [])


if __name__ == "__main__":
    unittest.main()
