#include "platform/qt/accessible.h"

#include <QAction>

#include "platform/qt/accessible_combo_box.h"
#include "platform/qt/accessible_text.h"
#include "platform/qt/accessible_value.h"
#include "platform/qt/accessible_window.h"
#include "platform/qt/combo_box_view.h"
#include "platform/qt/menu_view.h"

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
