#include "session/highlight.h"

#include "session/state/sheet_state.h"
#include "windows/main_window.h"

void PaintCell(int slot, Colour colour) {
    frmMain.TaxonNames[slot].SetBackColor(colour);
    frmMain.TaxonCounts[slot].SetBackColor(colour);
}

void MoveHighlight(int slot, Colour colour) {
    PaintCell(LastSlot, kWhite);
    PaintCell(slot, colour);
    LastSlot = static_cast<std::int16_t>(slot);
}
