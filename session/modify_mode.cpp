#include "session/modify_mode.h"

#include "session/changed_mark.h"
#include "session/history.h"
#include "session/italics.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

namespace {
constexpr Colour kModifying{200, 100, 100};

// What counts, saves or leaves the sheet, and comes back with counting. mnuNext does not: it waits for the next change of the total.
Control* const kCountingCommands[] = {&frmMain.Command2[0], &frmMain.Command4[0],   &frmMain.mnuSave,    &frmMain.Command5[1],
                                      &frmMain.Command3[0], &frmMain.mnuStartAmend, &frmMain.Text3[0],   &frmMain.Text3[1],
                                      &frmMain.Text3[2],    &frmMain.mnuUndo,       &frmMain.mnuReset,   &frmMain.mnuNew,
                                      &frmMain.mnuOpen,     &frmMain.mnuSaveAs,     &frmMain.mnuPercent, &frmMain.mnuSaveCopy};

void ShowParamNames(bool visible) {
    for (int p = 1; p <= kParams; ++p) frmMain.Label10[p].SetVisible(visible);
}

void OpenParams(bool open) {
    for (int p = 1; p <= kParams; ++p) frmMain.Text5[p].SetEnabled(open);
}

void EnableParamNames(bool enabled) {
    for (int p = 1; p <= kParams; ++p) frmMain.Label10[p].SetEnabled(enabled);
}

void PaintGround(Colour colour) {
    frmMain.Picture1.SetBackColor(colour);
    frmMain.SSTab1.SetBackColor(colour);
}

void ShowSlotNumbers(bool visible) {
    for (int slot = 1; slot <= kSlots; ++slot) {
        if (!visible) frmMain.Label1[slot].SetBold(false);
        frmMain.Label1[slot].SetVisible(visible);
    }
    for (int p = 1; p <= kParams; ++p) frmMain.Command7[p].SetVisible(visible);
}

// The counting commands and what only counting shows; Modify mode has the opposite of both.
void SwitchCommands(bool counting) {
    frmMain.Command3[1].SetEnabled(!counting);
    frmMain.mnuFinishAmend.SetEnabled(!counting);
    for (Control* command : kCountingCommands) command->SetEnabled(counting);
    MarkSheetChanged(counting);
    frmMain.mnuNext.SetEnabled(false);
    frmMain.Label1[0].SetVisible(counting);
    for (Label& label : frmMain.Label2) label.SetVisible(counting);
    for (Frame& panel : frmMain.Frame3) panel.SetVisible(counting);
}

void StartModifying() {
    PaintGround(kModifying);
    frmMain.Text4.SetFocus();
    AmendMode = true;
    SwitchCommands(false);
    AddHistoryLine("(Modify)");
    ShowSlotNumbers(true);
}

void StartCounting() {
    PaintGround(kFormColour);
    AmendMode = false;
    SwitchCommands(true);
    frmMain.Text1[0].SetEnabled(true);
    if (SheetClean) {
        frmMain.Command2[0].SetEnabled(false);
        frmMain.Command5[1].SetEnabled(false);
    }
    frmMain.SSTab1.SetTab(0);
    frmMain.Text99.SetFocus();
    AddHistoryLine("(Resume)");
    ShowSlotNumbers(false);
}
void CloseBoxes() {
    frmMain.Text4.SetEnabled(false);
    ShowParamNames(false);
    OpenParams(false);
    ApplyItalics();
    AmendingOnOff(1);
}
}  // namespace

void AmendingOnOff(std::int16_t mode) {
    if (mode == 0)
        StartModifying();
    else
        StartCounting();
}

void EnterModifyMode() {
    frmMain.Text4.SetEnabled(true);
    frmMain.Text4.SetText(SampleNotes[CurrentSample]);
    ShowParamNames(true);
    EnableParamNames(true);
    OpenParams(true);
    AmendingOnOff(0);
}

void LeaveModifyMode() {
    frmMain.Text99.SetFocus();  // the box in hand is left while its edit still counts as one
    CloseBoxes();
}

void LeaveModifyModeByDoubleClick() {
    CloseBoxes();
    EnableParamNames(false);
}
