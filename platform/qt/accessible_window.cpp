#include "platform/qt/accessible_window.h"

#include "platform/qt/look.h"
#include "platform/qt/menu_view.h"
#include "platform/qt/window_widget.h"

namespace {
// A window that is answered.
bool IsDialog(const Window& window) {
    return window.confirm || window.dismiss;
}
}  // namespace

AccessibleWindow::AccessibleWindow(WindowWidget& window)
    : AccessibleNode(&window, IsDialog(window.window()) ? QAccessible::Dialog : QAccessible::Window), window_(window) {}

QString AccessibleWindow::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? ToQt(window_.window().Title()) : QString();
}

// It has the keyboard itself while the keys are for the program alone.
QAccessible::State AccessibleWindow::state() const {
    QAccessible::State state = AccessibleNode::state();
    state.disabled = !window_.window().Enabled();
    state.focusable = true;
    return state;
}

QList<QAccessibleInterface*> AccessibleWindow::Children() const {
    QList<QAccessibleInterface*> found;
    if (!window_.Menus().Bar().isHidden()) found.append(QAccessible::queryAccessibleInterface(&window_.Menus().Bar()));
    return found + ControlsIn(window_.window(), nullptr);
}
