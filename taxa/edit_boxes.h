// The boxes of the main window: what typing in them in Modify mode does, and what a change in one of them does to the sheet, whoever
// made it.
#pragma once
#include "platform/controls.h"

// The focus comes and goes. The history gets its line once, when a box is left.
void EnterNameBox(int slot);  // Text1 gets the focus, loses it, is double-clicked; slot 0 is the sample's name
void LeaveNameBox(int slot);
void EnterCountBox(int slot);  // Text2
void LeaveCountBox(int slot);
void NoteCountBeforeEdit(int slot);  // the mouse or Tab comes into Text2: what a refused count comes back to
void DoubleClickCell(int slot, bool in_count_box);
void EnterNote();  // Text4
void DoubleClickNote();
void EnterParam(int p);  // Text5

// A text has changed.
void TakeSampleName();         // Text1[0]
void TakeTaxonName(int slot);  // Text1
void TakeCount(int slot);      // Text2: refuses what is no whole number, with a message
void TakeNote();               // Text4
void TakeParam(int p);         // Text5
void EndWithColon(int p);      // Label10: its caption ends in a colon, exactly one is added
void NameParamBox(int p);      // Text5's tool tip is the name in Label10, hidden while counting; if that is empty, the design's
void RenameSampleOnShow();     // the user types into Combo2

// Of boxes in any window.
void PutCaretBehind(TextBox& box);  // its text, so that typing goes on there
void ClearDashes(TextBox& box);     // "---" gives way when the focus comes
void RestoreDashes(TextBox& box);   // and is back when an empty box is left
