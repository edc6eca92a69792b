// Files for use outside the session. Cancelling a dialog and any failure of the disk are silent.
#pragma once

void CreateTemplate();  // the sheet's structure without its samples
void SaveHistory();     // HistoryLog, one quoted cell a row, and the time of the export
