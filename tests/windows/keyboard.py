"""Physical keys by their X key codes (Linux's codes and 8), so that they are the same keys on every layout."""

PAD = [24, 25, 26, 38, 39, 40, 52, 53, 54,  # Q W E / A S D / Z X C: counter keys 1..9
       27, 28, 29, 41, 42, 43, 55, 56, 57,  # R T Y / F G H / V B N
       30, 31, 32, 44, 45, 46, 58, 59, 60,  # U I O / J K L / M , .
       67, 68, 69, 10, 11, 12, 70, 71, 72,  # F1 F2 F3 / 1 2 3, F4 F5 F6 /
       13, 14, 15, 73, 74, 75, 16, 17, 18]  # 4 5 6, F7 F8 F9 / 7 8 9
SHIFT_1, SHIFT_2, UNDO, SAVE = 47, 33, 22, 21  # ; p BkSp =
ESCAPE, TAB, ENTER, CTRL, SHIFT, ALT, SPACE = 9, 23, 36, 37, 50, 64, 65
HOME, UP, LEFT, RIGHT, END, DOWN, DELETE = 110, 111, 113, 114, 115, 116, 119

# Those that a first run asks for, in its order, and the codes that it stores for them.
NAMED_KEYS = [SHIFT, CTRL, DELETE, UNDO, ESCAPE, ENTER, SPACE, 67, LEFT, UP, RIGHT, DOWN]
NAMED_KEY_CODES = [16, 17, 46, 8, 27, 13, 32, 112, 37, 38, 39, 40]

_ROWS = {10: ("1234567890-=", "!@#$%^&*()_+"), 24: ("qwertyuiop[]", "QWERTYUIOP{}"), 38: ("asdfghjkl;'`", 'ASDFGHJKL:"~'),
         51: ("\\zxcvbnm,./", "|ZXCVBNM<>?"), 65: (" ", " ")}
_PLAIN = {sign: first + place for first, (plain, _) in _ROWS.items() for place, sign in enumerate(plain)}
_SHIFTED = {sign: first + place for first, (_, shifted) in _ROWS.items() for place, sign in enumerate(shifted)}


def key_of(sign):
    """The key that types a sign on the layout us."""
    return _PLAIN[sign]


def down_and_up(*codes):
    """(key, is it down) for each of these keys after the other."""
    return [(code, down) for code in codes for down in (True, False)]


def chord(*codes):
    """All of them down, then up in reverse order."""
    return [(code, True) for code in codes] + [(code, False) for code in reversed(codes)]


def typing(text):
    """The keys that type a text on the layout us."""
    return [step for sign in text for step in (chord(_PLAIN[sign]) if sign in _PLAIN else chord(SHIFT, _SHIFTED[sign]))]
