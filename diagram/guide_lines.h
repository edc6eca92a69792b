// Free lines that follow the pointer over the diagram and the tree: overlays, gone with the next move.
#pragma once

constexpr int kOverDiagram = 1;
constexpr int kOverTree = 2;

// Draws the guide lines that are checked at x, y, in the scale of the picture that the pointer is over (`source`, one of the two
// above); nothing while the pointer is on the line of the selected sample. Over the diagram the scroll value is taken off x.
void TargetLine(float x, float y, int source);

void ToggleVerticalLine();  // one setting, shown in three menus
void ToggleHorizontalLine();
