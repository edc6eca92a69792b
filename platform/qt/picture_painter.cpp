#include "platform/qt/picture_painter.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

#include "platform/qt/look.h"
#include "platform/qt/shown_text.h"

namespace {
constexpr double kPixelsPerPoint = static_cast<double>(kTwipsPerPoint) / kTwipsPerPixel;
constexpr double kFarOut = 100'000;  // pixels: nothing beyond is on any screen
constexpr double kLargestDot = 100;  // pixels
constexpr double kNameWidth = 5;     // of a letter on the average, in pixels of the program
constexpr double kBeforeEnd = 1.5;   // pixels of the program between a text and where it has to end
constexpr double kAboveName = 2;     // pixels of the program between a long name and the upper edge
constexpr double kNameSize = 10.5;   // pixels of the program: letters that stand in a row 12 high

// QRectF::intersects allows for rectangles of negative size, and took a quarter of the time of a repaint.
bool Meets(const QRectF& reach, const QRect& part) {
    return reach.left() <= part.right() + 1 && reach.right() >= part.left() && reach.top() <= part.bottom() + 1 &&
           reach.bottom() >= part.top();
}

class OperationPainter {
public:
    // Of upright and level lines only what lies in `part` is painted; all else is painted whole.
    OperationPainter(QPainter& painter, const PictureScale& scale, const QRect& part) : painter_(painter), scale_(scale), part_(part) {}
    ~OperationPainter() { PaintBars(); }
    OperationPainter(const OperationPainter&) = delete;
    OperationPainter& operator=(const OperationPainter&) = delete;

    // Instead of painting what cannot be seen.
    void PassOver() { follows_line_ = false; }

    void Paint(const DrawOperation& operation) {
        if (operation.shape != DrawOperation::Shape::Line && operation.shape != DrawOperation::Shape::Curve) {
            follows_line_ = false;
            PaintBars();
        }
        switch (operation.shape) {
            case DrawOperation::Shape::Line:
                return Line({operation.x1, operation.y1}, {operation.x2, operation.y2}, operation.rim);
            case DrawOperation::Shape::Curve:
                return Curve(operation);
            case DrawOperation::Shape::Rectangle:
                return Rectangle(operation);
            case DrawOperation::Shape::Circle:
                return Circle(operation);
            case DrawOperation::Shape::Text:
                return Text(operation);
            case DrawOperation::Shape::Name:
                return Name(operation);
        }
    }

private:
    double X(double fraction) const { return fraction * scale_.size.width(); }
    double Y(double fraction) const { return fraction * scale_.size.height(); }

    void UsePen(Colour colour) {
        if (pen_is_set_ && colour == pen_) return;
        painter_.setPen(QPen(ToQt(colour), scale_.line, Qt::SolidLine, Qt::FlatCap));
        pen_ = colour;
        pen_is_set_ = true;
    }

    // A line of an axis direction is a bar of whole pixels around the place; with its far end, so that lines that meet join.
    void Line(PicturePoint from, PicturePoint to, Colour colour) {
        const double x1 = X(from.x), y1 = Y(from.y), x2 = X(to.x), y2 = Y(to.y);
        if (IsCovered(QPointF(x1, y1), QPointF(x2, y2), colour)) return;
        if (std::abs(x1 - x2) < 0.5 || std::abs(y1 - y2) < 0.5) return Bar(x1, y1, x2, y2, colour);
        PaintBars();
        painter_.setRenderHint(QPainter::Antialiasing, true);
        UsePen(colour);
        painter_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
    }

    // A level stretch is one line.
    void Curve(const DrawOperation& curve) {
        const auto& heights = curve.heights;
        for (auto from = heights.begin(); from + 1 < heights.end();) {
            const auto level_end = std::find_if(from + 1, heights.end(), [height = *from](std::int16_t other) { return other != height; });
            const auto to = std::max(level_end - 1, from + 1);
            Line(curve.PointOf(from - heights.begin()), curve.PointOf(to - heights.begin()), curve.rim);
            from = to;
        }
    }

    void Bar(double x1, double y1, double x2, double y2, Colour colour) {
        const auto pixel = [](double place) { return static_cast<int>(std::floor(std::clamp(place, -kFarOut, kFarOut))); };
        const int thick = scale_.line, half = thick / 2;
        const QPoint from(pixel(std::min(x1, x2)) - half, pixel(std::min(y1, y2)) - half);
        const QPoint to(pixel(std::max(x1, x2)) - half + thick, pixel(std::max(y1, y2)) - half + thick);
        if (colour != bar_colour_) PaintBars();
        bar_colour_ = colour;
        if (const QRect bar = QRect(from, QSize(to.x() - from.x(), to.y() - from.y())) & part_; !bar.isEmpty()) bars_.push_back(bar);
    }

    // All at once: a painter takes longer to get ready for a bar than to fill it.
    void PaintBars() {
        if (bars_.empty()) return;
        painter_.setRenderHint(QPainter::Antialiasing, false);
        painter_.setPen(Qt::NoPen);
        pen_is_set_ = false;
        painter_.setBrush(ToQt(bar_colour_));
        painter_.drawRects(bars_.data(), static_cast<int>(bars_.size()));
        bars_.clear();
    }

    // A long curve has many lines a pixel: one that stays in the pixel where the last one of its colour ended shows nothing new.
    bool IsCovered(QPointF from, QPointF to, Colour colour) {
        const QPoint pixel(static_cast<int>(std::floor(to.x())), static_cast<int>(std::floor(to.y())));
        const bool inside = pixel == QPoint(static_cast<int>(std::floor(from.x())), static_cast<int>(std::floor(from.y())));
        if (inside && follows_line_ && pixel == line_end_ && colour == line_colour_) return true;
        follows_line_ = true;
        line_end_ = pixel;
        line_colour_ = colour;
        return false;
    }

    void Rectangle(const DrawOperation& rectangle) {
        const QPointF from(std::round(X(std::min(rectangle.x1, rectangle.x2))), std::round(Y(std::min(rectangle.y1, rectangle.y2))));
        const QPointF to(std::round(X(std::max(rectangle.x1, rectangle.x2))), std::round(Y(std::max(rectangle.y1, rectangle.y2))));
        painter_.fillRect(QRectF(from, QPointF(std::max(to.x(), from.x() + 1), std::max(to.y(), from.y() + 1))), ToQt(rectangle.fill));
    }

    // A diagram has thousands of dots of one size: the first is drawn, the others are copies of it, each in the middle of a pixel.
    void Circle(const DrawOperation& circle) {
        if (dot_.isNull() || circle.radius != dot_of_.radius || circle.rim != dot_of_.rim || circle.fill != dot_of_.fill) MakeDot(circle);
        const int half = dot_.width() / 2;
        painter_.drawImage(static_cast<int>(std::floor(std::clamp(X(circle.x1), -kFarOut, kFarOut))) - half,
                           static_cast<int>(std::floor(std::clamp(Y(circle.y1), -kFarOut, kFarOut))) - half, dot_);
    }

    void MakeDot(const DrawOperation& circle) {
        dot_of_ = circle;
        const double radius = std::min(X(circle.radius), kLargestDot);
        const int half = static_cast<int>(std::ceil(radius + scale_.line));
        dot_ = QImage(2 * half + 1, 2 * half + 1, QImage::Format_ARGB32_Premultiplied);
        dot_.fill(Qt::transparent);
        QPainter painter(&dot_);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(QPen(ToQt(circle.rim), scale_.line));
        painter.setBrush(ToQt(circle.fill));
        painter.drawEllipse(QPointF(half + 0.5, half + 0.5), radius, radius);
    }

    void Text(const DrawOperation& text) {
        UseFont(text.size * kPixelsPerPoint * scale_.pixel, false);
        UsePen(text.rim);
        const QString words = Brief(text.text);
        const QFontMetricsF metrics(painter_.font());
        const double end = X(text.x2) - kBeforeEnd * scale_.pixel, width = metrics.horizontalAdvance(words);
        const double left = std::max(std::min(X(text.x1), end - width), 0.0);
        painter_.save();
        painter_.translate(left, Y(text.y1));
        painter_.scale(std::clamp((end - left) / width, 0.0, 1.0), 1);  // never cut off
        painter_.drawText(QPointF(0, metrics.ascent()), words);
        painter_.restore();
    }

    // As narrow as the program's letters are, and narrower where a name is longer than the way to the upper edge.
    void Name(const DrawOperation& name) {
        UseFont(kNameSize * scale_.pixel, name.italic);
        UsePen(name.rim);
        const QFontMetricsF metrics(painter_.font());
        const QString words = Brief(name.text);
        const double room = (name.y1 - kAboveName) * scale_.pixel;
        const double narrow = std::min(kNameWidth * scale_.pixel / metrics.averageCharWidth(), room / metrics.horizontalAdvance(words));
        painter_.save();
        painter_.translate(name.x1 * scale_.pixel * scale_.spread, name.y1 * scale_.pixel);
        painter_.rotate(-90);
        painter_.scale(std::clamp(narrow, 0.0, 1.0), 1);
        painter_.drawText(QPointF(0, painter_.fontMetrics().ascent()), words);
        painter_.restore();
    }

    void UseFont(double pixels, bool italic) {
        const int size = std::max(1, static_cast<int>(std::lround(pixels)));
        if (size == font_size_ && italic == italic_) return;
        QFont font = QApplication::font();
        font.setPixelSize(size);
        font.setItalic(italic);
        painter_.setFont(font);
        font_size_ = size;
        italic_ = italic;
    }

    QPainter& painter_;
    const PictureScale& scale_;
    const QRect part_;
    Colour pen_;
    bool pen_is_set_ = false;
    QImage dot_;  // of the last circle
    DrawOperation dot_of_;
    std::vector<QRect> bars_;  // of one colour, to be painted before anything else
    Colour bar_colour_;
    bool follows_line_ = false;  // nothing else was drawn since the last line
    QPoint line_end_;            // of that line
    Colour line_colour_;
    int font_size_ = 0;
    bool italic_ = false;
};
}  // namespace

void PaintOperations(QPainter& painter, std::span<const DrawOperation> operations, const PictureScale& scale) {
    constexpr int kFar = static_cast<int>(kFarOut);
    OperationPainter one(painter, scale, QRect(QPoint(-kFar, -kFar), QPoint(kFar, kFar)));
    for (const DrawOperation& operation : operations) one.Paint(operation);
}

QImage CopyOf(const PictureBox& picture) {
    constexpr double kTimes = 3, kAcross = 1600, kPixelsPerMetre = 96 / 0.0254;
    const QSizeF of_program = QSizeF(picture.Width(), picture.Height()) / kTwipsPerPixel;
    const double times = std::max(kTimes, kAcross / of_program.width());
    QImage copy((of_program * times).toSize(), QImage::Format_RGB32);
    copy.fill(ToQt(picture.BackColor()));
    {
        QPainter painter(&copy);
        PaintOperations(painter, picture.Operations(),
                        {QSizeF(copy.size()), times, static_cast<double>(picture.Width()) / kNamedWidth, qRound(times)});
    }
    const int dots_per_metre = qRound(times * kPixelsPerMetre);  // a text program sets it as large as the window has it, not by its dots
    copy.setDotsPerMeterX(dots_per_metre);
    copy.setDotsPerMeterY(dots_per_metre);
    return copy;
}

// A slanted line that ends beyond the part is painted whole and then cut, for a painter that clips it gives its edges another shade.
void RepaintPart(QPixmap& picture, const QRect& part, Colour ground, std::span<const DrawOperation> operations, const PictureScale& scale) {
    if (part.isEmpty()) return;
    QPixmap fresh(picture.size());
    {
        QPainter painter(&fresh);
        painter.fillRect(part, ToQt(ground));
        OperationPainter one(painter, scale, part);
        for (const DrawOperation& operation : operations) Meets(Reach(operation, scale), part) ? one.Paint(operation) : one.PassOver();
    }
    const double density = picture.devicePixelRatio();
    picture.setDevicePixelRatio(1);
    QPainter(&picture).drawPixmap(part.topLeft(), fresh, part);
    picture.setDevicePixelRatio(density);
}

namespace {
// Opposite ones of the box in which the lines of it lie, or the middle of a circle.
std::pair<PicturePoint, PicturePoint> CornersOf(const DrawOperation& operation) {
    const PicturePoint from{operation.x1, operation.y1};
    if (operation.shape == DrawOperation::Shape::Circle) return {from, from};
    if (operation.shape != DrawOperation::Shape::Curve) return {from, {operation.x2, operation.y2}};
    const auto [low, high] = std::ranges::minmax(operation.heights);
    return {{from.x, from.y + low * operation.y2}, {operation.PointOf(operation.heights.size() - 1).x, from.y + high * operation.y2}};
}
}  // namespace

QRectF Reach(const DrawOperation& operation, const PictureScale& scale) {
    using Shape = DrawOperation::Shape;
    if (operation.shape == Shape::Text || operation.shape == Shape::Name) return {QPointF(), scale.size};
    const bool is_circle = operation.shape == Shape::Circle;
    const double margin = scale.line + 2 + (is_circle ? std::min(operation.radius * scale.size.width(), kLargestDot) : 0);
    const auto [from, to] = CornersOf(operation);
    const auto [left, right] = std::minmax(from.x, to.x);
    const auto [top, bottom] = std::minmax(from.y, to.y);
    const auto pixel = [](double place, double length) { return std::clamp(place * length, -kFarOut, kFarOut); };
    return {QPointF(pixel(left, scale.size.width()) - margin, pixel(top, scale.size.height()) - margin),
            QPointF(pixel(right, scale.size.width()) + margin, pixel(bottom, scale.size.height()) + margin)};
}

// Of the thousands of operations a counted grain changes those of one sample, and their order stays.
QRect ShownOperations::Show(std::span<const DrawOperation> now, const PictureScale& scale) {
    QRectF part;
    const std::size_t in_both = std::min(shown_.size(), now.size());
    for (std::size_t i = 0; i < in_both; ++i) {
        if (shown_[i] == now[i]) continue;
        part |= Reach(shown_[i], scale) | Reach(now[i], scale);
        shown_[i] = now[i];
    }
    for (const DrawOperation& gone : std::span(shown_).subspan(in_both)) part |= Reach(gone, scale);
    shown_.resize(in_both);
    for (const DrawOperation& come : now.subspan(in_both)) {
        part |= Reach(come, scale);
        shown_.push_back(come);
    }
    return (part & QRectF(QPointF(), scale.size)).toAlignedRect();
}
