// The five styles of the diagram. The check marks in its menu are the state: exactly one item is checked.
#pragma once
#include "platform/controls.h"

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
