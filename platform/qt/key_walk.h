// The keyboard in dialogs: Tab walks from control to control, the space bar and Enter press a button, arrows walk among options.
#pragma once
#include "platform/qt/model_view.h"
#include "platform/window.h"

class QKeyEvent;

bool IsWalk(const QKeyEvent& key);  // Tab or Shift+Tab
void WalkFocus(UserEvents& events, Window& window,
               const QKeyEvent& key);                        // in the order of the window's controls, past those that cannot be reached
bool IsAnswer(const QKeyEvent& key);                         // Enter or Esc
bool PressAnswer(UserEvents& events, const QKeyEvent& key);  // Enter or Esc in a dialog: PressAnswer of platform/user.h, as one event

bool PressFocused(UserEvents& events, Control& focus, const QKeyEvent& key);  // True: the key pressed something
