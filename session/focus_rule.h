// While counting, the keyboard belongs to the counter: whatever the mouse does, the focus goes back to Text99.
#pragma once
#include "platform/control.h"

void ReturnFocus();                // unless in Modify mode
void ReturnFocusOnMove();          // the same, and not while a diagram is open beside the window
void EnterBox(Mouse mouse);        // the mouse moves over a box: the pointer says whether it can be typed in
void EnterCountCell(Mouse mouse);  // the same over Text2, where a held right button leaves the focus alone

void HoldTab();  // a press on the tabs: while counting, the mouse cannot change the bank
void ReturnTab();
