// The colour of the cell that was counted or undone last.
#pragma once
#include "platform/control.h"

constexpr Colour kPaleHighlight{255, 255, 135};  // of an undone count and of a moved taxon: paler than a count's

void PaintCell(int slot, Colour colour);      // name and count of a slot
void MoveHighlight(int slot, Colour colour);  // from LastSlot to `slot`, which becomes LastSlot
