// What a screen reader says for a control.
#pragma once
#include <string>

#include "platform/control.h"

// Its accessible name, its own caption and the words of the control that names it, as they are now, in this order: "Set alarm: All total".
// A part without a letter or digit, such as the "---" of a cell that has no taxon, is left out, and so are blanks, dashes and the colon at
// an end. A label with nothing left in it counts as it was designed: "Subtotal-1".
std::string SpokenName(const Control& control);
