#include "platform/picture_box.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

namespace {
// Whether two edges in fractions have the whole picture between them, but for the rounding of the scale.
bool CoversAll(double edge, double other) {
    constexpr double kSlack = 1e-6;
    return std::min(edge, other) <= kSlack && std::max(edge, other) >= 1 - kSlack;
}
}  // namespace

void PictureBox::SetImageBytes(std::string bytes) {
    image_bytes_ = std::move(bytes);
    ++version_;
    Tell(Property::Drawing);
}

// In place: a diagram of thousands of lines is drawn anew at each key.
DrawOperation& PictureBox::Add(DrawOperation::Shape shape) {
    DrawOperation& operation = operations_.emplace_back();
    operation.shape = shape;
    Tell(Property::Drawing);
    return operation;
}

void PictureBox::Line(double x1, double y1, double x2, double y2, Colour colour) {
    DrawOperation& line = Add(DrawOperation::Shape::Line);
    line.x1 = FractionX(x1);
    line.y1 = FractionY(y1);
    line.x2 = FractionX(x2);
    line.y2 = FractionY(y2);
    line.rim = colour;
}

// The heights as they are: a curve has as many as the sample has grains, and is drawn anew in another scale at each key.
void PictureBox::Curve(double x, double step, std::vector<std::int16_t> heights, Colour colour) {
    assert(heights.size() >= 2);
    DrawOperation& curve = Add(DrawOperation::Shape::Curve);
    curve.x1 = FractionX(x);
    curve.y1 = FractionY(0);
    curve.x2 = step / Span(scale_width_);
    curve.y2 = 1 / Span(scale_height_);
    curve.heights = std::move(heights);
    curve.rim = colour;
}

void PictureBox::FilledRectangle(double x1, double y1, double x2, double y2, Colour fill) {
    const double left = FractionX(x1), top = FractionY(y1), right = FractionX(x2), bottom = FractionY(y2);
    if (CoversAll(left, right) && CoversAll(top, bottom)) Clear();
    DrawOperation& rectangle = Add(DrawOperation::Shape::Rectangle);
    rectangle.x1 = left;
    rectangle.y1 = top;
    rectangle.x2 = right;
    rectangle.y2 = bottom;
    rectangle.fill = fill;
}

void PictureBox::Circle(double x, double y, double radius, Colour rim, Colour fill) {
    DrawOperation& circle = Add(DrawOperation::Shape::Circle);
    circle.x1 = FractionX(x);
    circle.y1 = FractionY(y);
    circle.radius = radius / std::abs(Span(scale_width_));
    circle.rim = rim;
    circle.fill = fill;
}

void PictureBox::Print(double x, double y, double points, const std::string& text, Colour colour) {
    PrintBefore(scale_left_ + Span(scale_width_), x, y, points, text, colour);
}

void PictureBox::PrintBefore(double end, double x, double y, double points, const std::string& text, Colour colour) {
    DrawOperation& print = Add(DrawOperation::Shape::Text);
    print.x1 = FractionX(x);
    print.y1 = FractionY(y);
    print.x2 = FractionX(end);
    print.size = points;
    print.rim = colour;
    print.text = text;
}

void PictureBox::Name(double x, double y, bool italic, const std::string& text) {
    DrawOperation& name = Add(DrawOperation::Shape::Name);
    name.x1 = x;
    name.y1 = y;
    name.italic = italic;
    name.text = text;
}

void PictureBox::Clear() {
    operations_.clear();
    persistent_ = 0;
    is_persistent_ = false;
    ++version_;
    Tell(Property::Drawing);
}

void PictureBox::ClearOverlay() {
    if (operations_.size() == persistent_) return;
    operations_.resize(persistent_);
    Tell(Property::Drawing);
}

void PictureBox::Persist() {
    persistent_ = operations_.size();
    is_persistent_ = true;
    ++version_;
    Tell(Property::Drawing);
}

void PictureBox::ReturnToDesign() {
    scale_left_ = scale_top_ = 0;
    scale_width_ = scale_height_ = 1;
    Clear();
    Control::ReturnToDesign();
}
