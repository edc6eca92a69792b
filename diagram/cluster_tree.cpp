#include "diagram/cluster_tree.h"

#include "diagram/data/coniss.h"
#include "diagram/draw_diagram.h"
#include "diagram/sample_selector.h"
#include "platform/text.h"
#include "session/export.h"
#include "session/sound.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
constexpr double kRoomForStem = 1.1;  // of the height of the root
constexpr int kMostTicks = 10'000;    // no screen has room for more

double RootHeight() {
    return MergeHeight[LastMerge()];
}

void SetScale() {
    PictureBox& tree = frmDiagram.ClusterTree;
    tree.SetScaleTop(frmDiagram.Diagram.ScaleTop());
    tree.SetScaleHeight(frmDiagram.Diagram.ScaleHeight());
    tree.SetScaleLeft(0);
    tree.SetScaleWidth(kRoomForStem * RootHeight());
}

void DrawStem() {
    const double y = (static_cast<double>(MergeUpper[LastMerge()]) + MergeLower[LastMerge()]) / 2;
    frmDiagram.ClusterTree.Line(0, y, kRoomForStem * RootHeight(), y, kBlack);
}

// All lines begin at the left edge. The white ground of a bracket wipes those of the brackets above it, and the usual tree is left.
void DrawBracket(int step) {
    PictureBox& tree = frmDiagram.ClusterTree;
    const double upper = MergeUpper[step], lower = MergeLower[step], height = MergeHeight[step];
    tree.FilledRectangle(0, upper, height, lower, kWhite);
    tree.Line(0, upper, height, upper, kBlack);
    tree.Line(height, upper, height, lower, kBlack);
    tree.Line(0, lower, height, lower, kBlack);
}

void DrawTicks() {
    PictureBox& tree = frmDiagram.ClusterTree;
    const double top = tree.ScaleTop(), height = tree.ScaleHeight();
    int x = 1;
    do {
        tree.Line(x, top, x, top + 0.008 * height, kBlack);
        tree.Line(x, top + height, x, top + 0.988 * height, kBlack);
        ++x;
    } while (1.2 * RootHeight() > x && x <= kMostTicks);
}

// As the shortest text of the float, which is shorter than that of the double it would become.
Any FloatCell(float number) {
    return Val(FloatText(number));
}

void WriteMerges(CellWriter& cells, const Busy& busy) {
    for (const char* heading : {"Depth from", "Depth to", "Sum square"}) cells.Write(heading);
    cells.EndRow();
    for (int step = SampleCount - 1; step >= 1; --step) {
        busy.Reach(SampleCount - step);
        for (const float number : {MergeUpper[step], MergeLower[step], MergeHeight[step]}) cells.Write(FloatCell(number));
        cells.EndRow();
    }
}
}  // namespace

void DrawClusterTree() {
    Whiten(frmDiagram.ClusterTree);
    SetScale();
    DrawStem();
    for (int step = LastMerge(); step >= 1; --step) DrawBracket(step);
    DrawTicks();
    frmDiagram.ClusterTree.Persist();
    DrawSampleMarker();
}

void ClusterAgain() {
    if (!frmDiagram.ClusterTree.Visible()) return;
    ComputeConiss();
    DrawClusterTree();
}

void SaveMergeList() {
    const Busy busy(kSlots);
    if (Export([&busy](CellWriter& cells) { WriteMerges(cells, busy); })) PlayIfOn(WaveSave);
}
