#include "platform/qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPixmap>

#include "platform/qt/control_widget.h"
#include "platform/qt/renderer.h"
#include "platform/qt/window_widget.h"

void QtClipboard::PutImage(const PictureBox& picture) {
    TheRenderer().Agree();  // the picture is to be as it stands now, in the middle of the event
    WindowWidget* const window = TheRenderer().WidgetOf(*picture.window);
    ControlWidget* const shown = window ? window->Find(picture) : nullptr;
    if (shown) QGuiApplication::clipboard()->setPixmap(shown->Widget()->grab());
}

void QtPopups::Open(MenuItem& menu) {
    TheRenderer().OpenPopupAfterEvent(menu);
}
