// The cells of the pad, a name and a count a slot: what the counts read, and how both look.
#pragma once
#include "platform/control.h"
#include "platform/controls.h"

double ShownCount(int slot);               // what its cell reads
void ShowCountOf(int slot, double count);  // puts the count into its cell
void ShowCountsOfSample();                 // all cells take the counts of CurrentSample
void EmptyCountCells();                    // all cells read 0 and lose their bold; the column of CurrentSample follows
void CopyCellsToCounts();                  // the other way round. Raises "Overflow" past 32 bits

// While the % button is held, the cells show percentages of the chosen total; at its release the counts come back.
void ShowPercentages();
void HidePercentages();

// The colour of the cell that was counted or undone last.
constexpr Colour kPaleHighlight{255, 255, 135};  // of an undone count and of a moved taxon: paler than a count's

void PaintCell(int slot, Colour colour);      // name and count of a slot
void MoveHighlight(int slot, Colour colour);  // from LastSlot to `slot`, which becomes LastSlot

void ShowBold(int slot, bool bold);  // name and count of a slot

// Genera in italics, families ("...ae", "...AE") and empty slots upright, where mnuItalic is checked; a list of 135 genera is upright.
void ApplyItalics();
void ToggleItalics(MenuItem& item);  // mnuItalic was clicked
