#include "platform/qt/held_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace {
// A key's number that no layout and no modifier changes.
quint32 PlaceOf(const QKeyEvent& key) {
#ifdef Q_OS_MACOS
    return key.nativeVirtualKey();
#else
    return key.nativeScanCode();
#endif
}

// An open menu or list takes the keys of the window it belongs to.
QWindow* Receiver(QObject* window) {
    const QWidget* const popup = QApplication::activePopupWidget();
    return popup ? popup->windowHandle() : static_cast<QWindow*>(window);
}
}  // namespace

// Windows, macOS and Wayland mark repeats. Under X11 the toolkit marks by the time, and wrongly: a key that is pressed again within the
// same millisecond is no repeat.
bool IsRepeat(const QKeyEvent& key) {
    return X11Repeats::IsRepeat(key).value_or(key.isAutoRepeat());
}

HeldKeys::HeldKeys() {
    qApp->installEventFilter(this);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* window) {
        if (!window) pressed_in_.clear();
    });
}

void HeldKeys::HandOn(const QKeyEvent& key, QWindow* receiver) {
    pressed_in_[PlaceOf(key)] = receiver;
}

// A window hears of a key before any widget in it.
bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWindowType()) return false;
    switch (event->type()) {
        case QEvent::Show:
            x11_.Watch(static_cast<QWindow&>(*watched));
            return false;
        case QEvent::KeyPress:
            return !Belongs(*static_cast<QKeyEvent*>(event), Receiver(watched));
        case QEvent::KeyRelease: {
            const auto& key = *static_cast<QKeyEvent*>(event);
            if (IsRepeat(key)) return true;  // Wayland has one before each repeated press
            pressed_in_.remove(PlaceOf(key));
            return false;
        }
        default:
            return false;
    }
}

bool HeldKeys::Belongs(const QKeyEvent& press, QWindow* receiver) {
    if (!IsRepeat(press)) HandOn(press, receiver);
    return receiver && pressed_in_.value(PlaceOf(press)) == receiver;
}
