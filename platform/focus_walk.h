// Tab in a window: from control to control, past those that cannot be reached, and from the last on to the first.
#pragma once
#include <vector>

#include "platform/window.h"

// One step on or back, in the round of the control with the focus or else in the order of the window's controls.
// Where it ends in a text box of one line, the text is marked whole, so that what is typed replaces it.
void WalkFocus(Window& window, bool back);

// The control so many places behind `from`, round and round; the first or last if `from` is none of them; nullptr if there are none.
Control* NextInRound(const std::vector<Control*>& controls, const Control* from, int step);
