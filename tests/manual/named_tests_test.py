"""What the pages of docs/ name as a test is there."""
import re
import unittest

from manual import TOP

TESTS = TOP / "tests"
CASE = re.compile(r"\w+Test\.[A-Z]\w+")             # Suite.Name
PLACE = re.compile(r"([\w./]*?)(?::(test_\w+))?")  # a file or folder below tests/, and a test in it


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


if __name__ == "__main__":
    unittest.main()
