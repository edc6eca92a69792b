#include "platform/qt/scaled_slider.h"

#include <QPainter>
#include <QStyle>
#include <algorithm>

#include "platform/qt/look.h"

namespace {
constexpr int kLargest = 34;  // pixels

int Across(const QStyleOptionSlider& slider) {
    return std::min({slider.rect.width(), slider.rect.height(), kLargest});
}
}  // namespace

QRect SliderHandle(const QStyleOptionSlider& slider) {
    const bool lies = slider.orientation == Qt::Horizontal;
    const int size = Across(slider);
    const int way = (lies ? slider.rect.width() : slider.rect.height()) - size;
    const int along = QStyle::sliderPositionFromValue(slider.minimum, slider.maximum, slider.sliderPosition, way, slider.upsideDown);
    QRect handle(0, 0, size, size);
    handle.moveCenter(slider.rect.center());
    if (lies)
        handle.moveLeft(slider.rect.left() + along);
    else
        handle.moveTop(slider.rect.top() + along);
    return handle;
}

void PaintSlider(QPainter& painter, const QStyleOptionSlider& slider) {
    const bool lies = slider.orientation == Qt::Horizontal;
    const double half = Across(slider) / 2.0, thick = std::max(3.0, half / 3);
    const QRectF box = slider.rect;
    QRectF groove(0, 0, lies ? box.width() - 2 * half : thick, lies ? thick : box.height() - 2 * half);
    groove.moveCenter(box.center());
    const bool enabled = slider.state & QStyle::State_Enabled;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kOutline);
    painter.drawRoundedRect(groove, thick / 2, thick / 2);
    const double rim = std::max(1.5, half / 6);
    painter.setPen(QPen(enabled ? kAccent : kRestingWords, rim));
    painter.setBrush(slider.state & QStyle::State_Sunken ? kAccent : kButtonFace);
    painter.drawEllipse(QRectF(SliderHandle(slider)).adjusted(rim, rim, -rim, -rim));
}
