#include "platform/qt/boxes.h"

#include <QApplication>
#include <QScreen>

#include "platform/qt/look.h"
#include "platform/qt/renderer.h"
#include "platform/qt/scaling.h"
#include "platform/qt/window_widget.h"

BoxOpens::BoxOpens() {
    TheRenderer().Agree();
    WindowWidget* const active = TheRenderer().ActiveWidget();
    if (active && active->isVisible()) parent_ = active;
    font_ = PlainFont(parent_ ? active->Factor() : CommonFactor(*QApplication::primaryScreen()));
}
