"""Keyboards of other countries under Windows: the code that the program has of each letter, sign and digit of the pad, and of the keys that the
installed settings take for Shift-1 and Save.

Letters have the code of what they type under every system. A sign has that of Windows' layout for the country, and under Linux that of its place.
Wine has these codes for signs of some countries only: not for the British, German and Spanish ones beside the pad, and for no Russian key.
"""
import csv
import unittest

from computer import Computer, Installed, installed
from keyboard import ENTER, PAD

FIRST_NAMED_ROW = 51
AT_ONCE = 12  # a first run asks for so many keys, and takes any
LETTER_KEYS, DIGIT_KEYS = PAD[:27], [*range(10, 19)]
SHIFT_1, SAVE = 186, 187
ON_SIGNS = {",": 188, ".": 190}


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

    def check(self, typed, functional, signs=ON_SIGNS, **layout):
        """`typed`: by the keys of the first three rows of the pad. `functional`: a code's key."""
        self.computer = Computer(installed(), **layout)
        self.addCleanup(self.computer.end)
        expected = {key: ord(sign.upper()) if sign.isalpha() else signs[sign] for key, sign in zip(LETTER_KEYS, typed)}
        expected.update({key: ord(digit) for key, digit in zip(DIGIT_KEYS, "123456789")})
        expected.update({key: code for code, key in functional.items()})
        keys = list(expected)
        keys += keys[:-len(keys) % AT_ONCE]
        found = {}
        for first in range(0, len(keys), AT_ONCE):
            some = keys[first:first + AT_ONCE]
            found.update(zip(some, self.codes(some)))
        self.assertEqual(found, expected)

    def test_american(self):
        self.check("qweasdzxcrtyfghvbnuiojklm,.", {SHIFT_1: 47, SAVE: 21})

    def test_german(self):
        self.check("qweasdyxcrtzfghvbnuiojklm,.", {}, layout="de")

    def test_french(self):
        self.check("azeqsdwxcrtyfghvbnuiojkl,;:", {SHIFT_1: 35, SAVE: 21}, {",": 188, ";": 190, ":": 191}, layout="fr")  # $ =

    def test_spanish(self):
        self.check("qweasdzxcrtyfghvbnuiojklm,.", {}, layout="es")

    def test_british(self):
        self.check("qweasdzxcrtyfghvbnuiojklm,.", {}, layout="gb")

    def test_dvorak(self):
        signs = {**ON_SIGNS, "'": 222, ";": SHIFT_1}
        self.check("',.aoe;qjpyfuidkxbgcrhtnmwv", {SAVE: 35}, signs, layout="us", variant="dvorak")


if __name__ == "__main__":
    unittest.main()
