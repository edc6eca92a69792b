// The stratigraphic diagram in frmDiagram.Diagram: a column for each sheet row, from left to right; the samples from top to bottom.
#pragma once

class PictureBox;

// Draws the columns that the scroll bar has brought into view, in the style that is checked, as the persistent picture; then the line
// of the selected sample. ComputeDiagramData must have run. Raises "Division by zero" if the first and the last sample have the same
// depth.
void DrawDiagram();

float HorizontalScale();           // screen units a percent unit
void Whiten(PictureBox& picture);  // its whole scale area; what lay there is gone
