// The two subtotals are called by SheetHeader[12..13] wherever the main window speaks of them.
#pragma once

void ShowSubtotalNames();  // the labels of the totals and the entries of the percentage menu
