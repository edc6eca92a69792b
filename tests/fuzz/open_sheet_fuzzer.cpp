// Whatever bytes are opened, the program ends up with a sheet that it can go on with: an opened one, or what was read before the open
// was given up. libFuzzer hands in the bytes; the sanitizers and the checks below say where that is not so.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "events/program.h"
#include "files/back_up.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"
#include "platform/failure.h"
#include "platform/headless/headless_services.h"
#include "session/sheet_state.h"
#include "session/start_up.h"
#include "unit/memory_files.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"
#include "windows/site_name_window.h"

namespace {
constexpr const char* kSheet = "/sheets/any.csv";

struct FuzzedProgram {
    HeadlessServices services{"/program"};
    MemoryFiles files;
    FuzzedProgram() {
        ::services.files = &files;
        files.LayDownProgram("/program");
        StartProgram();
    }
};

void Check(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
}

// Every input meets the same fresh session, and no list grows from input to input.
void StartAfresh(FuzzedProgram& program) {
    for (auto& row : Counts) std::fill(std::begin(row), std::end(row), 0);
    frmSiteName.Unload();
    frmMain.Combo1.Clear();
    InitialiseSheet();
    program.services.messages.shown.clear();
    program.services.dialogs.asked.clear();
    program.services.sounds.played.clear();
}

bool Open(FuzzedProgram& program, std::string bytes) {
    program.files.bytes[kSheet] = std::move(bytes);
    program.services.dialogs.answers = {kSheet};
    OpenSheet();
    return HistoryLog.back() == std::string("(Open) ") + kSheet;
}

void CheckSheet() {
    Check(SampleCount >= 1 && SampleCount <= kColumns, "SampleCount is within the arrays");
    Check(CurrentSample >= 1 && CurrentSample <= SampleCount, "CurrentSample is a column");
    Check(SheetClean && !SampleUntouched, "the sheet is clean");
    Check(!frmMain.ProgressBar1.Visible(), "the progress bar is gone");
    for (int row = 1; row <= kSlots; ++row) {
        Check(KeyIndex[row] >= 0 && KeyIndex[row] <= kSlots, "every row has a slot");
        Check(RowOfSlot[row] >= 0 && RowOfSlot[row] <= kSlots, "every slot has a row");
    }
}

// A sum beyond 16 bits stops a save, as it does in any sheet.
bool Save() {
    try {
        SaveSheet(kSave);
        return SaveOutcome == 0;
    } catch (const Failure&) {
        return false;
    }
}

// What was opened and could be saved is a sheet like any other: it opens again, and is saved as the same bytes.
void CheckRoundTrip(FuzzedProgram& program) {
    if (std::any_of(&KeyIndex[1], std::end(KeyIndex), [](std::int16_t slot) { return slot == 0; })) return;  // a row too many for 135 slots
    const std::string saved = program.files.bytes[kSheet];
    SheetClean = true;
    Check(Open(program, saved), "a saved sheet opens");
    Check(Save(), "and can be saved again");
    Check(program.files.bytes[kSheet] == saved, "as the same bytes");
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static FuzzedProgram program;
    StartAfresh(program);
    const bool opened = Open(program, {reinterpret_cast<const char*>(data), size});
    CheckSheet();
    BackUpSheet();
    SaveOutcome = 0;
    if (Save() && opened && !TemplateOpened) CheckRoundTrip(program);
    return 0;
}
