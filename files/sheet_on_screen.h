// What goes from the arrays to the screen once a file was read, and from the screen to the arrays before one is written or when a
// sample begins.
#pragma once
#include <cstdint>
#include <string>

#include "files/format/read_sheet.h"
#include "platform/controls.h"
#include "session/state/sheet_state.h"

// Rows that were read show their names and the counts of the last sample, a row that breaks off the last count that it has. Bold goes
// by the row of the file, not by the slot, and marks a count in any sample. What was not read stays as it is on the screen.
void ShowSheet(const GridRead& read);

void NameSheetInTitle(const std::string& program);  // "program - [name]", after SheetPath. Raises as SheetBaseName does
void ShowNewSampleName(const std::string& name);    // box and list take it up, and so does the history
void ShowNote(int sample);
void ShowParam(int p, const std::string& name, const std::string& value);  // the label sees to it that the name ends in one colon

// The name and the counts on the screen go into the arrays, as the column of CurrentSample.
void StoreShownSample();            // raises "Overflow" for a count past 32 bits
void StoreWhatFitsOfShownSample();  // leaves such a count as the arrays have it
void StoreParamNames();             // ParamHeader takes the captions on the screen

// Takes note, names and values of the Additional info from a window's boxes into the sheet, as those of `sample`, and shows them in
// the main window. An empty value becomes "---".
void StoreSampleFields(std::int16_t sample, const TextBox& note, const Label (&names)[kParams + 1], const TextBox (&values)[kParams + 1]);
