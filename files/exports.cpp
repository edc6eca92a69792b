#include "files/exports.h"

#include <string>

#include "files/format/sheet_rows.h"
#include "files/sheet_on_screen.h"
#include "session/export.h"
#include "session/focus.h"
#include "session/history.h"
#include "session/sound.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

namespace {
void WriteTemplate(CellWriter& cells, const Busy& busy) {
    constexpr int kNoSamples = 0;
    LabelHeader("Last saved (dd/mm/yyyy):", FileStamp());
    StoreParamNames();
    NameUntitledParams();
    WriteHeaderRows(cells, kNoSamples);
    for (int row = 1; row <= kSlots; ++row) {
        WriteTaxonLabels(cells, row);
        cells.EndRow();
        busy.Reach(row);
    }
    WriteParamRows(cells, kNoSamples);
    WriteNoteRow(cells, kNoSamples);
    for (const Any& label : {SheetHeader[kHeaderSubtotal1], SheetHeader[kHeaderSubtotal2], Any("All total")}) {
        WriteSumLabels(cells, label);
        cells.EndRow();
    }
}

void WriteHistory(CellWriter& cells, const Busy& busy) {
    for (int i = 0; i <= HistoryCount; ++i) {
        busy.Reach(i);
        cells.Write(HistoryLog[i]);
        cells.EndRow();
    }
    cells.Write(NoteStamp());
    cells.EndRow();
}
}  // namespace

void CreateTemplate() {
    const Busy busy(kSlots);
    if (!Export([&busy](CellWriter& cells) { WriteTemplate(cells, busy); })) return;
    ReturnFocus();
    PlayIfOn(WaveSave);
}

void SaveHistory() {
    const Busy busy(HistoryCount);
    frmMain.FileDialog.FileName = ProgramFile("References/History.csv");
    if (Export([&busy](CellWriter& cells) { WriteHistory(cells, busy); })) ReturnFocus();
}
