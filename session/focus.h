// Who has the keyboard. While counting it belongs to the counter: whatever the mouse does, the focus goes back to Text99.
//
// A dialog is a window like any other; all that keeps the user in it is that the main window is disabled meanwhile.
#pragma once
#include "platform/control.h"
#include "platform/window.h"

void RestFocus();                  // to Text99, in Modify mode too
void ReturnFocus();                // unless in Modify mode
void ReturnFocusOnMove();          // the same, and not while a diagram is open beside the window
void EnterBox(Mouse mouse);        // the mouse moves over a box: the pointer says whether it can be typed in
void EnterCountCell(Mouse mouse);  // the same over Text2, where a held right button leaves the focus alone

void HoldTab();  // a press on the tabs: while counting, the mouse cannot change the bank
void ReturnTab();

void OpenDialog(Window& dialog);
void CloseDialog(Window& dialog);  // unloads it and gives the main window back
void GiveMainWindowBack();         // enabled, in front
