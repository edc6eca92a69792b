#include "diagram/sample_selector.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "diagram/data/sample_position.h"
#include "platform/services.h"
#include "session/state/sheet_state.h"
#include "windows/diagram_window.h"

namespace {
constexpr Colour kBlue{0, 0, 255};
constexpr Colour kRed{255, 0, 0};

// In twips from the top of the diagram. A sample far off the scale takes the group out of sight, and no farther.
int SelectorHeight(int sample) {
    constexpr double kFarOff = 1'000'000;
    const PictureBox& picture = frmDiagram.Diagram;
    const double down = (SamplePositions().Y(sample) - picture.ScaleTop()) * (picture.Height() - 60) / picture.ScaleHeight() - 90;
    return static_cast<int>(std::lround(std::clamp(down, -kFarOff, kFarOff)));
}
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

void PlaceSampleSelector() {
    const int sample = frmDiagram.SampleSlider.Value();
    const std::string name = SampleTable[kSampleName][sample].Text();
    frmDiagram.SampleLine.SetCaption(name);
    frmDiagram.SampleList.SetText(name);
    frmDiagram.Selector.SetTop(frmDiagram.Diagram.Top() + SelectorHeight(sample) - 300);
    frmDiagram.SampleArrows.SetTop(frmDiagram.Selector.Top() + 240);
}

void FollowSampleSlider() {
    frmDiagram.SelectedSample = static_cast<std::int16_t>(frmDiagram.SampleSlider.Value());
    DrawSampleMarker();
    PlaceSampleSelector();
}

void SelectNextSample() {
    frmDiagram.SampleSlider.SetValue(frmDiagram.SelectedSample < SampleCount ? frmDiagram.SelectedSample + 1 : 1);
}

void SelectPreviousSample() {
    frmDiagram.SampleSlider.SetValue(frmDiagram.SelectedSample > 1 ? frmDiagram.SelectedSample - 1 : SampleCount);
}

void SelectChosenSample() {
    const std::string chosen = frmDiagram.SampleList.Text();
    int sample = frmDiagram.SelectedSample;
    for (int each = 1; each <= SampleCount; ++each)
        if (SampleTable[kSampleName][each] == std::string_view(chosen)) sample = each;
    frmDiagram.SampleSlider.SetValue(sample);
    frmDiagram.SampleArrows.SetFocus();
}

void FillSampleList() {
    ComboBox& list = frmDiagram.SampleList;
    list.Clear();
    for (int sample = 1; sample <= SampleCount; ++sample) list.AddItem(SampleTable[kSampleName][sample].Text());
    list.SetText(SampleTable[kSampleName][frmDiagram.SampleSlider.Value()].Text());
}
