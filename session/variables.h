// All variables that scripts and tests go through: of the sheet, the diagram, the windows and the mouse.
#pragma once
#include "diagram/data/coniss.h"
#include "diagram/data/percentages.h"
#include "platform/controls.h"
#include "platform/services.h"
#include "session/state/sheet_state.h"
#include "windows/diagram_window.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"

// Calls visit(name, variable) for each that scripts read.
template <class Visit>
void ForEachVariable(Visit visit) {
    ForEachSheetVariable(visit);
    ForEachDiagramVariable(visit);
    ForEachClusterVariable(visit);
    frmMain.ForEachVariable(visit);
    frmDiagram.ForEachVariable(visit);
    frmInitial.ForEachVariable(visit);
    visit("MousePointer", MousePointer);
}

// The same for the others.
template <class Visit>
void ForEachHiddenVariable(Visit visit) {
    ForEachHiddenSheetVariable(visit);
    ForEachHiddenDiagramVariable(visit);
    visit("mouse_hold", mouse_hold);
}
