// Where place i of the pad lies, in twips from the corner of the tab control.
#pragma once
#include "platform/control.h"

Box PadPlace(int place);  // 1..45: 1..27 in the lower bands of the three blocks, 28..45 in the upper; the box of a name
