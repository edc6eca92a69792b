#pragma once
#include "platform/files.h"

// Writes a copy of the sheet into "References/Back up files": the first of a run is the master, then a ring of ten. A failure is
// silent; counting goes on.
void BackUpSheet();

// The same copy of what the arrays hold, into any file. Fills what is empty in their texts. Raises WriteFailure.
void WriteBackUp(OutputFile& file);

constexpr const char* kBackUpLabel = "Backed up (dd/mm/yyyy):";  // the second cell of each
