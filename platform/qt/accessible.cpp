#include "platform/qt/accessible.h"

#include <QAction>

#include "platform/qt/accessible_combo_box.h"
#include "platform/qt/accessible_menu.h"
#include "platform/qt/accessible_tabs.h"
#include "platform/qt/accessible_text.h"
#include "platform/qt/accessible_window.h"
#include "platform/qt/combo_list.h"
#include "platform/qt/control_widget.h"
#include "platform/qt/menu_view.h"
#include "platform/qt/window_widget.h"

namespace {
WindowWidget* WindowAround(QObject* inner) {
    for (QObject* outer = inner; outer; outer = outer->parent())
        if (auto* const window = dynamic_cast<WindowWidget*>(outer)) return window;
    return nullptr;
}

// A part of a control that is there for itself: the editor of a combo box, the page of a tab.
QAccessibleInterface* MakeForPart(Control& control, QWidget& part) {
    if (control.kind() == Kind::ComboBox) {
        if (auto* const list = dynamic_cast<ComboList*>(&part)) return new AccessibleList(*list);
        return new AccessibleText(static_cast<ComboBox&>(control), part);
    }
    if (control.kind() != Kind::TabControl) return nullptr;
    auto& tabs = static_cast<TabControl&>(control);
    for (int tab = 0; tab < static_cast<int>(tabs.TabCaptions().size()); ++tab)
        if (PageOf(tabs, tab) == &part) return new AccessibleTab(tabs, tab, part);
    return nullptr;
}

QAccessibleInterface* MakeForWidget(WindowWidget& window, QWidget& widget) {
    if (&widget == &window) return new AccessibleWindow(window);
    if (const ControlWidget* const shown = window.ShownBy(widget)) return MakeAccessible(shown->control(), widget);
    const ControlWidget* const outer = widget.parentWidget() ? window.ShownBy(*widget.parentWidget()) : nullptr;
    return outer ? MakeForPart(outer->control(), widget) : nullptr;
}

QAccessibleInterface* Make(const QString&, QObject* object) {
    WindowWidget* const window = WindowAround(object);
    if (!window) return nullptr;
    if (object->isWidgetType()) return MakeForWidget(*window, *static_cast<QWidget*>(object));
    auto* const action = qobject_cast<QAction*>(object);
    MenuItem* const item = action ? window->Menus().ItemOf(*action) : nullptr;
    return item ? new AccessibleMenuItem(*item, *action) : nullptr;
}
}  // namespace

void OpenToReaders() {
    QAccessible::installFactory(Make);
}
