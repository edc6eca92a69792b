#include "platform/qt/held_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include "platform/qt/renderer.h"
#include "platform/qt/window_widget.h"

namespace {
// A key's number that no layout and no modifier changes.
quint32 PlaceOf(const QKeyEvent& key) {
#ifdef Q_OS_MACOS
    return key.nativeVirtualKey();
#else
    return key.nativeScanCode();
#endif
}

// A window of the program that has just been asked to the front has the keys from then on, wherever the desktop still sends them.
bool TakesKeys(const QWindow& window, const WindowWidget& front) {
    const auto* const own = dynamic_cast<const WindowWidget*>(QWidget::find(window.winId()));
    return window.isVisible() && (!own || (own->window().Enabled() && !front.WaitsForFront()));
}

// Who hears the keys that come to a window. An open menu or list takes those of the window it belongs to. What was on its way to one that
// has been closed or disabled is heard by the window in front.
QWindow* Receiver(const Renderer& renderer, QWindow& window) {
    if (const QWidget* const popup = QApplication::activePopupWidget()) return popup->windowHandle();
    const WindowWidget* const front = renderer.ActiveWidget();
    return !front || TakesKeys(window, *front) ? &window : front->windowHandle();
}
}  // namespace

// Windows, macOS and Wayland mark repeats. Under X11 the toolkit marks by the time, and wrongly: a key that is pressed again within the
// same millisecond is no repeat.
bool IsRepeat(const QKeyEvent& key) {
    return X11Repeats::IsRepeat(key).value_or(key.isAutoRepeat());
}

HeldKeys::HeldKeys(const Renderer& renderer) : renderer_(renderer) {
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
            return !Belongs(*static_cast<QKeyEvent*>(event), Receiver(renderer_, static_cast<QWindow&>(*watched)));
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
