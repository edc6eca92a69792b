#include "figure/drawing/curves.h"

#include <algorithm>
#include <utility>

namespace {
constexpr double kDotRadius = 1.2;
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

double RightEnd(const ColumnPlace& place, const Curve& curve) {
    return place.left + curve.longest * curve.unit;
}

// From the axis: what a sample without neighbours has in place of a curve.
void DrawLoneValue(Pen& pen, const ColumnPlace& place, PagePoint value, Colour colour) {
    if (value.x > place.left) pen.Line({place.left, value.y}, value, kRim, colour);
}

void DrawLines(Pen& pen, const ColumnPlace& place, const Curve& curve, Colour colour) {
    for (const Points& stretch : Stretches(place, curve)) {
        Points line = CutOff(stretch, RightEnd(place, curve));
        if (line.size() == 1)
            DrawLoneValue(pen, place, line.front(), colour);
        else
            pen.Lines(std::move(line), kRim, colour);
    }
}

void DrawDots(Pen& pen, const ColumnPlace& place, const Curve& curve) {
    const double radius = std::clamp(place.axis.LeastDistance() / 2, 0.5, kDotRadius);
    for (const Points& stretch : Stretches(place, curve))
        for (const PagePoint point : stretch)
            if (point.x > place.left + kLeastDot * curve.unit) pen.Dot(point, radius, curve.colour);
}

Colour Darker(Colour colour) {
    const auto dark = [](unsigned char part) { return static_cast<unsigned char>(part * 6 / 10); };
    return {dark(colour.red), dark(colour.green), dark(colour.blue)};
}
}  // namespace

double BarHeight(const SampleAxis& axis) {
    constexpr double kHighest = 4, kPartOfDistance = 0.6;
    return std::min(kHighest, kPartOfDistance * axis.LeastDistance());
}

void DrawSilhouette(Pen& pen, const ColumnPlace& place, const Curve& curve) {
    for (const Points& stretch : Stretches(place, curve)) {
        Points rim = CutOff(stretch, RightEnd(place, curve));
        if (rim.size() == 1) {
            DrawLoneValue(pen, place, rim.front(), curve.colour);
            continue;
        }
        rim.insert(rim.begin(), {place.left, stretch.front().y});
        rim.push_back({place.left, stretch.back().y});
        pen.Area(std::move(rim), curve.colour);
    }
}

// All of a column as one area: a drawing program has them together, and a long core makes a far smaller file.
void DrawBars(Pen& pen, const ColumnPlace& place, const Curve& curve) {
    const double half = BarHeight(place.axis) / 2;
    std::vector<Outline> bars;
    for (const Points& stretch : Stretches(place, curve))
        for (const auto& [x, y] : stretch) {
            const double right = std::min(x, RightEnd(place, curve));
            if (x > place.left) bars.push_back({{place.left, y - half}, {right, y - half}, {right, y + half}, {place.left, y + half}});
        }
    pen.Areas(std::move(bars), curve.colour);
}

void DrawPresence(Pen& pen, const ColumnPlace& place, const Curve& curve) {
    const double radius = std::clamp(place.axis.LeastDistance() / 2, 0.5, kDotRadius);
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
