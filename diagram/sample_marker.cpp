#include "diagram/sample_marker.h"

#include "diagram/data/sample_position.h"
#include "platform/services.h"
#include "windows/diagram_window.h"

namespace {
constexpr Colour kBlue{0, 0, 255};
constexpr Colour kRed{255, 0, 0};
}  // namespace

void DrawSampleMarker() {
    frmDiagram.Picture1.ClearOverlay();
    frmDiagram.Picture2.ClearOverlay();
    if (MousePointer != kPointerSize && frmDiagram.Check1.Value() == 0) return;
    const Colour colour = frmDiagram.MovingSample ? kRed : kBlue;
    const double y = SamplePositions().Y(frmDiagram.Slider1.Value());
    const double end = frmDiagram.Picture1.ScaleWidth();  // in both pictures: it reaches past the edge of the tree
    frmDiagram.Picture1.Line(0, y, end, y, colour);
    if (frmDiagram.Picture2.Visible()) frmDiagram.Picture2.Line(0, y, end, y, colour);
}
