#pragma once

// Writes a copy of the sheet into "References/Back up files": the first of a run is the master, then a ring of ten. A failure is
// silent; counting goes on.
void BackUpSheet();
