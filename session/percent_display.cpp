#include "session/percent_display.h"

#include "diagram/data/percentages.h"
#include "platform/failure.h"
#include "platform/number.h"
#include "platform/text.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "windows/main_window.h"

namespace {
std::int16_t WholeNumber(const TextBox& box) {
    return ToInteger(box.Number());
}

// A product of two Singles, rounded as one, ties to even.
double ToOneDecimal(float value) {
    return RoundHalfEven(value, 1);
}

void ParkCells() {
    for (int slot = 0; slot <= kSlots; ++slot) frmMain.HeldCounts[slot] = WholeNumber(frmMain.TaxonCounts[slot]);
    for (int i = 0; i < 3; ++i) frmMain.HeldTotals[i] = WholeNumber(frmMain.Totals[i]);
}

// The totals turn into percentages only where the sum kept for sample 136 is not 0, whatever sample is on show. On smaller sheets
// they stay as they are, and analysts are used to it.
void ShowTotalsInPercent() {
    constexpr int kTestedSample = kSlots + 1;
    if (Counts[0][kTestedSample] == 0) return;
    if (Counts[0][CurrentSample] == 0) throw Failure(kDivisionByZero);
    for (TextBox& total : frmMain.Totals) total.SetText(NumberText(RoundHalfEven(total.Number() * 100 / Counts[0][CurrentSample], 1)));
}
}  // namespace

void ShowPercentages() {
    if (!frmMain.KeysEnabled) return;  // by a second mouse button: what is parked are the counts
    ParkCells();
    const Shares shares = SamplePercentages(CurrentSample);
    frmMain.KeysEnabled = false;
    for (int slot = 1; slot <= kSlots; ++slot) {
        const float share = shares.fractions[slot];
        ShowCountOf(slot, share == kNoBasis ? 0 : ToOneDecimal(share * 100));
    }
    ShowTotalsInPercent();
}

void HidePercentages() {
    for (int slot = 0; slot <= kSlots; ++slot) ShowCountOf(slot, frmMain.HeldCounts[slot]);
    for (int i = 0; i < 3; ++i) frmMain.Totals[i].SetText(NumberText(frmMain.HeldTotals[i]));
    frmMain.KeysEnabled = true;
    frmMain.FocusRest.SetFocus();
}
