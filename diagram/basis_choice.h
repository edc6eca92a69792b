// The choice of the percent basis while a diagram is open.
#pragma once

void FollowBasis();                // frmMain.BasisOptions has changed: check marks, drawing and open tree; nothing if no diagram is open
void ChooseBasisItem(int option);  // an item of the diagram's menu, by the index of its option; chosen once more, it draws anew
