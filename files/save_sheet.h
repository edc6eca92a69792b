// All writing of a data sheet that the user asks for.
#pragma once
#include <cstdint>

// Kinds of save: where to, and what.
constexpr std::int16_t kSave = 0;              // to SheetPath; with a dialog while there is none
constexpr std::int16_t kSaveClean = 99;        // the same, of a sheet on which nothing was counted since it was opened
constexpr std::int16_t kSaveAs = 77;           // dialog; the first one of a session takes the sheet to the new file
constexpr std::int16_t kSaveCopy = 55;         // dialog, with a name that carries the date
constexpr std::int16_t kSavePercentAll = 100;  // from here on dialog, and a table of percentages instead of counts
constexpr std::int16_t kSavePercentSub1 = 101;
constexpr std::int16_t kSavePercentSub2 = 102;

// Writes the file in place. Stamps the note of the sample on show, adds "(Save)" to the history, switches the Save button off.
// A dialog that was cancelled is silent, any failure from the opening of the file on gives one message; SaveOutcome is 2 after both,
// and the session's data stay. Raises "Overflow" where a sum of a sample leaves 16 bits; nothing is written then.
void SaveSheet(std::int16_t mode);

void SaveAsCounted();              // kSave, or kSaveClean if nothing was counted
void SaveFromMenu();               // mnuSave: the same, after a snapshot
void SaveFromButton();             // Command5[0]
void CheckIfReallyEnd();           // saves, as the button does: docs/quirks.md
void SavePercentTable(int basis);  // 0 all, 1 and 2 the subtotals; the basis stays chosen
