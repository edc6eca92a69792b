#include "session/modify_mode.h"

#include "session/focus.h"
#include "session/history.h"
#include "session/pad_cells.h"
#include "session/saved_state.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

namespace {
constexpr Colour kModifying{200, 100, 100};

// mnuNext does not come back with counting: it waits for the next change of the total.
void SwitchCommands(MainWindow& window, bool counting) {
    window.EnableCounting(counting);
    MarkSheetChanged(counting);
    window.mnuNext.SetEnabled(false);
    window.ShowCounting(counting);
}

void StartModifying(MainWindow& window) {
    window.PaintGround(kModifying);
    window.SampleNote.SetFocus();
    AmendMode = true;
    SwitchCommands(window, false);
    AddHistoryLine("(Modify)");
    window.ShowSlotNumbers(true);
}

void StartCounting(MainWindow& window) {
    window.PaintGround(kFormColour);
    AmendMode = false;
    SwitchCommands(window, true);
    window.SampleName.SetEnabled(true);
    if (SheetClean) {
        window.ResetButton.SetEnabled(false);
        window.NextSampleButton.SetEnabled(false);
    }
    window.BankTabs.SetTab(0);
    RestFocus();
    AddHistoryLine("(Resume)");
    window.ShowSlotNumbers(false);
}

void CloseBoxes(MainWindow& window) {
    window.OpenNotes(false);
    ApplyItalics();
    AmendingOnOff(1);
}
}  // namespace

void AmendingOnOff(std::int16_t mode) {
    if (mode == 0)
        StartModifying(frmMain);
    else
        StartCounting(frmMain);
}

void EnterModifyMode() {
    frmMain.OpenNotes(true);
    frmMain.SampleNote.SetText(SampleNotes[CurrentSample]);
    frmMain.EnableParamNames(true);
    AmendingOnOff(0);
}

void LeaveModifyMode() {
    RestFocus();  // first, so that the box being edited is left, and its edit told, while the mode still lasts
    CloseBoxes(frmMain);
}

void LeaveModifyModeByDoubleClick() {
    CloseBoxes(frmMain);
    frmMain.EnableParamNames(false);
}
