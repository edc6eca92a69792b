#include "diagram/sample_selector.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "diagram/data/sample_position.h"
#include "diagram/sample_marker.h"
#include "session/state/sheet_state.h"
#include "windows/diagram_window.h"

namespace {
// In twips from the top of the diagram. A sample far off the scale takes the group out of sight, and no farther.
int SelectorHeight(int sample) {
    constexpr double kFarOff = 1'000'000;
    const PictureBox& picture = frmDiagram.Picture1;
    const double down = (SamplePositions().Y(sample) - picture.ScaleTop()) * (picture.Height() - 60) / picture.ScaleHeight() - 90;
    return static_cast<int>(std::lround(std::clamp(down, -kFarOff, kFarOff)));
}
}  // namespace

void PlaceSampleSelector() {
    const int sample = frmDiagram.Slider1.Value();
    const std::string name = SampleTable[2][sample].Text();
    frmDiagram.Check1.SetCaption(name);
    frmDiagram.Combo2.SetText(name);
    frmDiagram.Frame3.SetTop(frmDiagram.Picture1.Top() + SelectorHeight(sample) - 300);
    frmDiagram.UpDown1.SetTop(frmDiagram.Frame3.Top() + 240);
}

void TakeSelectedSample() {
    frmDiagram.SelectedSample = static_cast<std::int16_t>(frmDiagram.Slider1.Value());
    DrawSampleMarker();
    PlaceSampleSelector();
}

void SelectNextSample() {
    frmDiagram.Slider1.SetValue(frmDiagram.SelectedSample < SampleCount ? frmDiagram.SelectedSample + 1 : 1);
}

void SelectPreviousSample() {
    frmDiagram.Slider1.SetValue(frmDiagram.SelectedSample > 1 ? frmDiagram.SelectedSample - 1 : SampleCount);
}

void SelectChosenSample() {
    const std::string chosen = frmDiagram.Combo2.Text();
    int sample = frmDiagram.SelectedSample;
    for (int each = 1; each <= SampleCount; ++each)
        if (SampleTable[2][each] == std::string_view(chosen)) sample = each;
    frmDiagram.Slider1.SetValue(sample);
    frmDiagram.UpDown1.SetFocus();
}

void FillSampleList() {
    ComboBox& list = frmDiagram.Combo2;
    list.Clear();
    for (int sample = 1; sample <= SampleCount; ++sample) list.AddItem(SampleTable[2][sample].Text());
    list.SetText(SampleTable[2][frmDiagram.Slider1.Value()].Text());
}
