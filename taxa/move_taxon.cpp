#include "taxa/move_taxon.h"

#include <algorithm>
#include <string>

#include "platform/user.h"
#include "session/history.h"
#include "session/pad_cells.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "taxa/edit_boxes.h"
#include "windows/main_window.h"

namespace {
bool HasCounts(int slot) {
    std::int64_t sum = 0;
    for (int sample = 0; sample <= SampleCount; ++sample) sum += Counts[slot][sample];
    return sum != 0;
}

void MoveFields(int from, int to) {
    for (int sample = 0; sample <= SampleCount; ++sample) {
        Counts[to][sample] = Counts[from][sample];
        Counts[from][sample] = 0;
    }
    for (const int flag : kSubtotalFlags) {
        TaxonTable[to][flag] = TaxonTable[from][flag];
        TaxonTable[from][flag] = 0;
    }
    TaxonTable[to][kTaxonName] = TaxonTable[from][kTaxonName];
    TaxonTable[from][kTaxonName] = kEmpty;
}

void MoveCells(int from, int to) {
    frmMain.TaxonNames[to].SetText(frmMain.TaxonNames[from].Text());
    frmMain.TaxonCounts[to].SetText(frmMain.TaxonCounts[from].Text());
    frmMain.TaxonNames[from].SetText(kEmpty);
    ShowCountOf(from, 0);
}
}  // namespace

void SelectSlot(int slot) {
    for (int other = 1; other <= kSlots; ++other) frmMain.SlotNumbers[other].SetBold(other == slot);
    SelectedSlot = static_cast<std::int16_t>(slot);
    if (AmendMode) OfferMove(slot);
}

void OfferMove(int slot) {
    SelectedSlot = static_cast<std::int16_t>(slot);
    OpenPopup(frmMain.mnuRightButton);
}

void OpenBankMenu(int bank, MenuItem* items) {
    frmMain.BankTabs.SetTab(bank);
    for (int i = 0; i < kKeys; ++i) items[i].SetEnabled(!HasCounts(bank * kKeys + i + 1));
}

void TransferTaxa(std::int16_t target) {
    const int from = SelectedSlot;
    MoveFields(from, target);
    MoveCells(from, target);
    frmMain.SlotNumbers[from].SetBold(false);
    PaintCell(LastSlot, kWhite);
    if (target != 0) MoveHighlight(target, kPaleHighlight);
    AddHistoryLine("(Move) " + TaxonTable[target][kTaxonName].Text() + ": " + std::to_string(from) + " to " + std::to_string(target));
    RecountTotals(CurrentSample);
    MarkSheetEdited();
}
