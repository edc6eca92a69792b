// Whatever bytes are opened, the program ends up with a sheet that it can go on with: an opened one, or what was read before the open
// was given up. libFuzzer hands in the bytes; the sanitizers and the checks below say where that is not so.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>

#include "diagram/data/percentages.h"
#include "events/program.h"
#include "files/back_up.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"
#include "platform/failure.h"
#include "platform/headless/headless_services.h"
#include "session/key_dispatch.h"
#include "session/start_up.h"
#include "session/state/sheet_state.h"
#include "unit/memory_files.h"
#include "unit/sheet_bytes.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"

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
    for (int p = 1; p <= kParams; ++p) {
        std::fill(std::begin(ParamHeader[p]), std::end(ParamHeader[p]), "");
        std::fill(std::begin(ParamValues[p]), std::end(ParamValues[p]), kEmpty);
        frmMain.Label10[p].SetCaption("Additional info-" + std::to_string(p));
    }
    frmSiteName.Unload();
    frmMain.Combo1.Clear();
    InitialiseSheet();
    program.services.messages.shown.clear();
    program.services.messages.answers = {Answer::Yes};
    program.services.dialogs.asked.clear();
    program.services.sounds.played.clear();
    SaveOutcome = 0;
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

// Two rows of one slot would show and save each other's counts.
void CheckRows() {
    Check(std::set<int>(&KeyIndex[1], &KeyIndex[kSlots] + 1).size() == kSlots, "every row has a slot of its own");
}

// What any sheet can fail at: a total beyond 32 bits, a sum beyond 16.
template <class Procedure>
bool Succeeds(Procedure procedure) {
    try {
        procedure();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

void CountOne() {
    const int code = static_cast<int>(KeySettings[1][kKeyCode].Number());
    DispatchKeyDown(code);
    DispatchKeyUp(code);
}

bool Save() {
    return Succeeds([] { SaveSheet(kSave); }) && SaveOutcome == 0;
}

// Of a sheet that has been saved: the names on the screen are in the arrays. A row of slot 0 is in no sheet of the program's own.
bool IsOurOwn() {
    return ComesBackFromItsFile() && std::find(&KeyIndex[1], &KeyIndex[kSlots] + 1, 0) == &KeyIndex[kSlots] + 1;
}

// What was opened and saved opens again and is saved as the same bytes.
void CheckRoundTrip(FuzzedProgram& program) {
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
    if (opened) CheckRows();
    Succeeds(CountOne);
    Succeeds(ComputeDiagramData);
    BackUpSheet();
    if (Save() && opened && IsOurOwn()) CheckRoundTrip(program);
    return 0;
}
