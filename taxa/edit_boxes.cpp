#include "taxa/edit_boxes.h"

#include <string>

#include "platform/text.h"
#include "session/history.h"
#include "session/modify_mode.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "taxa/quotation_guard.h"
#include "windows/main_window.h"

namespace {
void LogChangedName(int slot, const std::string& text) {
    if (AmendMode && text != EditedValue) AddHistoryLine(frmMain.SlotNumbers[slot].Caption() + ": Taxa name [" + text + "]");
}
}  // namespace

void EnterNameBox(int slot) {
    EnterGuardedBox();
    EditedValue = frmMain.TaxonNames[slot].Text();
}

void LeaveNameBox(int slot) {
    LogChangedName(slot, frmMain.TaxonNames[slot].Text());
    RecountTotals(CurrentSample);
}

void EnterCountBox(int slot) {
    EditedValue = frmMain.TaxonCounts[slot].Text();
}

void LeaveCountBox(int slot) {
    const std::string count = frmMain.TaxonCounts[slot].Text();
    if (!AmendMode || count == EditedValue) return;
    SheetClean = false;
    frmMain.mnuNew.SetEnabled(true);
    RecountTotals(CurrentSample);
    AddHistoryLine(frmMain.SlotNumbers[slot].Caption() + " (" + frmMain.TaxonNames[slot].Text() + "): Replace " + EditedValue + " by " +
                   count);
}

void DoubleClickCell(int slot, bool in_count_box) {
    if (!AmendMode) return;
    LogChangedName(slot, (in_count_box ? frmMain.TaxonCounts[slot] : frmMain.TaxonNames[slot]).Text());
    RecountTotals(CurrentSample);
    LeaveModifyModeByDoubleClick();
}

void EnterNote() {
    EnterGuardedBox();
    PutCaretBehind(frmMain.SampleNote);
}

void DoubleClickNote() {
    if (AmendMode) LeaveModifyModeByDoubleClick();
}

void EnterParam(int p) {
    EnterGuardedBox();
    ClearDashes(frmMain.ParamBoxes[p]);
}

void PutCaretBehind(TextBox& box) {
    box.SetSelStart(static_cast<int>(Length(box.Text())));
}

void ClearDashes(TextBox& box) {
    if (box.Text() == kEmpty) box.SetText("");
}

void RestoreDashes(TextBox& box) {
    if (box.Text().empty()) box.SetText(kEmpty);
}
