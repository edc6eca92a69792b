"""The options of marlbrook-figure are the same in its help, its man page and its completion."""

import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

TOP = Path(__file__).resolve().parents[2]
PROGRAM = Path(os.environ.get("MARLBROOK_BIN", TOP / "build/release/bin")) / "marlbrook-figure"
LINUX = TOP / "packaging" / "linux"
COMPLETION = LINUX / "marlbrook-figure.bash-completion"


def run(*command, folder=None):
    return subprocess.run(command, cwd=folder, capture_output=True, text=True, timeout=60, check=True).stdout


def completed(line, folder="/"):
    """What the completion offers at the end of the line."""
    words = line.split(" ")
    script = (f'source "{COMPLETION}"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _marlbrook_figure; '
              'printf "%s\\n" "${COMPREPLY[@]}"')
    return [word for word in run("bash", "-c", script, "bash", *words, folder=folder).split("\n") if word]


class OptionsTest(unittest.TestCase):
    def setUp(self):
        self.help = run(PROGRAM, "--help")
        self.options = set(re.findall(r"^  (?:-h,)?(--[\w-]+)", self.help, re.M))
        self.assertGreater(len(self.options), 20)

    def test_the_man_page_has_each_option_and_no_other(self):
        page = (LINUX / "marlbrook-figure.1").read_text(encoding="utf-8").replace(r"\-", "-")
        self.assertEqual(set(re.findall(r"--[a-z][\w-]*", page)), self.options)

    def test_the_completion_offers_each_option_and_no_other(self):
        self.assertEqual(set(completed("marlbrook-figure --")), self.options)

    def test_the_completion_offers_the_words_that_an_option_takes(self):
        taken = re.findall(r"^  (--[\w-]+) ([\w-]+(?:\|[\w-]+)+)(?:  |$)", self.help, re.M)
        self.assertGreater(len(taken), 3)
        for name, words in taken:
            with self.subTest(option=name):
                self.assertEqual(set(completed(f"marlbrook-figure core.csv {name} ")), set(words.split("|")) - {"N"})


class CompletionTest(unittest.TestCase):
    def test_sheets_and_folders_are_offered(self):
        with tempfile.TemporaryDirectory() as folder:
            for name in ("core one.csv", "core two.CSV", "core.pdf"):
                (Path(folder) / name).touch()
            (Path(folder) / "core_folder").mkdir()
            self.assertEqual(sorted(completed("marlbrook-figure co", folder)), ["core one.csv", "core two.CSV", "core_folder"])
            self.assertEqual(completed("marlbrook-figure --output co", folder), ["core_folder"])

    def test_an_option_is_completed(self):
        self.assertEqual(completed("marlbrook-figure core.csv --zo"), ["--zone-names", "--zones"])

    def test_a_name_that_only_the_user_knows_is_not_guessed(self):
        self.assertEqual(completed("marlbrook-figure --marker "), [])


if __name__ == "__main__":
    unittest.main()
