// The key settings file: which key counts, which place of the pad it lies at, and what the named keys of this keyboard send. 63 rows of
// three cells, definition, key code, key number:
//
//     "Key","Code","Number"
//     "q",81,1
//     ";",186,"46"
//     "Shift",16,"-"
//
// Rows 1..45 counter keys, 46 and 48 Shift-1, 47 Shift-2, 49 Undo, 50 Save, 51..62 the named keys. A code of 0 or 999 in one of the
// last twelve says that the keyboard has not been recognised.
#pragma once
#include "platform/any.h"

// Reads the file into KeySettings, derives the codes of the shift and undo keys, places the cells and tells KeyboardKnown. Raises
// "File error", "Input past end of file", "Subscript out of range" for a key number outside 1..135, or "Overflow" for a number or a
// functional code past 16 bits; KeyboardKnown is then 0.
void ReadKeySettings();

void WriteKeySettings();  // all rows as held; raises "File error"

// The cells of bank 0 lie where field 2 of their place's row says; those of the other banks stay where they are. Raises "Subscript
// out of range" for a key number outside 1..135, or "Overflow"; the cells of the places before it have then moved.
void PlaceKeyCells();
void PlaceKeyCellsIfKnown();  // the same; a number that is none leaves the cells behind it where they are

void ShowKeysInTips();  // of the cells: which keys count in them

bool AreNamedKeysKnown();  // no code of the last twelve rows is 0 or 999

int KeyNumber(const Any& field);  // the counter key that a key number means, rounded; 0 for one outside 1..45

// The keys that serve while the key settings could not be read: patches of a standard keyboard, as they lie on the pad.
constexpr int kBuiltInShift1 = 16;  // Shift
constexpr int kBuiltInShift2 = 17;  // Ctrl
constexpr int kBuiltInUndo = 8;     // Backspace

int BuiltInKeyNumber(int code);  // 1..45, or 0 for a key that is no counter key
