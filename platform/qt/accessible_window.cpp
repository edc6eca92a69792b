#include "platform/qt/accessible_window.h"

#include "platform/qt/look.h"
#include "platform/qt/menu_view.h"

namespace {
// A window that is answered.
bool IsDialog(const Window& window) {
    return window.confirm || window.dismiss;
}
}  // namespace

AccessibleWindow::AccessibleWindow(WindowWidget& window)
    : AccessibleNode(window, IsDialog(window.window()) ? QAccessible::Dialog : QAccessible::Window, window) {}

QString AccessibleWindow::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? ToQt(Around().window().Title()) : QString();
}

// It has the keyboard itself while the keys are for the program alone.
QAccessible::State AccessibleWindow::state() const {
    QAccessible::State state = AccessibleNode::state();
    state.disabled = !Around().window().Enabled();
    state.focusable = true;
    return state;
}

QList<QAccessibleInterface*> AccessibleWindow::Children() const {
    QList<QAccessibleInterface*> found;
    if (!Around().Menus().Bar().isHidden()) found.append(QAccessible::queryAccessibleInterface(&Around().Menus().Bar()));
    return found + ControlsIn(Around(), nullptr);
}
