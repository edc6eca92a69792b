// What a change in a box of the main window does to the sheet, whoever made it.
#pragma once

void TakeSampleName();               // Text1[0]
void TakeTaxonName(int slot);        // Text1
void TakeCount(int slot);            // Text2: refuses what is no whole number, with a message
void NoteCountBeforeEdit(int slot);  // the mouse or Tab comes into Text2: what a refused count comes back to
void TakeNote();                     // Text4
void TakeParam(int p);               // Text5
void EndWithColon(int p);            // Label10: its caption ends in a colon, exactly one is added
void NameParamBox(int p);            // Text5's tool tip is the name in Label10, hidden while counting; if that is empty, the design's
void RenameSampleOnShow();           // the user types into Combo2
