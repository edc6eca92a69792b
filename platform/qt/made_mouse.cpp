#include "platform/qt/made_mouse.h"

#include <QApplication>
#include <QMouseEvent>

namespace {
Qt::MouseButton ToQt(MouseButton button) {
    switch (button) {
        case MouseButton::Left:
            return Qt::LeftButton;
        case MouseButton::Right:
            return Qt::RightButton;
        default:
            return Qt::NoButton;
    }
}
}  // namespace

void MadeMouse::Send(QWidget& widget, QEvent::Type type, MouseButton button, QPointF at) {
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick) held_ = ToQt(button);
    if (type == QEvent::MouseButtonRelease) held_ = Qt::NoButton;
    const QPointF everywhere = widget.mapToGlobal(at);
    QMouseEvent event(type, at, everywhere, everywhere, ToQt(button), held_, Qt::NoModifier, Qt::MouseEventSynthesizedByApplication);
    QApplication::sendEvent(&widget, &event);
}
