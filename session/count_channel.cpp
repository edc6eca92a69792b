#include "session/count_channel.h"

#include <cmath>

#include "platform/number.h"
#include "platform/text.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "windows/main_window.h"

void CountSlotInChannel() {
    if (Length(frmMain.CountChannel.Text()) == 1) return;  // a slot is never written with one digit
    AllTotal = 0;
    const int step = ReverseCount ? -1 : 1;
    const int slot = static_cast<int>(std::abs(frmMain.CountChannel.Number()));
    if (slot >= 1 && slot <= kSlots) ShowCountOf(slot, frmMain.TaxonCounts[slot].Number() + step);
    RecountTotals(CurrentSample);
    frmMain.CountChannel.SetText("");  // comes back here once more with no slot, and only recounts
    CopyCellsToCounts();
}
