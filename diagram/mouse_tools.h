// The mouse over the diagram and the tree: it takes hold of the line of the selected sample and drags it to another, with the right
// button and named samples the column goes along; it draws the guide lines and names the taxon under the pointer.
#pragma once
#include "platform/control.h"

// `source`: kOverDiagram or kOverTree; the mouse is in the scale of that picture.
void MoveOverPicture(Mouse mouse, int source);
void PressOnPicture(Mouse mouse, int source);
void ReleaseOnPicture();

void LeavePictures();     // the pointer is over what lies around them: a drag is dropped, nothing moves
void ShowMoveReadOuts();  // Command1: makes the two boxes visible
