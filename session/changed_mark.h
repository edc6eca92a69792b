// The Save button is the mark of a changed sheet: it is on while the sheet holds what no file does. A save, an open and a fresh sheet
// take it off; the end of the program asks it before it offers to save. In Modify mode it is off like all that saves.
#pragma once

void MarkSheetChanged(bool changed);  // mnuSave has a state of its own: it stays on after a save
bool IsSheetChanged();

// After an edit that the file would hold: the button and mnuSave come on. In Modify mode they wait for its end, which brings them anyway.
void OfferSaving();
