// Screen readers: what they find in the windows, and what they are told.
#pragma once
#include "platform/control.h"

// From here on readers find the program's windows, controls, tabs, lists and menus as they are meant. Before the first window is made.
void OpenToReaders();

// To a reader that listens, of a control that can be seen.
void TellValue(const Control& control);    // its value is another
void TellCaption(const Control& control);  // its caption is
void TellNames(const Control& control);    // the names of those that are called after it are
