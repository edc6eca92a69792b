#include "platform/qt/boxes.h"

#include <QApplication>
#include <QScreen>

#include "platform/qt/look.h"
#include "platform/qt/renderer.h"
#include "platform/qt/scaling.h"
#include "platform/qt/window_widget.h"

BoxOpens::BoxOpens(Renderer& renderer) {
    renderer.Agree();
    WindowWidget* const active = renderer.ActiveWidget();
    const bool is_seen = active && active->isVisible();
    if (is_seen) parent_ = active;
    font_ = PlainFont(is_seen ? active->Factor() : CommonFactor(*QApplication::primaryScreen()));
}
