// The stratigraphic diagram in frmDiagram.Diagram: a column for each sheet row, from left to right; the samples from top to bottom.
#pragma once
#include "platform/controls.h"

class PictureBox;

// The five styles of the diagram. The check marks in its menu are the state: exactly one item is checked.
struct DiagramStyle {
    MenuItem* item;       // in the menu of the diagram
    MenuItem* main_item;  // its twin in the main window, which opens the diagram
    bool bars;            // at all samples
    bool outline;         // bars at the samples that close a stretch of the curve
    bool curve;           // through the values, broken at a sample without data
    bool dots;            // at values above half a percent
};

extern const DiagramStyle kDiagramStyles[5];

void CheckStyle(const DiagramStyle& style);  // and no other
const DiagramStyle& StyleOnShow();

// Draws the columns that the scroll bar has brought into view, in the style that is checked, as the persistent picture; then the line
// of the selected sample. ComputeDiagramData must have run. Raises "Division by zero" if the first and the last sample have the same
// depth.
void DrawDiagram();

float HorizontalScale();           // screen units a percent unit
void Whiten(PictureBox& picture);  // its whole scale area; what lay there is gone
