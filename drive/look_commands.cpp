// The commands that look and show.
#include "drive/look_commands.h"

#include "drive/commands.h"
#include "drive/drawn.h"
#include "drive/names.h"
#include "drive/script.h"
#include "drive/values.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

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
        lines.Write("SampleTable", kSampleSerial, sample);
        lines.Write("SampleTable", kSampleName, sample);
        lines.Write("SampleNotes", sample);
    }
}

void WriteTaxa(SheetLines& lines) {
    lines.Write("TaxonTable", 0, kTaxonSubtotal1);
    lines.Write("TaxonTable", 0, kTaxonSubtotal2);
    for (int slot = 1; slot <= kSlots; ++slot)
        for (int column = kTaxonSheetRow; column <= kTaxonName && !IsFreshRow(slot); ++column) lines.Write("TaxonTable", slot, column);
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
        if (UndoList[entry][kUndoSlot] == 0) continue;
        lines.Write("UndoList", entry, kUndoSample);
        lines.Write("UndoList", entry, kUndoSlot);
    }
    for (int line = 0; line < static_cast<int>(HistoryLog.size()); ++line) lines.Write("HistoryLog", line);
}

std::string Indexed(const std::string& array, int index) {
    return array + "(" + std::to_string(index) + ")";
}

// The marks that either cell of a slot bears; "" of a fresh one.
std::string Marks(const Properties& name, const Properties& count) {
    std::string marks;
    if (name.bold || count.bold) marks += " bold";
    if (name.italic || count.italic) marks += " italic";
    if (name.underline || count.underline) marks += " underline";
    const Colour back = name.back == kWhite ? count.back : name.back;
    if (back != kWhite) marks += " back=" + ValueText(back);
    return marks;
}

void WriteCells(std::ostream& out, const MainWindow& window) {
    for (int slot = 1; slot <= kSlots; ++slot) {
        const Properties& name = window.TaxonNames[slot].State();
        const Properties& count = window.TaxonCounts[slot].State();
        const std::string marks = Marks(name, count);
        if (name.text == kEmpty && count.text == "0" && marks.empty()) continue;
        out << Indexed("Text1", slot) << " = " << Quoted(name.text) << " " << Quoted(count.text) << marks << "\n";
    }
}

class WindowLines {
public:
    WindowLines(std::ostream& out, const MainWindow& window, const ValueOfName& value_of)
        : out_(out), window_(window), value_of_(value_of) {}
    void Write(const std::string& control) { out_ << control << " = " << value_of_(window_.name + "." + control) << "\n"; }
    void Write(const std::string& array, int first, int last) {
        for (int index = first; index <= last; ++index) Write(Indexed(array, index));
    }
    void WriteList(const ComboBox& list) {
        Write(list.name);
        for (int item = 0; item < list.ListCount(); ++item) Write(Indexed(list.name + ".List", item));
    }

private:
    std::ostream& out_;
    const MainWindow& window_;
    const ValueOfName& value_of_;
};

bool IsCommand(const Control& control) {
    return control.kind() == Kind::Button || (control.kind() == Kind::MenuItem && control.State().text != "-");
}

void WriteCommands(std::ostream& out, const MainWindow& window) {
    for (const Control* control : window.Controls()) {
        if (!IsCommand(*control)) continue;
        const bool is_checked = control->kind() == Kind::MenuItem && control->State().checked;
        out << (control->index < 0 ? control->name : Indexed(control->name, control->index)) << " = " << Quoted(control->State().text)
            << (control->Enabled() ? " enabled" : " disabled") << (is_checked ? " checked" : "") << "\n";
    }
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

void DumpWindow(std::ostream& out, const MainWindow& window, const ValueOfName& value_of) {
    WindowLines lines(out, window, value_of);
    lines.Write("Title");
    WriteCells(out, window);
    lines.Write("Text3", 0, 2);
    lines.Write("Text4");
    lines.Write("Text5", 1, kParams);
    lines.Write("Label10", 1, kParams);
    lines.Write("Label2", 0, 2);
    lines.Write("Label4");
    lines.Write("SSTab1");
    lines.WriteList(window.History);
    lines.WriteList(window.SampleList);
    lines.Write("Option1", 0, 2);
    WriteCommands(out, window);
}

void Show(Stage& stage, const Command& command) {
    for (std::size_t place = 1; place < command.words.size(); ++place) {
        const std::string& name = command.words[place];
        const std::string value = stage.Shown(name);
        stage.out << name << " = " << OnOneLine(value) << "\n";
    }
}

void Forget(Stage& stage, const Command&) {
    stage.messages_seen = stage.services.messages.shown.size();
    stage.dialogs_seen = stage.services.dialogs.asked.size();
    stage.sounds_seen = stage.services.sounds.played.size();
}

void Dump(Stage& stage, const Command& command) {
    const std::string& what = command.words[1];
    const auto value_of = [&](const std::string& name) { return OnOneLine(stage.Shown(name)); };
    if (what == "sheet") return DumpSheet(stage.out, value_of);
    if (what == "window") return DumpWindow(stage.out, frmMain, value_of);
    for (const std::string& line : PictureLines(ControlOf<PictureBox>(what, "picture"))) stage.out << line << "\n";
}

void SaveImage(Stage& stage, const Command& command) {
    const std::string& name = command.words[1];
    Control* const control = IsWindowName(name) ? nullptr : &ControlOf(name);
    Window& window = control ? *control->window : WindowOf(name);
    if (!stage.hands.SaveImage(window, control, stage.folders.Real(command.words[2])))
        throw ScriptFault("no image of " + name + ": there are no windows to show it (run with --windows)");
}

}  // namespace drive
