#include "session/totals.h"

#include <cmath>
#include <string>

#include "platform/number.h"
#include "platform/text.h"
#include "session/pad_cells.h"
#include "session/state/sheet_state.h"
#include "session/told.h"
#include "windows/main_window.h"

namespace {
void AddToTotals(int slot, double count) {
    for (const int flag : kSubtotalFlags)
        if (TaxonTable[slot][flag] == 1) TaxonTable[0][flag] = TaxonTable[0][flag].Number() + count;
    AllTotal = ToInt32(AllTotal + count);  // a whole number: rounded at each addition, not once at the end
}

// A name that was wiped out is an empty slot.
void RestoreBlankName(TextBox& box) {
    const std::string& name = box.Text();
    if (name == "-" || name == "--" || name.empty() || name == " " || name == "  ") box.SetText(kEmpty);
}
}  // namespace

void RecountTotals(std::int16_t sample) {
    TaxonTable[0][kTaxonSubtotal1] = TaxonTable[0][kTaxonSubtotal2] = 0;
    AllTotal = 0;
    for (int slot = 1; slot <= kSlots; ++slot) {
        AddToTotals(slot, ShownCount(slot));
        ShowBold(slot, Counts[slot][sample] != 0);
        RestoreBlankName(frmMain.TaxonNames[slot]);
    }
    frmMain.AllTotal.SetText(NumberText(AllTotal));  // its change enables Next sample and draws the curve
    frmMain.Subtotal1.SetText(TaxonTable[0][kTaxonSubtotal1].Text());
    frmMain.Subtotal2.SetText(TaxonTable[0][kTaxonSubtotal2].Text());
}

void CountSlotInChannel(TextBox& channel) {
    if (Length(channel.Text()) == 1) return;  // a slot is never written with one digit
    AllTotal = 0;
    const int step = ReverseCount ? -1 : 1;
    const int slot = static_cast<int>(std::abs(channel.Number()));
    if (slot >= 1 && slot <= kSlots) ShowCountOf(slot, ShownCount(slot) + step);
    RecountTotals(CurrentSample);
    channel.SetText("");  // comes back here once more with no slot, and only recounts
    CopyCellsToCounts();
}

void FollowChangedTotal(const TextBox& total) {
    if (total.Number() != 0) {
        frmMain.NextSampleButton.SetEnabled(true);
        frmMain.mnuNext.SetEnabled(true);
    }
    TotalChanged.Raise();
}

void ChooseBasis(int option) {
    for (int slot = 1; slot <= kSlots; ++slot)
        frmMain.TaxonNames[slot].SetUnderline(option != 0 && TaxonTable[slot][kSubtotalFlags[option - 1]] == 1);
    AlarmArmed = true;
    BasisChosen.Raise();
}

void EnableDiagramItems(bool enabled) {
    for (MenuItem* style : frmMain.DiagramItems()) style->SetEnabled(enabled);
}

void OfferDiagram() {
    if (SampleCount >= 2) EnableDiagramItems(true);
}

void ShowZeroTotals() {
    AllTotal = 0;
    TaxonTable[0][kTaxonSubtotal1] = TaxonTable[0][kTaxonSubtotal2] = 0;
    for (TextBox& total : frmMain.Totals) total.SetText("0");
}

void ShowSubtotalNames() {
    frmMain.NameSubtotals(SheetHeader[kHeaderSubtotal1].Text(), SheetHeader[kHeaderSubtotal2].Text());
}
