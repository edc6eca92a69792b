// Where place i of the pad lies: 1..27 in the lower bands of the three blocks, 28..45 in the upper.
#pragma once
#include "platform/control.h"

struct PadCell {
    int column;  // 0..8, three a block
    int row;     // 0..4, the upper band has 0 and 1
};

PadCell CellOfPlace(int place);
constexpr int kCountBelowName = 270;  // twips
constexpr int kNumberBelowName = 550;

Box PadPlace(int place);  // the box of a name in the main window, in twips from the corner of the tab control
