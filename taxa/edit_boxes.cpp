#include "taxa/edit_boxes.h"

#include <cmath>
#include <string>

#include "platform/failure.h"
#include "platform/number.h"
#include "platform/text.h"
#include "session/history.h"
#include "session/modify_mode.h"
#include "session/pad_cells.h"
#include "session/sample_on_show.h"
#include "session/saved_state.h"
#include "session/sound.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "taxa/quotation_guard.h"
#include "windows/main_window.h"

namespace {
// The list goes along: by the old name the sample could not be brought up any more.
void NameSampleOnShow(const std::string& name) {
    SampleTable[kSampleName][CurrentSample] = name;
    frmMain.SampleList.SetItem(CurrentSample - 1, name);
}

bool IsWholeNumber(const std::string& text) {
    return text == NumberText(std::trunc(Val(text)));
}

void RefuseCount(TextBox& box) {
    PlayIfOn(WaveError);
    services.messages->Show({"Error", "Please input digit(s).", Icon::Exclamation, Buttons::Ok});
    box.SetText(FloatText(CountAtMouseDown));
}

void StoreIfWhole(int slot, TextBox& box) {
    if (AmendMode) {
        if (!IsWholeNumber(box.Text())) {
            RefuseCount(box);
            return;
        }
        Counts[slot][CurrentSample] = ToInt32(box.Number());
        SampleUntouched = false;
        MarkSheetEdited();
        RecountTotals(CurrentSample);
    }
    Counts[slot][CurrentSample] = ToInt32(box.Number());
    if (!IsWholeNumber(box.Text())) RefuseCount(box);
}

void LogChangedName(int slot, const std::string& text) {
    if (AmendMode && text != EditedValue) AddHistoryLine(frmMain.SlotNumbers[slot].Caption() + ": Taxa name [" + text + "]");
}

// The text of a box that has changed, once the guard has seen it.
const std::string& GuardedText(TextBox& box) {
    RefuseQuotationMark(box);
    return box.Text();
}
}  // namespace

void MarkSheetEdited() {
    SheetClean = false;
    frmMain.mnuNew.SetEnabled(true);
}

void NoteCountBeforeEdit(const TextBox& box) {
    CountAtMouseDown = static_cast<float>(box.Number());
}

void StoreSampleName(TextBox& box) {
    const std::string& name = GuardedText(box);
    frmMain.SampleList.SetText(name);
    ShowSerial();
    if (AmendMode) NameSampleOnShow(name);
}

void StoreTaxonName(int slot, TextBox& box) {
    TaxonTable[slot][kTaxonName] = GuardedText(box);
}

void StoreCount(int slot, TextBox& box) {
    if (frmMain.ChangingSample || !frmMain.KeysEnabled) return;
    const std::int32_t last = Counts[slot][CurrentSample];
    try {
        StoreIfWhole(slot, box);
    } catch (const Failure&) {
        // A count or a total beyond 32 bits: cell and array go back, in silence, to the last that could be held.
        Counts[slot][CurrentSample] = last;
        ShowCountOf(slot, last);
    }
}

void StoreNote(TextBox& box) {
    SampleNotes[CurrentSample] = GuardedText(box);
    SheetClean = false;
}

void StoreParam(int p, TextBox& box) {
    ParamValues[p][CurrentSample] = GuardedText(box);
    MarkSheetEdited();
    frmMain.LastEdited.SetCaption(box.Text());
}

void EndWithColon(Label& label) {
    if (Right(label.Caption(), 1) != ":") label.SetCaption(label.Caption() + ":");
}

void NameParamBox(TextBox& box, const Label& label) {
    const std::string name = WithoutTrailingColon(label.Caption());
    box.SetToolTip(name.empty() ? WithoutTrailingColon(label.DesignText()) : name);
}

void RenameSampleOnShow(const std::string& name) {
    NameSampleOnShow(name);
    frmMain.SampleName.SetText(name);
    frmMain.SampleNote.SetText(SampleNotes[CurrentSample]);
    WarnOldSample = true;
    frmMain.FocusRest.SetEnabled(true);
    OfferSaving();
}

void EnterNameBox(const TextBox& box) {
    EnterGuardedBox();
    EditedValue = box.Text();
}

void LeaveNameBox(int slot, const TextBox& box) {
    LogChangedName(slot, box.Text());
    RecountTotals(CurrentSample);
}

void EnterCountBox(const TextBox& box) {
    EditedValue = box.Text();
}

void LeaveCountBox(int slot, const TextBox& box) {
    const std::string& count = box.Text();
    if (!AmendMode || count == EditedValue) return;
    MarkSheetEdited();
    RecountTotals(CurrentSample);
    AddHistoryLine(frmMain.SlotNumbers[slot].Caption() + " (" + frmMain.TaxonNames[slot].Text() + "): Replace " + EditedValue + " by " +
                   count);
}

void DoubleClickCell(int slot, const TextBox& box) {
    if (!AmendMode) return;
    LogChangedName(slot, box.Text());
    RecountTotals(CurrentSample);
    LeaveModifyModeByDoubleClick();
}

void EnterNote(TextBox& box) {
    EnterGuardedBox();
    PutCaretBehind(box);
}

void DoubleClickNote() {
    if (AmendMode) LeaveModifyModeByDoubleClick();
}

void EnterParam(TextBox& box) {
    EnterGuardedBox();
    ClearDashes(box);
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
