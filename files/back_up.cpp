#include "files/back_up.h"

#include <string>

#include "files/format/sheet_rows.h"
#include "files/sheet_on_screen.h"
#include "platform/failure.h"
#include "session/history.h"
#include "session/state/sheet_state.h"

namespace {
constexpr std::int16_t kMaster = 99;
constexpr std::int16_t kRing = 10;

std::string BackUpPath() {
    const std::string name = BackupSlot == kMaster ? "Master_back_up.csv" : "Auto_back_up_(" + std::to_string(BackupSlot) + ").csv";
    return ProgramFile("References/Back up files/") + name;
}

}  // namespace

// A back-up ends after the notes: its sums would only be read by a spreadsheet.
void WriteBackUp(OutputFile& file) {
    CellWriter cells(file);
    LabelHeader(kBackUpLabel, FileStamp());
    StoreParamNames();
    FillEmptyParams();
    FillEmptyNotes();
    WriteHeaderRows(cells, SampleCount);
    for (int row = 1; row <= kSlots; ++row) WriteCountRow(cells, row);
    WriteParamRows(cells, SampleCount);
    WriteNoteRow(cells, SampleCount);
    cells.Close();
}

void BackUpSheet() {
    if (BackupSlot != kMaster) BackupSlot = static_cast<std::int16_t>((BackupSlot + 1) % kRing);
    try {
        StoreShownSample();
        WriteBackUp(*services.files->OpenForWriting(BackUpPath()));
    } catch (const Failure&) {
        return;
    }
    if (BackupSlot == kMaster) BackupSlot = -1;
}
