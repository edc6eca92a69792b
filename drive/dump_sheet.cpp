#include "drive/dumps.h"
#include "session/state/sheet_state.h"

namespace drive {

namespace {

constexpr const char* kScalars[] = {"SheetPath",  "SampleCount",     "CurrentSample", "MaxSerial",      "AllTotal",
                                    "SheetClean", "SampleUntouched", "AmendMode",     "ShiftLevel",     "Shift1Down",
                                    "Shift2Down", "UndoKeyState",    "ReverseCount",  "AlarmArmed",     "WarnOldSample",
                                    "SoundOn",    "SaveOutcome",     "SaveAsPending", "TemplateOpened", "SampleNamesAreText",
                                    "BackupSlot", "LastSlot",        "FileVersion",   "DiagramOpen",    "HistoryCount"};

// Writes "NAME = VALUE" lines.
class SheetLines {
public:
    SheetLines(std::ostream& out, const ValueOfName& value_of) : out_(out), value_of_(value_of) {}
    void Write(const std::string& name) { out_ << name << " = " << value_of_(name) << "\n"; }
    void Write(const std::string& array, int index) { Write(array + "(" + std::to_string(index) + ")"); }
    void Write(const std::string& array, int first, int second) {
        Write(array + "(" + std::to_string(first) + "," + std::to_string(second) + ")");
    }

private:
    std::ostream& out_;
    const ValueOfName& value_of_;
};

bool IsFreshRow(int slot) {
    const Any* const row = TaxonTable[slot];
    return row[0] == slot && row[1] == slot && row[2] == 0 && row[3] == 0 && row[4] == kEmpty;
}

void WriteSamples(SheetLines& lines) {
    for (const int cell : {6, 7, 8, 9, 11, 12, 13, 14}) lines.Write("SheetHeader", cell);
    for (int sample = 1; sample <= SampleCount; ++sample) {
        lines.Write("SampleTable", 1, sample);
        lines.Write("SampleTable", 2, sample);
        lines.Write("SampleNotes", sample);
    }
}

void WriteTaxa(SheetLines& lines) {
    lines.Write("TaxonTable", 0, 2);
    lines.Write("TaxonTable", 0, 3);
    for (int slot = 1; slot <= kSlots; ++slot)
        for (int column = 0; column <= 4 && !IsFreshRow(slot); ++column) lines.Write("TaxonTable", slot, column);
    for (int slot = 1; slot <= kSlots; ++slot)
        for (int sample = 1; sample <= SampleCount; ++sample)
            if (Counts[slot][sample] != 0) lines.Write("Counts", slot, sample);
    for (int row = 1; row <= kSlots; ++row)
        if (KeyIndex[row] != row) lines.Write("KeyIndex", row);
    for (int slot = 1; slot <= kSlots; ++slot)
        if (RowOfSlot[slot] != slot) lines.Write("RowOfSlot", slot);
}

void WriteParams(SheetLines& lines) {
    for (int param = 1; param <= kParams; ++param) {
        for (int cell = 1; cell <= 4; ++cell) lines.Write("ParamHeader", param, cell);
        for (int sample = 1; sample <= SampleCount; ++sample) lines.Write("ParamValues", param, sample);
    }
    for (int cell = 1; cell <= 4; ++cell) lines.Write("SheetFooter", cell);
}

void WriteHistory(SheetLines& lines) {
    for (int entry = 0; entry <= kUndoDepth; ++entry) {
        if (UndoList[entry][1] == 0) continue;
        lines.Write("UndoList", entry, 0);
        lines.Write("UndoList", entry, 1);
    }
    for (int line = 0; line < static_cast<int>(HistoryLog.size()); ++line) lines.Write("HistoryLog", line);
}

}  // namespace

void DumpSheet(std::ostream& out, const ValueOfName& value_of) {
    SheetLines lines(out, value_of);
    for (const char* name : kScalars) lines.Write(name);
    WriteSamples(lines);
    WriteTaxa(lines);
    WriteParams(lines);
    WriteHistory(lines);
}

}  // namespace drive
