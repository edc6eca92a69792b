// A picture as a display list: lines, curves, filled rectangles, circles and texts in a scale that the program sets. What has been made
// persistent stays while overlays come and go. Tests read the list; a platform paints it at the resolution of the screen.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/control.h"

struct PicturePoint {
    double x = 0, y = 0;
    bool operator==(const PicturePoint&) const = default;
};

struct DrawOperation {
    enum class Shape : std::uint8_t { Line, Rectangle, Circle, Text, Name, Curve };
    Shape shape = Shape::Line;
    bool italic = false;  // Name: reads upward, as the names of taxa do
    Colour rim;           // the colour of a line, a curve, a circle's rim, a text
    Colour fill;          // Rectangle and Circle alone
    // Fractions of the picture's width and height, from its upper left corner, so that what is drawn stays where it is when the scale
    // changes. Of a Name: pixels.
    double x1 = 0, y1 = 0;  // Curve: where it begins, at the height 0
    double x2 = 0, y2 = 0;  // Line and Rectangle; Curve: from point to point, and from one height to the next; Text: it ends before x2
    double radius = 0;      // Circle: a fraction of the width; round on the screen
    double size = 0;        // Text: points
    std::string text;
    std::vector<std::int16_t> heights;  // Curve alone: of its points
    PicturePoint PointOf(std::size_t i) const { return {x1 + static_cast<double>(i) * x2, y1 + heights[i] * y2}; }  // of a Curve
    bool operator==(const DrawOperation&) const = default;
};

constexpr int kNamedWidth = 7425;  // in twips: of a picture whose names stand where they say; in a wider one they spread with its columns

class PictureBox : public Control {
public:
    PictureBox() : Control(Kind::PictureBox) { now_.back = kWhite; }
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

    std::string image;  // a drawing that the program brings along, shown under all else; set once, with the design

    // Shown in the same way: a picture file in memory, JPEG or other. It stays when its window is unloaded.
    const std::string& ImageBytes() const { return image_bytes_; }
    void SetImageBytes(std::string bytes);

    double ScaleLeft() const { return scale_left_; }
    double ScaleTop() const { return scale_top_; }
    double ScaleWidth() const { return scale_width_; }    // negative: x grows to the left; 0 draws as 1
    double ScaleHeight() const { return scale_height_; }  // the same for y
    void SetScaleLeft(double left) { scale_left_ = left; }
    void SetScaleTop(double top) { scale_top_ = top; }
    void SetScaleWidth(double width) { scale_width_ = width; }
    void SetScaleHeight(double height) { scale_height_ = height; }

    // All in the scale of the moment.
    void Line(double x1, double y1, double x2, double y2, Colour colour);                 // both end points belong to it
    void Curve(double x, double step, std::vector<std::int16_t> heights, Colour colour);  // a point a step, of which there are two at least
    void FilledRectangle(double x1, double y1, double x2, double y2, Colour fill);  // over the whole scale area: drops what lies under it
    void Circle(double x, double y, double radius, Colour rim, Colour fill);  // the radius in units of x; as far up and down on the screen
    void Print(double x, double y, double points, const std::string& text, Colour colour);  // (x, y): its upper left corner
    // The same; where letters are so wide that it would reach this x, it begins further left.
    void PrintBefore(double end, double x, double y, double points, const std::string& text, Colour colour);
    void Name(double x, double y, bool italic, const std::string& text);  // in pixels

    void Clear();         // everything
    void ClearOverlay();  // what was drawn since Persist
    void Persist();       // all that is drawn now becomes the persistent image

    const std::vector<DrawOperation>& Operations() const { return operations_; }
    std::size_t PersistentCount() const { return persistent_; }  // the first so many operations are the persistent image
    bool IsPersistent() const { return is_persistent_; }
    int PersistentVersion() const { return version_; }  // grows whenever the persistent image changes

    Mouse AtCorner(MouseButton button) const override { return {button, scale_left_, scale_top_}; }
    void ReturnToDesign() override;

private:
    DrawOperation& Add(DrawOperation::Shape shape);
    double FractionX(double x) const { return (x - scale_left_) / Span(scale_width_); }
    double FractionY(double y) const { return (y - scale_top_) / Span(scale_height_); }
    static double Span(double length) { return length == 0 ? 1 : length; }

    double scale_left_ = 0, scale_top_ = 0, scale_width_ = 1, scale_height_ = 1;
    std::string image_bytes_;
    std::vector<DrawOperation> operations_;
    std::size_t persistent_ = 0;
    bool is_persistent_ = false;
    int version_ = 0;
};
