// The boxes of the main window: what typing in them in Modify mode does, and what a change in one of them does to the sheet, whoever
// made it. Each procedure is handed the box that it is about.
#pragma once
#include <string>

#include "platform/controls.h"

// The focus comes and goes. The history gets its line once, when a box is left.
void EnterNameBox(const TextBox& box);  // Text1 gets the focus, loses it; slot 0 is the sample's name
void LeaveNameBox(int slot, const TextBox& box);
void EnterCountBox(const TextBox& box);  // Text2
void LeaveCountBox(int slot, const TextBox& box);
void NoteCountBeforeEdit(const TextBox& box);        // the mouse or Tab comes into Text2: what a refused count comes back to
void DoubleClickCell(int slot, const TextBox& box);  // either of them
void EnterNote(TextBox& box);                        // Text4
void DoubleClickNote();
void EnterParam(TextBox& box);  // Text5

// A text has changed.
void StoreSampleName(TextBox& box);           // Text1[0]
void StoreTaxonName(int slot, TextBox& box);  // Text1
void StoreCount(int slot, TextBox& box);      // Text2: refuses what is no whole number, with a message
void StoreNote(TextBox& box);                 // Text4
void StoreParam(int p, TextBox& box);         // Text5
void EndWithColon(Label& label);              // Label10: its caption ends in a colon, exactly one is added
// Text5's tool tip is the name in Label10, which is hidden while counting; if that is empty, the design's.
void NameParamBox(TextBox& box, const Label& label);
void RenameSampleOnShow(const std::string& name);  // the user types into Combo2

void MarkSheetEdited();  // the sheet is not as it was opened or begun any more: mnuNew asks for a new one

// Of boxes in any window.
void PutCaretBehind(TextBox& box);  // its text, so that typing goes on there
void ClearDashes(TextBox& box);     // "---" gives way when the focus comes
void RestoreDashes(TextBox& box);   // and is back when an empty box is left
