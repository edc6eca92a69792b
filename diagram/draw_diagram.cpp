#include "diagram/draw_diagram.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "diagram/data/percentages.h"
#include "diagram/data/sample_position.h"
#include "diagram/sample_selector.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
constexpr Colour kGreen{0, 128, 0};
constexpr float kLeastDot = 0.005F;  // no dot up to here: half a percent
constexpr double kDotRadius = 1.5;
constexpr int kTickStep = 10;          // percent
constexpr int kFarthestTick = 40'000;  // beyond the reach of the scroll bar

// One column, its samples at the heights `y` ([sample], [0] unused).
class ColumnPainter {
public:
    ColumnPainter(int row, int scroll, const std::vector<float>& y)
        : row_(row), left_(static_cast<double>(ColumnOffset[row]) - scroll), scale_(HorizontalScale()), y_(y) {}

    void Paint(const DiagramStyle& style) const {
        if (style.bars) DrawBars();
        if (style.outline) DrawOutlineEnds();
        if (style.curve) DrawCurve();
        DrawBaseLine();
        if (style.dots) DrawDots();
        DrawTicks();
    }

private:
    double X(double percent) const { return (percent + left_) * scale_; }
    double ValueX(int sample) const { return X(100.0 * DiagramShares[row_][sample]); }
    bool HasData(int sample) const { return DiagramShares[0][sample] != 0; }

    void DrawBar(int sample) const { picture_.Line(X(0), y_[sample], ValueX(sample), y_[sample], kGreen); }

    void DrawBars() const {
        for (int sample = 1; sample <= SampleCount; ++sample) DrawBar(sample);
    }

    // No area is filled: the curve and its closed ends are the look of this style.
    void DrawOutlineEnds() const {
        for (int sample = 2; sample < SampleCount; ++sample)
            if (!HasData(sample)) {
                DrawBar(sample - 1);
                DrawBar(sample + 1);
            }
        if (!HasData(1)) DrawBar(2);
        DrawBar(1);
        DrawBar(SampleCount);
    }

    void DrawCurve() const {
        for (int sample = 2; sample <= SampleCount; ++sample)
            if (HasData(sample - 1) && HasData(sample))
                picture_.Line(ValueX(sample - 1), y_[sample - 1], ValueX(sample), y_[sample], kGreen);
    }

    void DrawBaseLine() const { picture_.Line(X(0), 10, X(0), 10.0 * SampleCount, kBlack); }

    void DrawDots() const {
        for (int sample = 1; sample <= SampleCount; ++sample)
            if (DiagramShares[row_][sample] > kLeastDot) picture_.Circle(ValueX(sample), y_[sample], kDotRadius, kGreen, kWhite);
    }

    // Along both edges; there are no numbers, the distance of the ticks is what the eye reads.
    void DrawTicks() const {
        const double top = picture_.ScaleTop(), height = picture_.ScaleHeight();
        const double width = static_cast<double>(ColumnOffset[row_ + 1]) - ColumnOffset[row_];
        int tick = 0;
        do {
            picture_.Line(X(tick), top, X(tick), top + height * 8 / 1000, kBlack);
            picture_.Line(X(tick), top + height * 988 / 1000, X(tick), top + height, kBlack);
            tick += kTickStep;
        } while (width > tick + 5 && tick < kFarthestTick);
    }

    int row_;
    double left_;
    float scale_;
    const std::vector<float>& y_;
    PictureBox& picture_ = frmDiagram.Diagram;
};

std::vector<float> SampleHeights() {
    const SamplePositions positions;
    std::vector<float> y(SampleCount + 1);
    for (int sample = 1; sample <= SampleCount; ++sample) y[sample] = positions.Y(sample);
    return y;
}

bool IsInView(int row, int scroll) {
    const double scale = HorizontalScale();
    const auto left = static_cast<float>((static_cast<double>(ColumnOffset[row]) - scroll) * scale);
    const auto right = static_cast<float>((static_cast<double>(ColumnOffset[row + 1]) - scroll) * scale);
    return right >= 0 && left < frmDiagram.Diagram.ScaleWidth();
}
}  // namespace

void CheckStyle(const DiagramStyle& style) {
    for (const DiagramStyle& each : kDiagramStyles) (frmDiagram.*each.item).SetChecked(&each == &style);
}

const DiagramStyle& StyleOnShow() {
    return *std::find_if(std::begin(kDiagramStyles), std::end(kDiagramStyles),
                         [](const DiagramStyle& style) { return (frmDiagram.*style.item).Checked(); });
}

float HorizontalScale() {
    return static_cast<float>(frmDiagram.HorizontalScale.Value() / 5.0);
}

void Whiten(PictureBox& picture) {
    picture.SetBackColor(kWhite);
    picture.Clear();  // a scale of no width has no area to be covered
    picture.FilledRectangle(picture.ScaleLeft(), picture.ScaleTop(), picture.ScaleLeft() + picture.ScaleWidth(),
                            picture.ScaleTop() + picture.ScaleHeight(), kWhite);
}

void DrawDiagram() {
    const Busy busy(kSlots);
    ShowDiagramShares();
    const std::vector<float> y = SampleHeights();
    const DiagramStyle& style = StyleOnShow();
    const int scroll = frmDiagram.ColumnScroll.Value();
    Whiten(frmDiagram.Diagram);
    for (int row = 1; row <= kSlots; ++row) {
        busy.Reach(row);
        if (IsInView(row, scroll)) ColumnPainter(row, scroll, y).Paint(style);
    }
    frmDiagram.Diagram.Persist();
    DrawSampleMarker();
}
