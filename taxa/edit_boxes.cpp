#include "taxa/edit_boxes.h"

#include <cmath>
#include <string>

#include "platform/failure.h"
#include "platform/number.h"
#include "platform/text.h"
#include "session/changed_mark.h"
#include "session/history.h"
#include "session/modify_mode.h"
#include "session/sample_on_show.h"
#include "session/sound.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "taxa/quotation_guard.h"
#include "windows/main_window.h"

namespace {
// The list goes along: by the old name the sample could not be brought up any more.
void NameSampleOnShow(const std::string& name) {
    SampleTable[2][CurrentSample] = name;
    frmMain.SampleList.SetItem(CurrentSample - 1, name);
}

bool IsWholeNumber(const std::string& text) {
    return text == NumberText(std::trunc(Val(text)));
}

void RefuseCount(TextBox& box) {
    PlayIfOn(WaveError);
    services.messages->Show({"Error", "Please input digit(s).", Icon::Exclamation, Buttons::Ok});
    box.SetText(SingleText(CountAtMouseDown));
}

void StoreCount(int slot) {
    TextBox& box = frmMain.TaxonCounts[slot];
    if (AmendMode) {
        if (!IsWholeNumber(box.Text())) {
            RefuseCount(box);
            return;
        }
        Counts[slot][CurrentSample] = ToLong(box.Number());
        SampleUntouched = false;
        SheetClean = false;
        frmMain.mnuNew.SetEnabled(true);
        RecountTotals(CurrentSample);
    }
    Counts[slot][CurrentSample] = ToLong(box.Number());
    if (!IsWholeNumber(box.Text())) RefuseCount(box);
}

void LogChangedName(int slot, const std::string& text) {
    if (AmendMode && text != EditedValue) AddHistoryLine(frmMain.SlotNumbers[slot].Caption() + ": Taxa name [" + text + "]");
}
}  // namespace

void NoteCountBeforeEdit(int slot) {
    CountAtMouseDown = static_cast<float>(frmMain.TaxonCounts[slot].Number());
}

void TakeSampleName() {
    RefuseQuotationMark(frmMain.SampleName);
    frmMain.SampleList.SetText(frmMain.SampleName.Text());
    ShowSerial();
    if (AmendMode) NameSampleOnShow(frmMain.SampleName.Text());
}

void TakeTaxonName(int slot) {
    RefuseQuotationMark(frmMain.TaxonNames[slot]);
    TaxonTable[slot][4] = frmMain.TaxonNames[slot].Text();
}

void TakeCount(int slot) {
    if (frmMain.ChangingSample || !frmMain.KeysEnabled) return;
    const std::int32_t last = Counts[slot][CurrentSample];
    try {
        StoreCount(slot);
    } catch (const Failure&) {
        // A count or a total beyond 32 bits: cell and array go back, in silence, to the last that could be held.
        Counts[slot][CurrentSample] = last;
        ShowCountOf(slot, last);
    }
}

void TakeNote() {
    RefuseQuotationMark(frmMain.SampleNote);
    SampleNotes[CurrentSample] = frmMain.SampleNote.Text();
    SheetClean = false;
}

void TakeParam(int p) {
    RefuseQuotationMark(frmMain.ParamBoxes[p]);
    ParamValues[p][CurrentSample] = frmMain.ParamBoxes[p].Text();
    SheetClean = false;
    frmMain.mnuNew.SetEnabled(true);
    frmMain.LastEdited.SetCaption(frmMain.ParamBoxes[p].Text());
}

void EndWithColon(int p) {
    Label& label = frmMain.ParamNames[p];
    if (Right(label.Caption(), 1) != ":") label.SetCaption(label.Caption() + ":");
}

void NameParamBox(int p) {
    const Label& label = frmMain.ParamNames[p];
    const std::string name = WithoutTrailingColon(label.Caption());
    frmMain.ParamBoxes[p].SetToolTip(name.empty() ? WithoutTrailingColon(label.DesignText()) : name);
}

void RenameSampleOnShow() {
    NameSampleOnShow(frmMain.SampleList.Text());
    frmMain.SampleName.SetText(frmMain.SampleList.Text());
    frmMain.SampleNote.SetText(SampleNotes[CurrentSample]);
    WarnOldSample = true;
    frmMain.FocusRest.SetEnabled(true);
    OfferSaving();
}

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
