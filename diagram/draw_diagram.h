// The stratigraphic diagram in frmDiagram.Diagram: a column for each sheet row, from left to right; the samples from top to bottom.
#pragma once
#include "platform/controls.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

// The five styles of the diagram. The check marks in its menu are the state: exactly one item is checked.
struct DiagramStyle {
    MenuItem DiagramWindow::*item;
    MenuItem MainWindow::*main_item;  // its twin, which opens the diagram
    bool bars;                        // at all samples
    bool outline;                     // bars at the samples that close a stretch of the curve
    bool curve;                       // through the values, broken at a sample without data
    bool dots;                        // at values above half a percent
};

inline constexpr DiagramStyle kDiagramStyles[5] = {
    {&DiagramWindow::mnuBar, &MainWindow::mnuBar, true, false, false, false},
    {&DiagramWindow::mnuArea, &MainWindow::mnuArea, false, true, true, false},
    {&DiagramWindow::mnuDot, &MainWindow::mnuDot, false, false, false, true},
    {&DiagramWindow::mnuCurve, &MainWindow::mnuCurve, true, false, true, false},
    {&DiagramWindow::mnuDotCurve, &MainWindow::mnuDotCurve, false, false, true, true},
};

void CheckStyle(const DiagramStyle& style);  // and no other
const DiagramStyle& StyleOnShow();

// Draws the columns that the scroll bar has brought into view, in the style that is checked, as the persistent picture; then the line
// of the selected sample. ComputeDiagramData must have run. Raises "Division by zero" if the first and the last sample have the same
// depth.
void DrawDiagram();

float HorizontalScale();           // screen units a percent unit
void Whiten(PictureBox& picture);  // its whole scale area; what lay there is gone
