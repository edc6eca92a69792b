// The keys that serve while the key settings could not be read: patches of a standard keyboard, as they lie on the pad.
#pragma once

constexpr int kBuiltInShift1 = 16;  // Shift
constexpr int kBuiltInShift2 = 17;  // Ctrl
constexpr int kBuiltInUndo = 8;     // Backspace

int BuiltInKeyNumber(int code);  // 1..45, or 0 for a key that is no counter key
