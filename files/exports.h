// Files for use outside the session. Cancelling a dialog and any failure of the disk are silent.
#pragma once
#include <functional>

#include "files/format/cell_writer.h"

// Asks where to, then writes what `write` has to say. False: cancelled, or the disk would not take it.
bool Export(const std::function<void(CellWriter&)>& write);

void CreateTemplate();  // the sheet's structure without its samples
void SaveHistory();     // HistoryLog, one quoted cell a row, and the time of the export
