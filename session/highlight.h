// The colour of the cell that was counted or undone last.
#pragma once
#include "platform/colour.h"

void PaintCell(int slot, Colour colour);      // name and count of a slot
void MoveHighlight(int slot, Colour colour);  // from LastSlot to `slot`, which becomes LastSlot
