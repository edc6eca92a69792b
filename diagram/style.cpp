#include "diagram/style.h"

#include <algorithm>
#include <iterator>

#include "windows/diagram_window.h"
#include "windows/main_window.h"

const DiagramStyle kDiagramStyles[5] = {
    {&frmDiagram.mnuBar, &frmMain.mnuBar, true, false, false, false},
    {&frmDiagram.mnuArea, &frmMain.mnuArea, false, true, true, false},
    {&frmDiagram.mnuDot, &frmMain.mnuDot, false, false, false, true},
    {&frmDiagram.mnuCurve, &frmMain.mnuCurve, true, false, true, false},
    {&frmDiagram.mnuDotCurve, &frmMain.mnuDotCurve, false, false, true, true},
};

void CheckStyle(const DiagramStyle& style) {
    for (const DiagramStyle& each : kDiagramStyles) each.item->SetChecked(&each == &style);
}

const DiagramStyle& StyleOnShow() {
    return *std::find_if(std::begin(kDiagramStyles), std::end(kDiagramStyles),
                         [](const DiagramStyle& style) { return style.item->Checked(); });
}
