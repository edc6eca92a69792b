// A dialog is a window like any other; all that keeps the user in it is that the main window is disabled meanwhile.
#pragma once
#include "platform/window.h"

void OpenDialog(Window& dialog);
void CloseDialog(Window& dialog);  // unloads it and gives the main window back
void GiveMainWindowBack();         // enabled, in front
