// The X server that shows the windows.
#pragma once
#include <QGuiApplication>

#if QT_CONFIG(xcb)
// nullptr: another window system does. The platform without a screen has the interface too, with nothing behind it.
inline const QNativeInterface::QX11Application* X11() {
    if (QGuiApplication::platformName() != QLatin1String("xcb")) return nullptr;
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
}
#endif
