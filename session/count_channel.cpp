#include "session/count_channel.h"

#include <cmath>

#include "platform/number.h"
#include "platform/text.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "windows/main_window.h"

void CountSlotInChannel() {
    if (Length(frmMain.Text0.Text()) == 1) return;  // a slot is never written with one digit
    AllTotal = 0;
    const int step = ReverseCount ? -1 : 1;
    const int slot = static_cast<int>(std::abs(frmMain.Text0.Number()));
    if (slot >= 1 && slot <= kSlots) ShowCountOf(slot, frmMain.Text2[slot].Number() + step);
    RecountTotals(CurrentSample);
    frmMain.Text0.SetText("");  // comes back here once more with no slot, and only recounts
    CopyCellsToCounts();
}
