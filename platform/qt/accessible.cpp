#include "platform/qt/accessible.h"

#include <QMenu>
#include <QMenuBar>

#include "platform/control.h"
#include "platform/qt/accessible_boxes.h"
#include "platform/qt/accessible_value.h"
#include "platform/qt/box_views.h"
#include "platform/qt/look.h"
#include "platform/qt/menu_view.h"
#include "platform/qt/shown_text.h"
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
    return kind == QAccessible::Name ? Brief(Around().window().Title()) : QString();
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
    if (kind == QAccessible::Name) return Brief(SpokenName(item_));
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

// ---- Which one for what ----

namespace {
WindowWidget* WindowAround(QObject* inner) {
    for (QObject* outer = inner; outer; outer = outer->parent())
        if (auto* const window = dynamic_cast<WindowWidget*>(outer)) return window;
    return nullptr;
}

// The right one for the kind of the control.
QAccessibleInterface* MakeForControl(Control& control, QWidget& widget, WindowWidget& window) {
    if (auto* const box = dynamic_cast<TextBox*>(&control)) return new AccessibleText(*box, widget, window);
    if (auto* const box = dynamic_cast<ComboBox*>(&control)) return new AccessibleComboBox(*box, widget, window);
    if (auto* const tabs = dynamic_cast<TabControl*>(&control)) return new AccessibleTabs(*tabs, widget, window);
    if (auto* const range = dynamic_cast<RangeControl*>(&control)) return new AccessibleRange(*range, widget, window);
    if (auto* const arrows = dynamic_cast<UpDown*>(&control)) return new AccessibleArrows(*arrows, widget, window);
    if (control.kind() == Kind::ProgressBar) return new AccessibleValue(control, widget, window);
    return new AccessibleControl(control, widget, window);
}

// A part of a control that is there for itself: the editor of a combo box, the page of a tab.
QAccessibleInterface* MakeForPart(Control& control, QWidget& part, WindowWidget& window) {
    if (auto* const box = dynamic_cast<ComboBox*>(&control)) {
        if (auto* const list = dynamic_cast<ComboList*>(&part)) return new AccessibleList(*list, window);
        return new AccessibleText(*box, part, window);
    }
    auto* const tabs = dynamic_cast<TabControl*>(&control);
    const int count = tabs ? static_cast<int>(tabs->TabCaptions().size()) : 0;
    for (int tab = 0; tab < count; ++tab)
        if (PageOf(window, *tabs, tab) == &part) return new AccessibleTab(*tabs, tab, part, window);
    return nullptr;
}

QAccessibleInterface* MakeForWidget(WindowWidget& window, QWidget& widget) {
    if (&widget == &window) return new AccessibleWindow(window);
    if (const ControlWidget* const shown = window.ShownBy(widget)) return MakeForControl(shown->control(), widget, window);
    const ControlWidget* const outer = widget.parentWidget() ? window.ShownBy(*widget.parentWidget()) : nullptr;
    return outer ? MakeForPart(outer->control(), widget, window) : nullptr;
}

QAccessibleInterface* Make(const QString&, QObject* object) {
    WindowWidget* const window = WindowAround(object);
    if (!window) return nullptr;
    if (object->isWidgetType()) return MakeForWidget(*window, *static_cast<QWidget*>(object));
    auto* const action = qobject_cast<QAction*>(object);
    MenuItem* const item = action ? window->Menus().ItemOf(*action) : nullptr;
    return item ? new AccessibleMenuItem(*item, *action, *window) : nullptr;
}
}  // namespace

void OpenToReaders() {
    QAccessible::installFactory(Make);
}
