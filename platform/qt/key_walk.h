// The keyboard in dialogs: Tab walks from control to control, the space bar and Enter press a button, arrows walk among options.
#pragma once
#include "platform/window.h"

class QKeyEvent;

bool IsWalk(const QKeyEvent& key);                     // Tab or Shift+Tab
void WalkFocus(Window& window, const QKeyEvent& key);  // in the order of the window's controls, past those that cannot be reached
// Enter or Esc in a dialog: presses its button for that, unless the focus is where the key has a meaning of its own. True: pressed.
bool PressAnswer(Window& window, const QKeyEvent& key);

bool PressFocused(Control& focus, const QKeyEvent& key);  // True: the key pressed something
