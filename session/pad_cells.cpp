#include "session/pad_cells.h"

#include <algorithm>
#include <array>

#include "diagram/data/italics.h"
#include "diagram/data/percentages.h"
#include "platform/failure.h"
#include "platform/number.h"
#include "platform/text.h"
#include "session/focus.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

namespace {
bool IsGenus(const std::string& name) {
    return name != kEmpty && !IsFamily(name);
}

// Of a product of two floats, itself a float; ties to even.
double ToOneDecimal(float value) {
    return RoundHalfEven(value, 1);
}

// The totals turn into percentages only where the sum kept for sample 136 is not 0, whatever sample is on show: see
// docs/quirks.md.
void ShowTotalsInPercent() {
    constexpr int kTestedSample = kSlots + 1;
    if (Counts[0][kTestedSample] == 0) return;
    if (Counts[0][CurrentSample] == 0) throw Failure(kDivisionByZero);
    for (TextBox& total : frmMain.Totals) total.SetText(NumberText(RoundHalfEven(total.Number() * 100 / Counts[0][CurrentSample], 1)));
}
}  // namespace

double ShownCount(int slot) {
    return frmMain.TaxonCounts[slot].Number();
}

void ShowCountOf(int slot, double count) {
    frmMain.TaxonCounts[slot].SetText(NumberText(count));
}

void ShowCountsOfSample() {
    for (int slot = 1; slot <= kSlots; ++slot) ShowCountOf(slot, Counts[slot][CurrentSample]);
}

void EmptyCountCells() {
    for (int slot = 0; slot <= kSlots; ++slot) {
        ShowBold(slot, false);
        ShowCountOf(slot, 0);
        Counts[slot][CurrentSample] = 0;  // a column of an earlier sheet may have left its counts
    }
}

void CopyCellsToCounts() {
    for (int slot = 1; slot <= kSlots; ++slot) Counts[slot][CurrentSample] = ToInt32(ShownCount(slot));
}

void ShowPercentages() {
    if (!frmMain.KeysEnabled) return;  // by a second mouse button: the counts are held already
    frmMain.HoldNumbers();
    const Shares shares = SamplePercentages(CurrentSample);
    frmMain.KeysEnabled = false;
    for (int slot = 1; slot <= kSlots; ++slot) {
        const float share = shares.fractions[slot];
        ShowCountOf(slot, share == kNoBasis ? 0 : ToOneDecimal(share * 100));
    }
    ShowTotalsInPercent();
}

void HidePercentages() {
    frmMain.ShowHeldNumbers();
    frmMain.KeysEnabled = true;
    RestFocus();
}

void PaintCell(int slot, Colour colour) {
    for (TextBox* box : frmMain.Cell(slot)) box->SetBackColor(colour);
}

void MoveHighlight(int slot, Colour colour) {
    PaintCell(LastSlot, kWhite);
    PaintCell(slot, colour);
    LastSlot = static_cast<std::int16_t>(slot);
}

void ShowBold(int slot, bool bold) {
    for (TextBox* box : frmMain.Cell(slot)) box->SetBold(bold);
}

void ApplyItalics() {
    std::array<bool, kSlots + 1> italic{};
    for (int slot = 1; slot <= kSlots; ++slot) italic[slot] = frmMain.mnuItalic.Checked() && IsGenus(frmMain.TaxonNames[slot].Text());
    if (std::count(italic.begin(), italic.end(), true) == kSlots) italic.fill(false);
    for (int slot = 1; slot <= kSlots; ++slot) frmMain.TaxonNames[slot].SetItalic(italic[slot]);
}

void ToggleItalics(MenuItem& item) {
    item.SetChecked(!item.Checked());
    ApplyItalics();
}
