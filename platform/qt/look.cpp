#include "platform/qt/look.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "platform/window.h"

namespace {
constexpr double kPlainPoints = 9;

QFont FontOfSize(double points, double factor) {
    QFont font = QApplication::font();
    font.setPixelSize(std::max(1, static_cast<int>(points * kTwipsPerPoint * factor + 0.25)));
    return font;
}
}  // namespace

QColor ToQt(Colour colour) {
    return {colour.red, colour.green, colour.blue};
}

QString ToQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string FromQt(const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    return {utf8.constData(), static_cast<std::size_t>(utf8.size())};
}

QFont ControlFont(const Properties& control, double factor) {
    QFont font = FontOfSize(control.font_size, factor);
    font.setBold(control.bold);
    font.setItalic(control.italic);
    font.setUnderline(control.underline);
    return font;
}

QFont PlainFont(double factor) {
    return FontOfSize(kPlainPoints, factor);
}

QColor BoxGround(const Properties& control) {
    return !control.enabled && control.back == kWhite ? kRestingBox : ToQt(control.back);
}

void PaintOutline(QPainter& painter, const QRectF& box, const QColor& colour, double width, double radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, radius > 0);
    painter.setPen(QPen(colour, width));
    painter.setBrush(Qt::NoBrush);
    const double half = width / 2;
    painter.drawRoundedRect(box.adjusted(half, half, -half, -half), radius, radius);
    painter.restore();
}

void PaintButton(QPainter& painter, const QRectF& box, const QColor& face, const ButtonState& state, double radius) {
    const QColor in_use = state.down ? kAccent : state.hovered ? face.darker(105) : face;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(state.enabled ? in_use : ToQt(kFormColour));
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.restore();
    PaintOutline(painter, box, state.in_focus ? kAccent : kOutline, state.in_focus ? 2 : 1, radius);
}

void PaintArrowButton(QPainter& painter, const QRectF& box, bool enabled, double thickness) {
    painter.fillRect(box, kButtonFace);
    PaintOutline(painter, box, kOutline, 1, 0);
    const double half = box.width() * 0.18;
    const QPointF middle = box.center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(enabled ? QColor(Qt::black) : kRestingWords, thickness, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({middle + QPointF(-half, -half / 2), middle + QPointF(0, half / 2), middle + QPointF(half, -half / 2)}));
    painter.restore();
}

void PaintStepButton(QPainter& painter, const QRectF& box, Qt::ArrowType arrow, bool enabled, bool down) {
    painter.fillRect(box, down ? kAccent : kButtonFace);
    PaintOutline(painter, box, kOutline, 1, 0);
    const bool is_upright = arrow == Qt::UpArrow || arrow == Qt::DownArrow, is_back = arrow == Qt::UpArrow || arrow == Qt::LeftArrow;
    const double size = std::min(box.width(), box.height()) * 0.25, step = is_back ? -size : size;
    const QPointF along = is_upright ? QPointF(0, step) : QPointF(step, 0);
    const QPointF across = is_upright ? QPointF(size, 0) : QPointF(0, size);
    const QPointF middle = box.center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(down ? QColor(Qt::white) : enabled ? QColor(Qt::black) : kRestingWords);
    painter.drawPolygon(QPolygonF({middle + along * 0.6, middle - along * 0.6 + across, middle - along * 0.6 - across}));
    painter.restore();
}

// ---- Size ----

namespace {
constexpr double kComfortable = 0.97;  // of the screen, by the window that is worked in
constexpr int kFramePixels = 36;       // title bar and edges
constexpr int kMenuBarTwips = 330;

double LargestFactor(QSizeF room, QSize twips) {
    return std::min(room.width() / twips.width(), room.height() / (twips.height() + kMenuBarTwips));
}

double ComfortableFactor(const QScreen& screen, QSize twips) {
    const QSizeF room = screen.availableGeometry().size();
    return LargestFactor(room * kComfortable - QSizeF(0, kFramePixels), twips);
}
}  // namespace

double CommonFactor(const QScreen& screen) {
    QSize largest(1, 1);
    for (const Window* window : AllWindows()) {
        const QSize size(window->Width(), window->Height());
        if (window->covers_screen) continue;
        if (window->key_preview) return ComfortableFactor(screen, size);
        if (!window->resizable && size.width() * size.height() > largest.width() * largest.height()) largest = size;
    }
    return ComfortableFactor(screen, largest);
}

double FactorThatFits(QSize room, QSize twips, double wanted) {
    return std::min(wanted, LargestFactor(room, twips));
}

QRect Scaled(const Box& box, double factor) {
    const auto pixel = [factor](int twips) { return static_cast<int>(std::lround(twips * factor)); };
    const int left = pixel(box.left), top = pixel(box.top);
    return {left, top, pixel(box.left + box.width) - left, pixel(box.top + box.height) - top};
}
