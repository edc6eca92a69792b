// The mouse over the diagram and the tree: it takes hold of the line of the selected sample and drags it to another, with the right
// button and named samples the column goes along; it draws the guide lines and names the taxon under the pointer.
#pragma once
#include "platform/control.h"

constexpr int kOverDiagram = 1;
constexpr int kOverTree = 2;

// `source`: one of the two above; the mouse is in the scale of that picture.
void MoveOverPicture(Mouse mouse, int source);
void PressOnPicture(Mouse mouse, int source);
void ReleaseOnPicture();

void LeavePictures();     // the pointer is over what lies around them: a drag is dropped, nothing moves
void ShowMoveReadOuts();  // Command1: makes the two boxes visible

// Guide lines are free lines that follow the pointer over the diagram and the tree: overlays, gone with the next move. Draws those that
// are checked at x, y, in the scale of the picture that the pointer is over (`source`); nothing while the pointer is on the line of the
// selected sample. Over the diagram the scroll value is taken off x.
void TargetLine(float x, float y, int source);

void ToggleVerticalLine();  // one setting, shown in three menus
void ToggleHorizontalLine();
