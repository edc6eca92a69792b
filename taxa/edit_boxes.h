// Typing in the boxes of the main window in Modify mode. The history gets its line once, when a box is left.
#pragma once
#include "platform/controls.h"

void EnterNameBox(int slot);  // Text1 gets the focus, loses it, is double-clicked; slot 0 is the sample's name
void LeaveNameBox(int slot);
void EnterCountBox(int slot);  // Text2
void LeaveCountBox(int slot);
void DoubleClickCell(int slot, bool in_count_box);
void EnterNote();  // Text4
void DoubleClickNote();
void EnterParam(int p);  // Text5

void PutCaretBehind(TextBox& box);  // its text, so that typing goes on there
void ClearDashes(TextBox& box);     // "---" gives way when the focus comes
void RestoreDashes(TextBox& box);   // and is back when an empty box is left
