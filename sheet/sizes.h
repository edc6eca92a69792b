// The bounds of a sheet, which its arrays and the windows that show it share.
#pragma once

constexpr int kSlots = 135;        // places for a taxon
constexpr int kKeys = 45;          // counter keys, and places on the pad
constexpr int kSampleLimit = 250;  // samples that a sheet can grow to
constexpr int kColumns = 255;      // samples that the arrays can hold
constexpr int kParams = 6;         // rows of Additional info
constexpr int kSubtotals = 2;
constexpr int kUndoDepth = 1000;              // last index of UndoList
inline constexpr const char* kEmpty = "---";  // the text of a field that holds nothing
