// frmSubtotal: each taxon belongs to either of the two subtotals, to both or to none, as its two flags in TaxonTable say. The totals of
// the main window follow every tick.
#pragma once

void FillSubtotalWindow();            // it loads: names, captions, ticks; the boxes stand as the key numbers say, in all three banks
void ShowChosenSubtotal();            // Option1: the ticks are those of the other subtotal
void TakeSubtotalFlag(int slot);      // Check1
void SetAllFlags(int flag);           // "Clear" 0, "Select all" 1: the chosen subtotal, every slot
void TakeSubtotalName(int subtotal);  // Text1[1..2]: shown at once wherever the main window speaks of it
void AcceptSubtotals();
void CancelSubtotals();  // or the frame: the flags of both are as at opening, the names keep their new texts
