#include "session/modify_mode.h"

#include <vector>

#include "session/history.h"
#include "session/pad_cells.h"
#include "session/saved_state.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

namespace {
constexpr Colour kModifying{200, 100, 100};

// What counts, saves or leaves the sheet, and comes back with counting. mnuNext does not: it waits for the next change of the total.
std::vector<Control*> CountingCommands() {
    return {&frmMain.ResetButton,  &frmMain.OpenButton,    &frmMain.mnuSave,    &frmMain.NextSampleButton,
            &frmMain.ModifyButton, &frmMain.mnuStartAmend, &frmMain.AllTotal,   &frmMain.Subtotal1,
            &frmMain.Subtotal2,    &frmMain.mnuUndo,       &frmMain.mnuReset,   &frmMain.mnuNew,
            &frmMain.mnuOpen,      &frmMain.mnuSaveAs,     &frmMain.mnuPercent, &frmMain.mnuSaveCopy};
}

void ShowParamNames(bool visible) {
    for (int p = 1; p <= kParams; ++p) frmMain.ParamNames[p].SetVisible(visible);
}

void OpenParams(bool open) {
    for (int p = 1; p <= kParams; ++p) frmMain.ParamBoxes[p].SetEnabled(open);
}

void EnableParamNames(bool enabled) {
    for (int p = 1; p <= kParams; ++p) frmMain.ParamNames[p].SetEnabled(enabled);
}

void PaintGround(Colour colour) {
    frmMain.PadGround.SetBackColor(colour);
    frmMain.BankTabs.SetBackColor(colour);
}

void ShowSlotNumbers(bool visible) {
    for (int slot = 1; slot <= kSlots; ++slot) {
        if (!visible) frmMain.SlotNumbers[slot].SetBold(false);
        frmMain.SlotNumbers[slot].SetVisible(visible);
    }
    for (int p = 1; p <= kParams; ++p) frmMain.RenameButtons[p].SetVisible(visible);
}

// The counting commands and what only counting shows; Modify mode has the opposite of both.
void SwitchCommands(bool counting) {
    frmMain.ResumeButton.SetEnabled(!counting);
    frmMain.mnuFinishAmend.SetEnabled(!counting);
    for (Control* command : CountingCommands()) command->SetEnabled(counting);
    MarkSheetChanged(counting);
    frmMain.mnuNext.SetEnabled(false);
    frmMain.SampleNameCaption.SetVisible(counting);
    for (Label& label : frmMain.TotalCaptions) label.SetVisible(counting);
    for (Frame& panel : frmMain.PadBlocks) panel.SetVisible(counting);
}

void StartModifying() {
    PaintGround(kModifying);
    frmMain.SampleNote.SetFocus();
    AmendMode = true;
    SwitchCommands(false);
    AddHistoryLine("(Modify)");
    ShowSlotNumbers(true);
}

void StartCounting() {
    PaintGround(kFormColour);
    AmendMode = false;
    SwitchCommands(true);
    frmMain.SampleName.SetEnabled(true);
    if (SheetClean) {
        frmMain.ResetButton.SetEnabled(false);
        frmMain.NextSampleButton.SetEnabled(false);
    }
    frmMain.BankTabs.SetTab(0);
    frmMain.FocusRest.SetFocus();
    AddHistoryLine("(Resume)");
    ShowSlotNumbers(false);
}
void CloseBoxes() {
    frmMain.SampleNote.SetEnabled(false);
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
    frmMain.SampleNote.SetEnabled(true);
    frmMain.SampleNote.SetText(SampleNotes[CurrentSample]);
    ShowParamNames(true);
    EnableParamNames(true);
    OpenParams(true);
    AmendingOnOff(0);
}

void LeaveModifyMode() {
    frmMain.FocusRest.SetFocus();  // the box in hand is left while its edit still counts as one
    CloseBoxes();
}

void LeaveModifyModeByDoubleClick() {
    CloseBoxes();
    EnableParamNames(false);
}
