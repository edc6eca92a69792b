"""What the pages of docs/ name as a test is there, and each line of the hazards names one or says that it has none."""
import re
import unittest

from manual import TOP

TESTS = TOP / "tests"
CASE = re.compile(r"\w+Test\.[A-Z]\w+")             # Suite.Name
PLACE = re.compile(r"([\w./]*?)(?::(test_\w+))?")  # a file or folder below tests/, and a test in it
COLUMNS = ["No.", "Hazard", "Harm", "Likelihood", "What prevents or shows it", "Test"]
ENOUGH = 175  # lines of the hazards with a test


def unit_tests():
    found = set()
    for folder in ("unit", "unit_qt"):
        for source in (TESTS / folder).glob("*.cpp"):
            pairs = re.findall(r"^TEST(?:_[FP])?\(\s*(\w+)\s*,\s*(\w+)\s*\)", source.read_text(encoding="utf-8"), re.M)
            found |= {f"{suite}.{name}" for suite, name in pairs}
    return found


def is_there(place):
    path, name = PLACE.fullmatch(place).groups()
    file = TESTS / path
    return file.exists() and (not name or f"\n    def {name}(self):" in file.read_text(encoding="utf-8"))


def in_backticks(text):
    return re.findall(r"`([^`\n]+)`", text)


def rows(page):
    """The cells of all tables of the page."""
    lines = re.findall(r"^\| (.*) \|$", (TOP / "docs" / page).read_text(encoding="utf-8"), re.M)
    return [line.split(" | ") for line in lines]


class PagesTest(unittest.TestCase):
    def test_each_test_that_a_page_names_is_there(self):
        known, checked = unit_tests(), 0
        for page in sorted((TOP / "docs").glob("*.md")):
            for name in in_backticks(page.read_text(encoding="utf-8")):
                with self.subTest(page=page.name, name=name):
                    if CASE.fullmatch(name):
                        self.assertIn(name, known)
                    elif name.startswith("tests/"):
                        self.assertTrue(is_there(name.split()[0].removeprefix("tests/")))
                    else:
                        continue
                    checked += 1
        self.assertGreater(checked, 20)


class HazardsTest(unittest.TestCase):
    def setUp(self):
        tables = rows("hazards.md")
        self.heads = [row for row in tables if row[0] == "No."]
        self.lines = [row for row in tables if row[0].isdigit()]

    def test_lines_are_numbered_through_and_whole(self):
        self.assertTrue(self.heads)
        self.assertTrue(all(head == COLUMNS for head in self.heads))
        self.assertEqual([line[0] for line in self.lines], [str(number) for number in range(1, len(self.lines) + 1)])
        for line in self.lines:
            with self.subTest(line=line[0]):
                self.assertEqual(len(line), len(COLUMNS))
                self.assertRegex(line[3], r"^(often|sometimes|rare): .")

    def test_each_line_names_tests_that_are_there_or_says_that_it_has_none(self):
        known, proved = unit_tests(), 0
        for number, *_, shown, tests in self.lines:
            with self.subTest(line=number):
                if tests == "none":
                    self.assertTrue(shown.startswith("**Nothing.**"))
                    continue
                names = in_backticks(tests)
                self.assertEqual(" ".join(f"`{name}`" for name in names), tests, "nothing else stands there")
                for name in names:
                    self.assertTrue(name in known or is_there(name), name)
                proved += 1
        self.assertGreaterEqual(proved, ENOUGH)


if __name__ == "__main__":
    unittest.main()
