"""The examples for pandas and R, which are large to install."""

import sys
import unittest

import examples


class StatisticsTest(examples.Examples):
    def test_pandas(self):
        self.run_example([sys.executable], self.page.blocks("python")[1])

    def test_r(self):
        self.run_example(["Rscript", "--vanilla"], self.page.blocks("r")[0])


if __name__ == "__main__":
    unittest.main()
