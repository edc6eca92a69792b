#include "diagram/sample_marker.h"

#include "diagram/data/sample_position.h"
#include "platform/services.h"
#include "windows/diagram_window.h"

namespace {
constexpr Colour kBlue{0, 0, 255};
constexpr Colour kRed{255, 0, 0};
}  // namespace

void DrawSampleMarker() {
    frmDiagram.Diagram.ClearOverlay();
    frmDiagram.ClusterTree.ClearOverlay();
    if (MousePointer != kPointerSize && frmDiagram.SampleLine.Value() == 0) return;
    const Colour colour = frmDiagram.MovingSample ? kRed : kBlue;
    const double y = SamplePositions().Y(frmDiagram.SampleSlider.Value());
    const double end = frmDiagram.Diagram.ScaleWidth();  // in both pictures: it reaches past the edge of the tree
    frmDiagram.Diagram.Line(0, y, end, y, colour);
    if (frmDiagram.ClusterTree.Visible()) frmDiagram.ClusterTree.Line(0, y, end, y, colour);
}
