#include "diagram/mouse_tools.h"

#include <algorithm>
#include <string>

#include "diagram/data/percentages.h"
#include "diagram/data/sample_position.h"
#include "diagram/draw_diagram.h"
#include "diagram/move_sample_column.h"
#include "diagram/sample_selector.h"
#include "platform/number.h"
#include "platform/services.h"
#include "platform/user.h"
#include "session/state/sheet_state.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

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

void FillReadOuts() {
    frmDiagram.MovedFrom.SetText(std::to_string(MoveFrom));
    frmDiagram.MovedTo.SetText(std::to_string(MoveTo));
}

// The scroll value in `x` has not been scaled, and the last name is that of slot 135 whatever its row: on a scrolled or scaled diagram
// the tip is off (docs/quirks.md).
void NameTaxonAt(float x) {
    if (!frmDiagram.mnuTaxaName.Checked()) {
        frmDiagram.Diagram.SetToolTip("");
        return;
    }
    const double scale = HorizontalScale();
    for (int row = 1; row <= kSlots; ++row)
        if (scale * ColumnOffset[row] < x && scale * ColumnOffset[row + 1] > x)
            frmDiagram.Diagram.SetToolTip(TaxonTable[KeyIndex[row]][kTaxonName].Text());
    if (x > ColumnOffset[kSlots]) frmDiagram.Diagram.SetToolTip(TaxonTable[kSlots][kTaxonName].Text());
}

bool IsOnSampleLine(float y) {
    const double down = static_cast<double>(y) - 10 * RoundHalfEven(SamplePositions().Row(frmDiagram.SampleSlider.Value()), 0);
    return static_cast<float>(down * down) < frmDiagram.Diagram.ScaleHeight() * 10 / 50;
}

int NearestDepth(float y) {
    const SamplePositions positions;
    int nearest = frmDiagram.SampleSlider.Value();
    float best = 99999.0F;
    for (int sample = 1; sample <= SampleCount; ++sample) {
        const double away = y / 10.0 - positions.Row(sample);
        const auto distance = static_cast<float>(away * away);
        if (distance < best) {
            best = distance;
            nearest = sample;
        }
    }
    return nearest;
}

int NearestRow(float y) {
    return static_cast<int>(RoundHalfEven(std::clamp(y / 10.0, 1.0, static_cast<double>(SampleCount)), 0));
}

void DragLine(float y) {
    frmDiagram.SampleSlider.SetValue(SampleNamesAreText ? NearestRow(y) : NearestDepth(y));  // its change moves line and group
    if (SampleNamesAreText) MoveTo = static_cast<std::int16_t>(frmDiagram.SampleSlider.Value());
}

void BeginMove() {
    frmDiagram.MovingSample = true;
    MoveFrom = MoveTo = static_cast<std::int16_t>(frmDiagram.SampleSlider.Value());
    DrawSampleMarker();  // it turns red
}

void PressRightButton(int source) {
    if (SampleNamesAreText && MousePointer == kPointerSize) {
        BeginMove();
    } else if (!frmDiagram.SliderDragging) {
        MousePointer = kPointerDefault;
        OpenPopup(source == kOverDiagram ? frmDiagram.RB1 : frmDiagram.RBConiss);
    }
}

void EndDrag() {
    frmDiagram.SliderDragging = frmDiagram.MovingSample = false;
    MousePointer = kPointerDefault;
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

void MoveOverPicture(Mouse mouse, int source) {
    const auto x = static_cast<float>(mouse.x + frmDiagram.ColumnScroll.Value());
    const auto y = static_cast<float>(mouse.y);
    NameTaxonAt(x);
    if (IsOnSampleLine(y))
        MousePointer = kPointerSize;
    else if (!frmDiagram.SliderDragging)
        MousePointer = kPointerDefault;
    if (frmDiagram.SliderDragging) DragLine(y);
    DrawSampleMarker();
    TargetLine(x, y, source);
    FillReadOuts();
}

void PressOnPicture(Mouse mouse, int source) {
    DrawSampleMarker();
    TargetLine(static_cast<float>(mouse.x), static_cast<float>(mouse.y), source);
    if (mouse.button == MouseButton::Right) PressRightButton(source);
    if (MousePointer == kPointerSize) frmDiagram.SliderDragging = true;
    FillReadOuts();
}

void ReleaseOnPicture() {
    if (frmDiagram.MovingSample) MoveSampleColumn();
    EndDrag();
    frmMain.Progress.SetVisible(false);
    FollowSampleSlider();
    FillReadOuts();
}

void LeavePictures() {
    EndDrag();
    if (frmDiagram.SampleLine.Value() != 0) PlaceSampleSelector();
}

void ShowMoveReadOuts() {
    frmDiagram.MovedFrom.SetVisible(true);
    frmDiagram.MovedTo.SetVisible(true);
    FillReadOuts();
}
