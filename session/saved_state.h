// What is saved and what is not: the mark of a changed sheet, and the state that Reset and Quit go back to.
//
// The Save button is the mark: it is on while the sheet holds what no file does. A save, an open and a fresh sheet take it off; the end
// of the program asks it before it offers to save. In Modify mode it is off like all that saves.
#pragma once

void MarkSheetChanged(bool changed);  // mnuSave has a state of its own: it stays on after a save
bool IsSheetChanged();

// After an edit that the file would hold: the button and mnuSave come on. In Modify mode they wait for its end, which brings them anyway.
void OfferSaving();

// Keeps counts, taxa and Additional info as the state that Reset and Quit go back to. Nothing while there is no sample.
void SnapshotSheet();

void SnapshotParams();      // of these, Additional info alone: names and values
void SnapshotParamNames();  // as the screen has them

void RestoreSheet();  // counts, names, flags and Additional info of the snapshot; samples that it does not hold keep their counts
