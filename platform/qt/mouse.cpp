#include "platform/qt/mouse.h"

#include <QApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>

#include "platform/services.h"

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

// ---- The pointer ----

namespace {
Qt::CursorShape Shape(int pointer) {
    switch (pointer) {
        case kPointerIBeam:
            return Qt::IBeamCursor;
        case kPointerSize:
            return Qt::SizeVerCursor;
        case kPointerBusy:
            return Qt::WaitCursor;
        default:
            return Qt::ArrowCursor;
    }
}

void Show(int pointer) {
    const QCursor* const shown = QGuiApplication::overrideCursor();
    if (pointer == kPointerDefault ? !shown : shown && shown->shape() == Shape(pointer)) return;
    if (shown) QGuiApplication::restoreOverrideCursor();
    if (pointer != kPointerDefault) QGuiApplication::setOverrideCursor(Shape(pointer));
}
}  // namespace

void ShowPointer() {
    Show(MousePointer);
}

PlainPointer::PlainPointer() {
    Show(kPointerDefault);
}
