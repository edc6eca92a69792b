"""Keyboards of other countries under Windows: the code that the program has of each letter, sign and digit of the pad, and of the keys that the
manual's table of keyboards on Windows names.

Letters have the code of what they type under every system. A sign has that of Windows' layout for the country, and under Linux that of its place.
Wine asks the X server what a key types and has these codes for signs of some countries only: not for the British, German and Spanish ones beside
the pad, and for no Russian key. It has no tables of Windows' layouts that could be asked instead.
"""
import csv
import re
import unittest

from computer import Computer, Installed, installed
from desk import TOP
from keyboard import ENTER, PAD

FIRST_NAMED_ROW = 51
AT_ONCE = 12  # a first run asks for so many keys, and takes any
LETTER_KEYS, DIGIT_KEYS = PAD[:27], [*range(10, 19)]
SHIFT_1, SAVE, TAXON_26, TAXON_27 = 186, 187, 188, 190  # as installed
BESIDE, ON_PAD = (SHIFT_1, SAVE), (TAXON_26, TAXON_27)
ON_SIGNS = {",": TAXON_26, ".": TAXON_27}
SYMBOLS = {";": "semicolon", "=": "equal", "$": "dollar", ",": "comma", ".": "period"}


def table():
    """keyboard -> what types each of the four codes, as the manual has them."""
    page = (TOP / "docs/manual/key_settings.md").read_text(encoding="utf-8")
    rows = re.findall(r"^\| ([^|]+) \| `+ ?(.) ?`+ \| `(.)` \| `(.)` and `(.)` \|$", page, re.M)
    return {row[0]: dict(zip(BESIDE + ON_PAD, row[1:])) for row in rows}


class KeysTest(unittest.TestCase):
    def codes(self, keys):
        """Those that a first run stores for these keys."""
        program = Installed(self.computer, first_run=True)
        program.window("Initialize")
        program.press(*keys, ENTER)
        self.computer.desk.gone("Initialize")
        program.kill()
        rows = list(csv.reader(program.settings.read_text(encoding="latin-1").splitlines()))
        program.settings.unlink()
        return [int(row[1]) for row in rows[FIRST_NAMED_ROW:]]

    def check(self, keyboard, typed, known=BESIDE + ON_PAD, signs=ON_SIGNS, **layout):
        """`typed`: by the keys of the first three rows of the pad. `known`: the codes of the table that Wine has."""
        self.computer = Computer(installed(), **layout)
        self.addCleanup(self.computer.end)
        expected = {key: ord(sign.upper()) if sign.isalpha() else signs[sign] for key, sign in zip(LETTER_KEYS, typed)}
        expected.update({key: ord(digit) for key, digit in zip(DIGIT_KEYS, "123456789")})
        in_manual = table()[keyboard]
        expected.update({self.computer.desk.key_that_types(SYMBOLS[in_manual[code]]): code for code in known})
        keys = list(expected)
        keys += keys[:-len(keys) % AT_ONCE]
        found = {}
        for first in range(0, len(keys), AT_ONCE):
            some = keys[first:first + AT_ONCE]
            found.update(zip(some, self.codes(some)))
        self.assertEqual(found, expected)

    def test_american(self):
        self.check("QWERTY, American or British", "qweasdzxcrtyfghvbnuiojklm,.")

    def test_german(self):
        self.check("QWERTZ, German", "qweasdyxcrtzfghvbnuiojklm,.", ON_PAD, layout="de")

    def test_french(self):
        signs = {",": TAXON_26, ";": TAXON_27, ":": 191}
        self.check("AZERTY, French", "azeqsdwxcrtyfghvbnuiojkl,;:", signs=signs, layout="fr")

    def test_spanish(self):
        self.check("QWERTY, Spanish", "qweasdzxcrtyfghvbnuiojklm,.", ON_PAD, layout="es")

    def test_british(self):
        self.check("QWERTY, American or British", "qweasdzxcrtyfghvbnuiojklm,.", ON_PAD, layout="gb")

    def test_dvorak(self):
        signs = {**ON_SIGNS, "'": 222, ";": SHIFT_1}
        self.check("Dvorak", "',.aoe;qjpyfuidkxbgcrhtnmwv", signs=signs, layout="us", variant="dvorak")


if __name__ == "__main__":
    unittest.main()
