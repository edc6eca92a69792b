// The diagram's window from its opening to its end. It exists only beside a sheet of more than one sample.
#pragma once
#include "diagram/draw_diagram.h"

// Opens the diagram of the sheet as it is, in the size that the user gave it last; an open one comes to the front, goes back to its
// first column and is drawn anew. With one sample nothing happens. Raises "Division by zero" if both end samples have the same depth.
void LaunchDiagram();

void LaunchInStyle(const DiagramStyle& style);  // an item of the main window
void DrawInStyle(const DiagramStyle& style);    // an item of the diagram

void LoadDiagramWindow();
void EndDiagram();      // the window is being unloaded: its size is kept
void CloseDiagram();    // nothing if none is open
void RebuildDiagram();  // the sheet has got a sample: scale, list, selection, drawing and open tree follow; nothing if none is open

// Brings an open diagram up to date after any change of data, basis, style or scale; the tree beside it stays as it is. Nothing if no
// diagram is open.
void RedrawDiagram();

// The choice of the percent basis while a diagram is open.
void FollowBasis();                // the basis has changed: check marks, drawing and open tree; nothing if no diagram is open
void ChooseBasisItem(int option);  // an item of the diagram's menu, by the index of its option; chosen once more, it draws anew
