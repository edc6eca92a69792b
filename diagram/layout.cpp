#include "diagram/layout.h"

#include <algorithm>

#include "diagram/cluster_tree.h"
#include "diagram/data/percentages.h"
#include "diagram/draw_diagram.h"
#include "diagram/sample_selector.h"
#include "diagram/taxon_names.h"
#include "platform/number.h"
#include "platform/services.h"
#include "session/state/sheet_state.h"
#include "windows/diagram_window.h"

namespace {
constexpr int kSmallestPicture = 500;  // twips
constexpr int kSmallestWidth = 5000;
constexpr int kSmallestHeight = 3500;

// By the program itself: the resize that runs goes on with it.
void ForceSize(int width, int height) {
    services.messages->Show({"Error", "Frame too small", Icon::None, Buttons::Ok});
    frmDiagram.DiagramResizeGuard = true;
    frmDiagram.SetSize(width, height);
    frmDiagram.DiagramResizeGuard = false;
}

void RefuseTooSmall() {
    const bool narrow = frmDiagram.Picture1.Width() < kSmallestPicture, low = frmDiagram.Picture1.Height() < kSmallestPicture;
    if (narrow) ForceSize(kSmallestWidth, frmDiagram.Height());
    if (low) ForceSize(frmDiagram.Width(), kSmallestHeight);
}

int WidthOfTree() {
    return frmDiagram.Picture2.Visible() ? frmDiagram.Picture2.Width() : 0;
}

void PlacePictures() {
    PictureBox& diagram = frmDiagram.Picture1;
    PictureBox& tree = frmDiagram.Picture2;
    diagram.SetWidth(std::max(0, frmDiagram.Width() - frmDiagram.WidthMargin - WidthOfTree()));
    diagram.SetHeight(std::max(0, frmDiagram.Height() - frmDiagram.HeightMargin));
    frmDiagram.Picture4.SetWidth(diagram.Width());
    tree.SetLeft(frmDiagram.Width() - kDiagramRightEdge - tree.Width());
    tree.SetHeight(diagram.Height());
}

void PlaceBars() {
    frmDiagram.HScroll1.SetTop(frmDiagram.Height() - frmDiagram.ScrollMargin);
    frmDiagram.HScroll1.SetWidth(frmDiagram.Picture1.Width());
    frmDiagram.Slider1.SetHeight(std::max(0, frmDiagram.Height() - frmDiagram.SliderMargin));
    frmDiagram.Picture3.SetTop(frmDiagram.Height() - frmDiagram.BandMargin);
    frmDiagram.Picture3.SetWidth(frmDiagram.Width());
    frmDiagram.StatusBar1.SetTop(frmDiagram.Height() - frmDiagram.StatusBar1.Height());
    frmDiagram.StatusBar1.SetWidth(frmDiagram.Width());
}

// The width in view counts in units of the screen here, whatever the horizontal scale.
void SetScrollRangeOfPicture() {
    const double end = SetScrollRange(frmDiagram.Picture1.ScaleWidth());
    frmDiagram.HScroll1.SetEnabled(end > 0);
}
}  // namespace

void MeasureMargins() {
    frmDiagram.WidthMargin = ToInteger(frmDiagram.Width() - frmDiagram.Picture1.Width());
    frmDiagram.HeightMargin = ToInteger(frmDiagram.Height() - frmDiagram.Picture1.Height());
    frmDiagram.ScrollMargin = ToInteger(frmDiagram.Height() - frmDiagram.HScroll1.Top());
    frmDiagram.SliderMargin = ToInteger(frmDiagram.Height() - frmDiagram.Slider1.Height());
    frmDiagram.FrameMargin = ToInteger(frmDiagram.Width() - frmDiagram.Frame3.Left());
    frmDiagram.BandMargin = ToInteger(frmDiagram.Height() - frmDiagram.Picture3.Top());
}

void SetDiagramScale() {
    const int quarter = SampleCount / 4;
    double top = 10 - quarter, height = 2 * quarter + 10 * (SampleCount - 1);
    if (SampleCount == 2) top = height * 0.975;
    if (SampleCount == 3) top = height * 0.95 / 2;
    if (SampleCount == 2 || SampleCount == 3) height *= 1.05;
    frmDiagram.DiagramTop = static_cast<float>(top);
    frmDiagram.DiagramHeight = static_cast<float>(height);
    PictureBox& picture = frmDiagram.Picture1;
    picture.SetScaleLeft(0);
    picture.SetScaleWidth(kUnitsAcross);
    picture.SetScaleTop(frmDiagram.DiagramTop);
    picture.SetScaleHeight(SampleCount > 1 ? frmDiagram.DiagramHeight : 100);
}

void LayOutDiagram() {
    PlacePictures();
    PlaceBars();
    frmDiagram.Frame3.SetLeft(frmDiagram.Width() - frmDiagram.FrameMargin - WidthOfTree());
    frmDiagram.UpDown1.SetLeft(frmDiagram.Frame3.Left() - frmDiagram.UpDown1.Width());
}

void ResizeDiagram() {
    if (frmDiagram.DiagramResizeGuard) return;
    RefuseTooSmall();
    LayOutDiagram();
    SetScrollRangeOfPicture();
    DrawDiagram();
    DrawTaxonNames();
    PlaceSampleSelector();
    if (frmDiagram.ConissDrawn) DrawClusterTree();
}
