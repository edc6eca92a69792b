#include "diagram/guide_lines.h"

#include "diagram/sample_selector.h"
#include "platform/services.h"
#include "windows/diagram_window.h"

namespace {
constexpr Colour kGuide{255, 50, 0};

void DrawVertical(float x, int source) {
    const double top = frmDiagram.Diagram.ScaleTop(), bottom = top + frmDiagram.Diagram.ScaleHeight();
    if (source == kOverDiagram) {
        const double place = static_cast<double>(x) - frmDiagram.ColumnScroll.Value();
        frmDiagram.Diagram.Line(place, top, place, bottom, kGuide);
    } else {
        frmDiagram.ClusterTree.Line(x, top, x, bottom, kGuide);
    }
}

void DrawHorizontal(float y) {
    for (PictureBox* picture : {&frmDiagram.Diagram, &frmDiagram.ClusterTree})
        picture->Line(picture->ScaleLeft(), y, picture->ScaleLeft() + picture->ScaleWidth(), y, kGuide);
}

void SetAll(bool checked, MenuItem& first, MenuItem& second, MenuItem& third) {
    for (MenuItem* item : {&first, &second, &third}) item->SetChecked(checked);
    DrawSampleMarker();
}
}  // namespace

void TargetLine(float x, float y, int source) {
    if (MousePointer != kPointerDefault) return;
    if (frmDiagram.mnuVertical.Checked()) DrawVertical(x, source);
    if (frmDiagram.mnuHorizontal.Checked()) DrawHorizontal(y);
}

void ToggleVerticalLine() {
    SetAll(!frmDiagram.mnuVertical.Checked(), frmDiagram.mnuVertical, frmDiagram.mnuVertical1, frmDiagram.mnuVertical2);
}

void ToggleHorizontalLine() {
    SetAll(!frmDiagram.mnuHorizontal.Checked(), frmDiagram.mnuHorizontal, frmDiagram.mnuHorizontal1, frmDiagram.mnuHorizontal2);
}
