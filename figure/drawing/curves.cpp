#include "figure/drawing/curves.h"

#include <algorithm>
#include <utility>

namespace {
constexpr double kLeastDot = 0.5;  // percent: as in the counter, smaller values have no dot

using Points = std::vector<PagePoint>;

// Each stretch of samples that have values.
std::vector<Points> Stretches(const ColumnPlace& place, const Curve& curve) {
    std::vector<Points> stretches;
    bool open = false;
    for (std::size_t sample = 0; sample < curve.values.size(); ++sample) {
        const std::optional<double> value = curve.values[sample];
        if (value && !open) stretches.emplace_back();
        open = value.has_value();
        if (value) stretches.back().push_back({place.left + *value * curve.unit, place.axis.Y(sample)});
    }
    return stretches;
}

PagePoint Crossing(PagePoint a, PagePoint b, double x) {
    return {x, a.y + (x - a.x) / (b.x - a.x) * (b.y - a.y)};
}

// The points as far as they lie left of `right`; what lies beyond runs along it.
Points CutOff(const Points& points, double right) {
    Points cut;
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i > 0 && (points[i - 1].x > right) != (points[i].x > right)) cut.push_back(Crossing(points[i - 1], points[i], right));
        cut.push_back({std::min(points[i].x, right), points[i].y});
    }
    return cut;
}

// From the axis: what a sample without neighbours has in place of a curve.
void DrawLoneValue(Pen& pen, const ColumnPlace& place, PagePoint value, Colour colour) {
    if (value.x > place.left) pen.Line({place.left, value.y}, value, kRim, colour);
}

void FillFromAxis(Pen& pen, const ColumnPlace& place, Points rim, Colour colour) {
    if (rim.size() == 1) {
        DrawLoneValue(pen, place, rim.front(), colour);
        return;
    }
    const double top = rim.front().y, bottom = rim.back().y;
    rim.insert(rim.begin(), {place.left, top});
    rim.push_back({place.left, bottom});
    pen.Area(std::move(rim), colour);
}

void DrawLines(Pen& pen, const ColumnPlace& place, const Curve& curve, Colour colour) {
    for (const Points& stretch : Stretches(place, curve)) {
        if (stretch.size() == 1)
            DrawLoneValue(pen, place, stretch.front(), colour);
        else
            pen.Lines(stretch, kRim, colour);
    }
}

Colour Darker(Colour colour) {
    const auto dark = [](unsigned char part) { return static_cast<unsigned char>(part * 6 / 10); };
    return {dark(colour.red), dark(colour.green), dark(colour.blue)};
}

// Dots of neighbours hardly overlap.
double DotRadius(const SampleAxis& axis) {
    constexpr double kSmallest = 0.8, kLargest = 2;
    return std::clamp(axis.LeastDistance() / 2, kSmallest, kLargest);
}

void DrawDots(Pen& pen, const ColumnPlace& place, const Curve& curve) {
    for (const Points& stretch : Stretches(place, curve))
        for (const PagePoint point : stretch) {
            if (point.x <= place.left + kLeastDot * curve.unit) continue;
            pen.Line({place.left, point.y}, point, kHairline, Darker(curve.colour));
            pen.Dot(point, DotRadius(place.axis), Darker(curve.colour));
        }
}
}  // namespace

double BarHeight(const SampleAxis& axis) {
    constexpr double kHighest = 4, kPartOfDistance = 0.6;
    return std::min(kHighest, kPartOfDistance * axis.LeastDistance());
}

void DrawSilhouette(Pen& pen, const ColumnPlace& place, const Curve& curve) {
    for (const Points& stretch : Stretches(place, curve)) FillFromAxis(pen, place, stretch, curve.colour);
}

void DrawExaggerated(Pen& pen, const ColumnPlace& place, const Curve& curve) {
    for (const Points& stretch : Stretches(place, curve)) FillFromAxis(pen, place, CutOff(stretch, place.left + place.width), curve.colour);
}

// All of a column as one area: a drawing program has them together, and a long core makes a far smaller file.
void DrawBars(Pen& pen, const ColumnPlace& place, const Curve& curve) {
    const double half = BarHeight(place.axis) / 2;
    std::vector<Outline> bars;
    for (const Points& stretch : Stretches(place, curve))
        for (const auto& [x, y] : stretch)
            if (x > place.left) bars.push_back({{place.left, y - half}, {x, y - half}, {x, y + half}, {place.left, y + half}});
    pen.Areas(std::move(bars), curve.colour);
}

void DrawPresence(Pen& pen, const ColumnPlace& place, const Curve& curve) {
    const double radius = DotRadius(place.axis);
    for (std::size_t sample = 0; sample < curve.values.size(); ++sample)
        if (curve.values[sample].value_or(0) > 0) pen.Dot({place.left + place.width / 2, place.axis.Y(sample)}, radius, curve.colour);
}

void DrawCurve(Pen& pen, const ColumnPlace& place, const Curve& curve, CurveStyle style) {
    switch (style) {
        case CurveStyle::Bar:
            DrawBars(pen, place, curve);
            break;
        case CurveStyle::Curve:
            DrawLines(pen, place, curve, Darker(curve.colour));
            break;
        case CurveStyle::Silhouette:
            DrawSilhouette(pen, place, curve);
            DrawLines(pen, place, curve, Darker(curve.colour));
            break;
        case CurveStyle::Dot:
            DrawDots(pen, place, curve);
            break;
        case CurveStyle::BarAndCurve:
            DrawBars(pen, place, curve);
            DrawLines(pen, place, curve, Darker(curve.colour));
            break;
    }
}
