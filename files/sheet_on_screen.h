// What goes from the arrays to the screen once a file was read, and from the screen to the arrays before one is written.
#pragma once
#include "files/format/read_sheet.h"

// Rows that were read show their names and the counts of the last sample, a row that breaks off the last count that it has. Bold goes
// by the row of the file, not by the slot, and marks a count in any sample. What was not read stays as it is on the screen.
void ShowSheet(const GridRead& read);

void TakeShownSample();  // the name and the counts on the screen go into the arrays, as the column of CurrentSample
void TakeParamNames();   // ParamHeader takes the captions on the screen
