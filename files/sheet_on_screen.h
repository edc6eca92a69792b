// Puts the arrays on the screen after a sheet was read into them, or as much of it as could be read.
#pragma once
#include "files/read_sheet.h"

// Rows that were read show their names and the counts of the last sample, a row that breaks off the last count that it has. Bold goes
// by the row of the file, not by the slot, and marks a count in any sample. What was not read stays as it is on the screen.
void ShowSheet(const GridRead& read);
