// The two dialogs that edit what belongs to the sheet as a whole: the subtotals, and the names of the Additional info.
#pragma once

// frmSubtotal: each taxon belongs to either of the two subtotals, to both or to none, as its two flags in TaxonTable say. The totals of
// the main window follow every tick.
void FillSubtotalWindow();             // it loads: names, captions, ticks; the boxes stand as the key numbers say, in all three banks
void ShowChosenSubtotal();             // Option1: the ticks are those of the other subtotal
void StoreSubtotalFlag(int slot);      // Check1
void SetAllFlags(int flag);            // "Clear" 0, "Select all" 1: the chosen subtotal, every slot
void StoreSubtotalName(int subtotal);  // Text1[1..2]: shown at once wherever the main window speaks of it
void AcceptSubtotals();
void CancelSubtotals();  // or the frame: the flags of both are as at opening, the names keep their new texts

// frmParaName: a field of the Additional info gets another name, from the main window in Modify mode or from frmNext with the first
// sample. Names are kept without a colon; the main window shows each with one.
void RenameParamOfSheet(int p);       // Command7[p] of frmMain, p: 1..6
void RenameParamOfNextSample(int p);  // Command5[p] of frmNext: only that window shows the new name, the sheet takes it with the sample
void AcceptParamName();               // an empty name will do
void CancelParamName();               // or the frame
