#include "platform/qt/pointer.h"

#include <QCursor>
#include <QGuiApplication>

#include "platform/services.h"

namespace {
int shown = kPointerDefault;

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
    if (pointer == shown) return;
    if (shown != kPointerDefault) QGuiApplication::restoreOverrideCursor();
    if (pointer != kPointerDefault) QGuiApplication::setOverrideCursor(Shape(pointer));
    shown = pointer;
}
}  // namespace

void ShowPointer() {
    Show(MousePointer);
}

PlainPointer::PlainPointer() {
    Show(kPointerDefault);
}
