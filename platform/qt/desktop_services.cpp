#include "platform/qt/desktop_services.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPixmap>

#include "platform/qt/renderer.h"
#include "platform/qt/window_widget.h"

void QtClipboard::PutImage(const PictureBox& picture) {
    renderer_.Sync();  // the picture is to be as it stands now, in the middle of the event
    WindowWidget* const window = renderer_.WidgetOf(*picture.window);
    QWidget* const shown = window ? window->WidgetOf(picture) : nullptr;
    if (shown) QGuiApplication::clipboard()->setPixmap(shown->grab());
}

void QtPopups::Open(MenuItem& menu) {
    renderer_.OpenPopupAfterEvent(menu);
}
