#include "files/exports.h"

#include <string>

#include "files/sheet_rows.h"
#include "platform/failure.h"
#include "session/focus_rule.h"
#include "session/sound.h"
#include "session/stamps.h"
#include "session/state/sheet_state.h"
#include "windows/busy.h"
#include "windows/main_window.h"

bool Export(const std::function<void(CellWriter&)>& write) {
    if (!frmMain.CommonDialog1.AskForSaving()) return false;
    try {
        const auto file = services.files->OpenForWriting(frmMain.CommonDialog1.FileName);
        CellWriter cells(*file);
        write(cells);
        cells.Close();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

namespace {
void WriteTemplate(CellWriter& cells) {
    constexpr int kNoSamples = 0;
    StampHeader("Last saved (dd/mm/yyyy):");
    WriteHeaderRows(cells, kNoSamples);
    for (int row = 1; row <= kSlots; ++row) {
        WriteTaxonLabels(cells, row);
        cells.EndRow();
        frmMain.ProgressBar1.SetValue(row);
    }
    NameUntitledParams();
    WriteParamRows(cells, kNoSamples);
    WriteNoteRow(cells, kNoSamples);
    for (const Any& label : {SheetHeader[12], SheetHeader[13], Any("All total")}) {
        WriteSumLabels(cells, label);
        cells.EndRow();
    }
}

void WriteHistory(CellWriter& cells) {
    for (int i = 0; i <= HistoryCount; ++i) {
        frmMain.ProgressBar1.SetValue(i);
        cells.Write(HistoryLog[i]);
        cells.EndRow();
    }
    cells.Write(NoteStamp());
    cells.EndRow();
}
}  // namespace

void CreateTemplate() {
    const Busy busy(kSlots);
    if (!Export(WriteTemplate)) return;
    ReturnFocus();
    PlayIfOn(WaveSave);
}

void SaveHistory() {
    const Busy busy(HistoryCount);
    frmMain.CommonDialog1.FileName = ProgramFile("References/History.csv");
    if (Export(WriteHistory)) ReturnFocus();
}
