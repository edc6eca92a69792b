// Whether the windows are on a Wayland desktop: no window places itself or takes the keyboard there.
#pragma once
#include <QGuiApplication>

inline bool OnWayland() {
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}
