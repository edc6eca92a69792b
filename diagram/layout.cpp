#include "diagram/layout.h"

#include <algorithm>
#include <initializer_list>

#include "diagram/cluster_tree.h"
#include "diagram/data/percentages.h"
#include "diagram/draw_diagram.h"
#include "diagram/sample_selector.h"
#include "diagram/taxon_names.h"
#include "platform/number.h"
#include "platform/services.h"
#include "platform/text.h"
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
    const bool narrow = frmDiagram.Diagram.Width() < kSmallestPicture, low = frmDiagram.Diagram.Height() < kSmallestPicture;
    if (narrow) ForceSize(kSmallestWidth, frmDiagram.Height());
    if (low) ForceSize(frmDiagram.Width(), kSmallestHeight);
}

int WidthOfTree() {
    return frmDiagram.ClusterTree.Visible() ? frmDiagram.ClusterTree.Width() : 0;
}

void PlacePictures() {
    PictureBox& diagram = frmDiagram.Diagram;
    PictureBox& tree = frmDiagram.ClusterTree;
    diagram.SetWidth(std::max(0, frmDiagram.Width() - frmDiagram.WidthMargin - WidthOfTree()));
    diagram.SetHeight(std::max(0, frmDiagram.Height() - frmDiagram.HeightMargin));
    frmDiagram.NameStrip.SetWidth(diagram.Width());
    tree.SetLeft(frmDiagram.Width() - kDiagramRightEdge - tree.Width());
    tree.SetHeight(diagram.Height());
}

// The two boxes stand before the button that shows them.
void PlaceLastMove() {
    const int moved = frmDiagram.Width() - kDiagramRightEdge - frmDiagram.LastMoveButton.Width() - frmDiagram.LastMoveButton.Left();
    for (Control* part : std::initializer_list<Control*>{&frmDiagram.LastMoveButton, &frmDiagram.MovedFrom, &frmDiagram.MovedTo})
        part->SetLeft(part->Left() + moved);
}

void PlaceBars() {
    frmDiagram.ColumnScroll.SetTop(frmDiagram.Height() - frmDiagram.ScrollMargin);
    frmDiagram.ColumnScroll.SetWidth(frmDiagram.Diagram.Width());
    frmDiagram.SampleSlider.SetHeight(std::max(0, frmDiagram.Height() - frmDiagram.SliderMargin));
    frmDiagram.Band.SetTop(frmDiagram.Height() - frmDiagram.BandMargin);
    frmDiagram.Band.SetWidth(frmDiagram.Width());
    frmDiagram.Status.SetTop(frmDiagram.Height() - frmDiagram.Status.Height());
    frmDiagram.Status.SetWidth(frmDiagram.Width());
}

// The width in view counts in units of the screen here, whatever the horizontal scale.
void SetScrollRangeOfPicture() {
    const double end = SetScrollRange(frmDiagram.Diagram.ScaleWidth());
    frmDiagram.ColumnScroll.SetEnabled(end > 0);
}
}  // namespace

// The pictures below give what a long name takes, up to half of their height.
void FitNameStrip() {
    constexpr int kLetter = 6 * kTwipsPerPixel, kAround = 10 * kTwipsPerPixel;
    std::size_t letters = 0;
    for (int slot = 1; slot <= kSlots; ++slot) letters = std::max(letters, Length(TaxonTable[slot][kTaxonName].Text()));
    const int wanted = static_cast<int>(std::min<std::size_t>(letters, kSlots)) * kLetter + kAround;
    const int more = std::clamp(wanted - kNamesHeight, 0, frmDiagram.Diagram.Height() / 2);
    frmDiagram.NameStrip.SetHeight(kNamesHeight + more);
    for (Control* below : std::initializer_list<Control*>{&frmDiagram.Diagram, &frmDiagram.ClusterTree, &frmDiagram.SampleSlider}) {
        below->SetTop(below->Top() + more);
        below->SetHeight(below->Height() - more);
    }
}

void MeasureMargins() {
    frmDiagram.WidthMargin = ToInt16(frmDiagram.Width() - frmDiagram.Diagram.Width());
    frmDiagram.HeightMargin = ToInt16(frmDiagram.Height() - frmDiagram.Diagram.Height());
    frmDiagram.ScrollMargin = ToInt16(frmDiagram.Height() - frmDiagram.ColumnScroll.Top());
    frmDiagram.SliderMargin = ToInt16(frmDiagram.Height() - frmDiagram.SampleSlider.Height());
    frmDiagram.FrameMargin = ToInt16(frmDiagram.Width() - frmDiagram.Selector.Left());
    frmDiagram.BandMargin = ToInt16(frmDiagram.Height() - frmDiagram.Band.Top());
}

void SetDiagramScale() {
    const int quarter = SampleCount / 4;
    double top = 10 - quarter, height = 2 * quarter + 10 * (SampleCount - 1);
    if (SampleCount == 2) top = height * 0.975;
    if (SampleCount == 3) top = height * 0.95 / 2;
    if (SampleCount == 2 || SampleCount == 3) height *= 1.05;
    frmDiagram.DiagramTop = static_cast<float>(top);
    frmDiagram.DiagramHeight = static_cast<float>(height);
    PictureBox& picture = frmDiagram.Diagram;
    picture.SetScaleLeft(0);
    picture.SetScaleWidth(kUnitsAcross);
    picture.SetScaleTop(frmDiagram.DiagramTop);
    picture.SetScaleHeight(SampleCount > 1 ? frmDiagram.DiagramHeight : 100);
}

void LayOutDiagram() {
    PlacePictures();
    PlaceBars();
    PlaceLastMove();
    frmDiagram.Selector.SetLeft(frmDiagram.Width() - frmDiagram.FrameMargin - WidthOfTree());
    frmDiagram.SampleArrows.SetLeft(frmDiagram.Selector.Left() - frmDiagram.SampleArrows.Width());
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

void ToggleTree() {
    const bool open = !frmDiagram.nmuConiss.Checked();
    frmDiagram.nmuConiss.SetChecked(open);
    frmDiagram.ClusterTree.SetVisible(open);
    LayOutDiagram();
    ClusterAgain();
    frmDiagram.ConissDrawn = open;
    MousePointer = kPointerDefault;
}
