// What boxes of several windows do alike.
#pragma once
#include "platform/controls.h"

void JoinGuardedKeys(TextBox& box);  // its keys are noted for the guard against quotation marks
