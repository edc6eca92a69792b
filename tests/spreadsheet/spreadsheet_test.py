"""Sheets go through LibreOffice and come back."""
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
DRIVER = pathlib.Path(os.environ.get("MARLBROOK_BIN", HERE.parents[1] / "build/release/bin")) / "marlbrook-drive"
PATIENCE = 300  # seconds: the spreadsheet is slow to start on a busy machine
WINDOWS_1252, UTF_8 = 1, 76
ENGLISH, GERMAN, FRENCH = 1033, 1031, 1036


class SpreadsheetTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.home = pathlib.Path(tempfile.mkdtemp(prefix="marlbrook-spreadsheet-"))
        cls.addClassCleanup(shutil.rmtree, cls.home)

    def make(self, script):
        """A new folder in which that script has left its sheet."""
        self.folder = pathlib.Path(tempfile.mkdtemp(dir=self.home))
        self.sheet = self.folder / "sheet.csv"
        for name in [script, "read.drive", "changed.drive"]:
            shutil.copy(HERE / name, self.folder)
        self.play(script)

    def play(self, script):
        played = subprocess.run([DRIVER, self.folder / script], capture_output=True, text=True, timeout=PATIENCE, check=False)
        self.assertEqual(played.returncode, 0, played.stdout + played.stderr)
        return played.stdout

    def read(self):
        """What the sheet holds, whichever way its notes break their lines."""
        return self.play("read.drive").replace(r"\r\n", r"\n")

    def resave(self, encoding, language=ENGLISH, *, as_texts, all_numbers, quote_all):
        """The spreadsheet opens the sheet and saves it again. Quoted cells are read as texts, numbers looked for in all forms, all texts
        quoted when saved, or not."""
        comma_and_quotation_mark = f"44,34,{encoding},1"
        kind = "Text - txt - csv (StarCalc)"
        words = [str(word).lower() for word in (as_texts, all_numbers, quote_all)]
        subprocess.run(
            ["soffice", f"-env:UserInstallation=file://{self.home}/profile", "--headless",
             f"--infilter={kind}:{comma_and_quotation_mark},,{language},{words[0]},{words[1]}",
             "--convert-to", f"csv:{kind}:{comma_and_quotation_mark},,{language},{words[0]},{words[2]}",
             "--outdir", self.folder / "saved", self.sheet],
            env={**os.environ, "HOME": str(self.home)}, capture_output=True, timeout=PATIENCE, check=True)
        (self.folder / "saved/sheet.csv").replace(self.sheet)

    def assert_same_sheet(self, script, *how, **options):
        self.make(script)
        before = self.read()
        self.resave(*how, **options)
        self.assertEqual(self.read(), before)

    def test_a_plain_sheet_comes_back_without_quotes(self):
        for language in (ENGLISH, GERMAN, FRENCH):
            with self.subTest(language=language):
                self.assert_same_sheet("plain.drive", WINDOWS_1252, language, as_texts=False, all_numbers=False, quote_all=False)

    def test_a_plain_sheet_comes_back_with_quotes(self):
        for language in (ENGLISH, GERMAN, FRENCH):
            with self.subTest(language=language):
                self.assert_same_sheet("plain.drive", WINDOWS_1252, language, as_texts=False, all_numbers=False, quote_all=True)

    def test_quoted_cells_read_as_texts_come_back_as_they_were(self):
        for language in (ENGLISH, GERMAN, FRENCH):
            with self.subTest(language=language):
                self.assert_same_sheet("odd.drive", UTF_8, language, as_texts=True, all_numbers=True, quote_all=True)

    def test_the_file_comes_back_as_it_was_but_for_its_line_ends(self):
        self.make("odd.drive")
        before = self.sheet.read_bytes().replace(b"\r", b"")
        self.resave(UTF_8, as_texts=True, all_numbers=True, quote_all=True)
        self.assertEqual(self.sheet.read_bytes().replace(b"\r", b""), before)

    def test_what_the_spreadsheet_changes_opens_all_the_same(self):
        self.make("odd.drive")
        self.resave(UTF_8, as_texts=False, all_numbers=True, quote_all=False)
        self.play("changed.drive")


if __name__ == "__main__":
    unittest.main()
