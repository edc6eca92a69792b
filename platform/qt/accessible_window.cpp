#include "platform/qt/accessible_window.h"

#include <QMenu>
#include <QMenuBar>

#include "platform/control.h"
#include "platform/qt/accessible_control.h"
#include "platform/qt/look.h"
#include "platform/qt/menu_view.h"
#include "platform/user.h"

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

QWidget* AccessibleMenuItem::Place() const {
    for (QObject* const place : action_.associatedObjects())
        if (place->isWidgetType()) return static_cast<QWidget*>(place);
    return nullptr;
}

QAccessibleInterface* AccessibleMenuItem::parent() const {
    return QAccessible::queryAccessibleInterface(Place());
}

QAccessibleInterface* AccessibleMenuItem::child(int place) const {
    return place == 0 && action_.menu() ? QAccessible::queryAccessibleInterface(action_.menu()) : nullptr;
}

int AccessibleMenuItem::childCount() const {
    return action_.menu() ? 1 : 0;
}

int AccessibleMenuItem::indexOfChild(const QAccessibleInterface* inner) const {
    return inner && inner == child(0) ? 0 : -1;
}

QAccessible::Role AccessibleMenuItem::role() const {
    return action_.isSeparator() ? QAccessible::Separator : QAccessible::MenuItem;
}

QString AccessibleMenuItem::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Name) return ToQt(SpokenName(item_));
    return {};
}

QAccessible::State AccessibleMenuItem::state() const {
    const QWidget* const place = Place();
    QAccessible::State state;
    state.invisible = !place || !place->isVisible() || !action_.isVisible();
    state.disabled = !action_.isEnabled() || !item_.window->Enabled();
    state.checkable = state.checked = item_.Checked();
    state.hasPopup = action_.menu() != nullptr;
    state.focusable = !action_.isSeparator();
    if (const auto* const menu = qobject_cast<const QMenu*>(place)) state.focused = menu->activeAction() == &action_;
    return state;
}

QRect AccessibleMenuItem::rect() const {
    QWidget* const place = Place();
    if (!place || !place->isVisible()) return {};
    const auto* const menu = qobject_cast<const QMenu*>(place);
    const QRect within = menu ? menu->actionGeometry(&action_) : static_cast<QMenuBar*>(place)->actionGeometry(&action_);
    return within.translated(place->mapToGlobal(QPoint()));
}

void* AccessibleMenuItem::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList AccessibleMenuItem::actionNames() const {
    if (action_.isSeparator()) return {};
    return {action_.menu() ? showMenuAction() : pressAction()};
}

void AccessibleMenuItem::doAction(const QString& name) {
    if (!actionNames().contains(name)) return;
    auto* const bar = qobject_cast<QMenuBar*>(Place());
    if (action_.menu() && bar)
        RunForReader(window_, [bar, action = &action_] { bar->setActiveAction(action); });
    else
        RunForReader(window_, [item = &item_] { ClickControl(*item); });
}

QStringList AccessibleMenuItem::keyBindingsForAction(const QString&) const {
    const int mark = action_.text().indexOf(u'&');
    const bool on_bar = qobject_cast<QMenuBar*>(Place());
    if (!on_bar || mark < 0 || mark + 1 >= action_.text().size()) return {};
    return {QStringLiteral("Alt+") + action_.text().at(mark + 1).toUpper()};
}
