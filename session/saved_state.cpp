#include "session/saved_state.h"

#include <algorithm>
#include <string>

#include "session/pad_cells.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "windows/main_window.h"

namespace {
void RestoreSlot(int slot) {
    ShowBold(slot, false);
    const int samples = std::min<int>(SampleCount, static_cast<int>(CountsAtOpen.size()) - 1);
    if (CurrentSample <= samples) ShowCountOf(slot, CountsAtOpen[CurrentSample][slot]);
    frmMain.TaxonNames[slot].SetText(TaxonTableAtOpen[slot][kTaxonName].Text());
    for (int field = kTaxonKey; field <= kTaxonName; ++field) TaxonTable[slot][field] = TaxonTableAtOpen[slot][field];
    for (int sample = 1; sample <= samples; ++sample) Counts[slot][sample] = CountsAtOpen[sample][slot];
}

void RestoreParams() {
    for (int p = 1; p <= kParams; ++p) {
        const std::string value = ParamValuesAtOpen[p][CurrentSample].Text();
        frmMain.ParamBoxes[p].SetText(value.empty() ? kEmpty : value);
        frmMain.ParamNames[p].SetCaption(ParamValuesAtOpen[p][0].Text());
    }
}
}  // namespace

void MarkSheetChanged(bool changed) {
    frmMain.SaveButton.SetEnabled(changed);
}

bool IsSheetChanged() {
    return frmMain.SaveButton.Enabled();
}

void OfferSaving() {
    if (AmendMode) return;
    MarkSheetChanged(true);
    frmMain.mnuSave.SetEnabled(true);
}

void SnapshotSheet() {
    if (SampleCount == 0) return;
    CountsAtOpen.resize(SampleCount + 1);
    for (int slot = 0; slot <= kSlots; ++slot)  // row by row of Counts: its columns lie too far apart to be read in turn
        for (int sample = 0; sample <= SampleCount; ++sample) CountsAtOpen[sample][slot] = Counts[slot][sample];
    for (int slot = 0; slot <= kSlots; ++slot)
        for (int field = kTaxonKey; field <= kTaxonName; ++field) TaxonTableAtOpen[slot][field] = TaxonTable[slot][field];
    SnapshotParams();
}

void SnapshotParams() {
    SnapshotParamNames();
    for (int p = 1; p <= kParams; ++p)
        for (int sample = 1; sample <= SampleCount; ++sample) ParamValuesAtOpen[p][sample] = ParamValues[p][sample];
}

void SnapshotParamNames() {
    for (int p = 1; p <= kParams; ++p) ParamValuesAtOpen[p][0] = frmMain.ParamNames[p].Caption();
}

void RestoreSheet() {
    for (int slot = 1; slot <= kSlots; ++slot) RestoreSlot(slot);
    RestoreParams();
    RecountTotals(CurrentSample);
}
