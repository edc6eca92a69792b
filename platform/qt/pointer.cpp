#include "platform/qt/pointer.h"

#include <QCursor>
#include <QGuiApplication>

#include "platform/services.h"

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
