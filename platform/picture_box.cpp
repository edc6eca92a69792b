#include "platform/picture_box.h"

#include <cmath>

namespace {
// Whether a rectangle in fractions covers the whole picture, but for the rounding of the scale.
bool CoversAll(const DrawOperation& operation) {
    constexpr double kSlack = 1e-6;
    return std::min(operation.x1, operation.x2) <= kSlack && std::max(operation.x1, operation.x2) >= 1 - kSlack &&
           std::min(operation.y1, operation.y2) <= kSlack && std::max(operation.y1, operation.y2) >= 1 - kSlack;
}
}  // namespace

void PictureBox::SetImageBytes(std::string bytes) {
    image_bytes_ = std::move(bytes);
    ++version_;
    Tell(Property::Drawing);
}

void PictureBox::Add(DrawOperation operation) {
    operations_.push_back(std::move(operation));
    Tell(Property::Drawing);
}

void PictureBox::Line(double x1, double y1, double x2, double y2, Colour colour) {
    DrawOperation line;
    line.shape = DrawOperation::Shape::Line;
    line.x1 = FractionX(x1);
    line.y1 = FractionY(y1);
    line.x2 = FractionX(x2);
    line.y2 = FractionY(y2);
    line.rim = colour;
    Add(std::move(line));
}

void PictureBox::FilledRectangle(double x1, double y1, double x2, double y2, Colour fill) {
    DrawOperation rectangle;
    rectangle.shape = DrawOperation::Shape::Rectangle;
    rectangle.x1 = FractionX(x1);
    rectangle.y1 = FractionY(y1);
    rectangle.x2 = FractionX(x2);
    rectangle.y2 = FractionY(y2);
    rectangle.fill = fill;
    if (CoversAll(rectangle)) Clear();
    Add(std::move(rectangle));
}

void PictureBox::Circle(double x, double y, double radius, Colour rim, Colour fill) {
    DrawOperation circle;
    circle.shape = DrawOperation::Shape::Circle;
    circle.x1 = FractionX(x);
    circle.y1 = FractionY(y);
    circle.radius = radius / std::abs(Span(scale_width_));
    circle.rim = rim;
    circle.fill = fill;
    Add(std::move(circle));
}

void PictureBox::Print(double x, double y, double points, const std::string& text, Colour colour) {
    DrawOperation print;
    print.shape = DrawOperation::Shape::Text;
    print.x1 = FractionX(x);
    print.y1 = FractionY(y);
    print.size = points;
    print.rim = colour;
    print.text = text;
    Add(std::move(print));
}

void PictureBox::Name(double x, double y, bool italic, const std::string& text) {
    DrawOperation name;
    name.shape = DrawOperation::Shape::Name;
    name.x1 = x;
    name.y1 = y;
    name.italic = italic;
    name.text = text;
    Add(std::move(name));
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
