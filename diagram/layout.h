// The places of the diagram's controls in a window of any size.
#pragma once

void FitNameStrip();     // to the longest name of the sheet, before the margins are measured
void MeasureMargins();   // from the design of the window; once, before its size changes
void SetDiagramScale();  // DiagramTop, DiagramHeight and the scale of Picture1, by SampleCount
void LayOutDiagram();    // every control to its place in the window as it is, an open tree at its right

// The window has another size: layout, scroll range and drawing follow. A picture that was already too small gives a message, and the
// window is made larger first.
void ResizeDiagram();

void ToggleTree();  // nmuConiss: opens the panel of the tree at the right and clusters the samples, or closes it
