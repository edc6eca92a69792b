#include "platform/qt/x11_repeats.h"

#include <QKeyEvent>

#include "platform/qt/window_system.h"

#if QT_CONFIG(xcb)
#include <X11/XKBlib.h>
#include <xcb/xproto.h>
#undef KeyPress
#undef KeyRelease
#undef FocusOut

namespace {
// A bit of an X key event's state that the protocol leaves unused. The toolkit hands the state on, so the mark reaches the toolkit's own
// event by itself, in whatever order and however late that is delivered.
constexpr quint16 kMark = 0x8000;
constexpr int kFromAnotherClient = 0x80;  // of an event's type
}  // namespace

std::optional<bool> X11Repeats::IsRepeat(const QKeyEvent& key) {
    if (!X11()) return std::nullopt;
    return (key.nativeModifiers() & kMark) != 0;
}

X11Repeats::X11Repeats() {
    const auto* const x11 = X11();
    if (!x11) return;
    XkbSetDetectableAutoRepeat(x11->display(), True, nullptr);
    qApp->installNativeEventFilter(this);
}

X11Repeats::~X11Repeats() {
    qApp->removeNativeEventFilter(this);
}

void X11Repeats::Watch(QWindow& window) {
    const auto* const x11 = X11();
    XWindowAttributes now;
    if (x11 && XGetWindowAttributes(x11->display(), window.winId(), &now))
        XSelectInput(x11->display(), window.winId(), now.your_event_mask | KeymapStateMask);
}

bool X11Repeats::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    auto& event = *static_cast<xcb_generic_event_t*>(message);
    auto& key = reinterpret_cast<xcb_key_press_event_t&>(event);
    switch (event.response_type & ~kFromAnotherClient) {
        case XCB_KEY_PRESS:
            if (held_[key.detail]) key.state |= kMark;
            held_.set(key.detail);
            break;
        case XCB_KEY_RELEASE:
            held_.reset(key.detail);
            break;
        case XCB_FOCUS_OUT:
            held_.reset();
            break;
        case XCB_KEYMAP_NOTIFY: {
            const auto& keymap = reinterpret_cast<const xcb_keymap_notify_event_t&>(event);
            for (std::size_t code = 8; code < held_.size(); ++code) held_[code] = keymap.keys[code / 8 - 1] & (1u << code % 8);
            break;
        }
        default:
            break;
    }
    return false;
}
#else
std::optional<bool> X11Repeats::IsRepeat(const QKeyEvent&) {
    return std::nullopt;
}
X11Repeats::X11Repeats() = default;
X11Repeats::~X11Repeats() = default;
void X11Repeats::Watch(QWindow&) {}
bool X11Repeats::nativeEventFilter(const QByteArray&, void*, qintptr*) {
    return false;
}
#endif
