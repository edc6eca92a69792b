// What shows the windows: an X server, a Wayland desktop, or something else.
#pragma once
#include <QGuiApplication>

// On a Wayland desktop no window places itself or takes the keyboard.
inline bool OnWayland() {
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

#if QT_CONFIG(xcb)
// nullptr: no X server shows the windows. The platform without a screen has the interface too, with nothing behind it.
inline const QNativeInterface::QX11Application* X11() {
    if (QGuiApplication::platformName() != QLatin1String("xcb")) return nullptr;
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
}
#endif
