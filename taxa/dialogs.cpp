#include "taxa/dialogs.h"

#include <string>

#include "keys/settings/key_settings.h"
#include "platform/text.h"
#include "session/focus.h"
#include "session/saved_state.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "taxa/quotation_guard.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"
#include "windows/next_window.h"
#include "windows/subtotal_window.h"

namespace {

Any& ChosenFlag(int slot) {
    return TaxonTable[slot][kSubtotalFlags[frmSubtotal.Subtotal1Option.Value() ? 0 : 1]];
}

std::string CaptionOf(int slot) {
    const std::string name = TaxonTable[slot][kTaxonName].Text();
    return name.empty() || name == kEmpty ? std::to_string(slot) + ": " + kEmpty : name;
}

void ShowFlags() {
    for (int slot = 1; slot <= kSlots; ++slot) frmSubtotal.Members[slot].SetValue(ChosenFlag(slot) == 1 ? 1 : 0);
}

void ShowNames() {
    for (int subtotal = 1; subtotal <= kSubtotals; ++subtotal)
        frmSubtotal.SubtotalNames[subtotal].SetText(SheetHeader[kHeaderSubtotal1 + subtotal - 1].Text());
}

void KeepFlags() {
    for (int slot = 1; slot <= kSlots; ++slot)
        for (int flag = 0; flag < kSubtotals; ++flag) frmSubtotal.FlagsAtOpening[slot][flag] = TaxonTable[slot][kSubtotalFlags[flag]];
}

void RestoreFlags() {
    for (int slot = 1; slot <= kSlots; ++slot)
        for (int flag = 0; flag < kSubtotals; ++flag) TaxonTable[slot][kSubtotalFlags[flag]] = frmSubtotal.FlagsAtOpening[slot][flag];
}

void PlaceBoxes() {
    for (int place = 1; place <= kKeys; ++place) {
        const int key = KeyNumber(KeySettings[place][kKeyNumber]);
        if (key == 0) continue;
        for (const int bank : {0, kKeys, 2 * kKeys}) {
            const Button& there = frmSubtotal.MemberPlaces[place + bank];
            frmSubtotal.Members[key + bank].SetPlace(there.Left(), there.Top());
        }
    }
}

Window& Caller() {
    if (frmParaName.Caller.Caption() == frmNext.name) return frmNext;
    return frmMain;
}

// The window that asks waits, and so does the main window, whoever asks.
void Ask(Window& caller, int p, const std::string& caption) {
    frmMain.SetEnabled(false);
    caller.SetEnabled(false);
    frmParaName.Show();
    frmParaName.Param.SetValue(p);
    const std::string name = WithoutTrailingColon(caption);
    frmParaName.OldName.SetCaption(name);
    frmParaName.NewName.SetText(name);
    frmParaName.Caller.SetCaption(caller.name);
    frmParaName.NewName.SetFocus();
    frmParaName.NewName.SelectAll();
}

void GiveBack(Window& caller) {
    frmParaName.Hide();
    caller.SetEnabled(true);
    caller.Show();
}
}  // namespace

void FillSubtotalWindow() {
    frmSubtotal.Filling = true;
    ShowNames();
    KeepFlags();
    for (int slot = 1; slot <= kSlots; ++slot) frmSubtotal.Members[slot].SetCaption(CaptionOf(slot));
    ShowFlags();
    frmSubtotal.Filling = false;
    PlaceBoxes();
}

void ShowChosenSubtotal() {
    frmSubtotal.Filling = true;
    ShowFlags();
    frmSubtotal.Filling = false;
    RecountTotals(CurrentSample);
}

void StoreSubtotalFlag(int slot) {
    if (frmSubtotal.Filling) return;
    ChosenFlag(slot) = frmSubtotal.Members[slot].Value();
    RecountTotals(CurrentSample);
    OfferSaving();
}

void SetAllFlags(int flag) {
    frmSubtotal.Filling = true;
    for (int slot = 1; slot <= kSlots; ++slot) ChosenFlag(slot) = flag;
    ShowFlags();
    frmSubtotal.Filling = false;
    RecountTotals(CurrentSample);
    OfferSaving();
}

void StoreSubtotalName(int subtotal) {
    TextBox& box = frmSubtotal.SubtotalNames[subtotal];
    RefuseQuotationMark(box);
    SheetHeader[kHeaderSubtotal1 + subtotal - 1] = box.Text();
    ShowSubtotalNames();
    if (!frmSubtotal.Filling) OfferSaving();
}

void AcceptSubtotals() {
    RecountTotals(CurrentSample);
    CloseDialog(frmSubtotal);
}

void CancelSubtotals() {
    RestoreFlags();
    RecountTotals(CurrentSample);
    CloseDialog(frmSubtotal);
}

void RenameParamOfSheet(int p) {
    Ask(frmMain, p, frmMain.ParamNames[p].Caption());
}

void RenameParamOfNextSample(int p) {
    Ask(frmNext, p, frmNext.ParamNames[p].Caption());
}

void AcceptParamName() {
    const int p = frmParaName.Param.Value();
    const std::string& name = frmParaName.NewName.Text();
    if (&Caller() == &frmNext) {
        frmNext.ParamNames[p].SetCaption(name);
    } else {
        ParamHeader[p][kParamName] = name;
        frmMain.ParamNames[p].SetCaption(name + ":");
    }
    GiveBack(Caller());
}

void CancelParamName() {
    GiveBack(Caller());
}
