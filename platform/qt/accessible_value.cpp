#include "platform/qt/accessible_value.h"

#include <algorithm>

#include "platform/qt/look.h"
#include "platform/qt/shown_text.h"
#include "platform/qt/tab_view.h"
#include "platform/user.h"

void* AccessibleValue::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return AccessibleControl::interface_cast(type);
}

// A progress bar past its end is just full.
QVariant AccessibleValue::currentValue() const {
    const Properties& now = control().State();
    return std::clamp(now.value, now.minimum, std::max(now.minimum, now.maximum));
}

void AccessibleRange::setCurrentValue(const QVariant& value) {
    RunForReader(Around(), [&range = range_, to = value.toInt()] { SlideTo(range, to); });
}

void AccessibleRange::Step(bool up) {
    RunForReader(Around(), [&range = range_, up] { SlideTo(range, range.Value() + (up ? range.SmallChange() : -range.SmallChange())); });
}

void AccessibleArrows::Step(bool up) {
    RunForReader(Around(), [&arrows = arrows_, up] { Spin(arrows, up); });
}

QWidget* PageOf(const WindowWidget& window, const TabControl& tabs, int tab) {
    return window.Find(tabs)->Ground(tab);
}

QList<QAccessibleInterface*> AccessibleTabs::Children() const {
    QList<QAccessibleInterface*> found;
    for (int tab = 0; tab < static_cast<int>(tabs_.TabCaptions().size()); ++tab)
        found.append(QAccessible::queryAccessibleInterface(PageOf(Around(), tabs_, tab)));
    return found + AccessibleControl::Children();
}

QString AccessibleTabs::ValueText() const {
    const auto tab = static_cast<std::size_t>(tabs_.Tab());
    return tab < tabs_.TabCaptions().size() ? Brief(tabs_.TabCaptions()[tab]) : QString();
}

QVariant AccessibleTabs::maximumValue() const {
    return static_cast<int>(tabs_.TabCaptions().size()) - 1;
}

void AccessibleTabs::setCurrentValue(const QVariant& tab) {
    const int wanted = tab.toInt();
    if (wanted >= 0 && wanted <= maximumValue().toInt()) RunForReader(Around(), [&tabs = tabs_, wanted] { PressTab(tabs, wanted); });
}

AccessibleTab::AccessibleTab(TabControl& tabs, int tab, QWidget& page, WindowWidget& window)
    : AccessibleNode(page, QAccessible::PageTab, window), tabs_(tabs), tab_(tab) {}

QAccessibleInterface* AccessibleTab::parent() const {
    return QAccessible::queryAccessibleInterface(Around().WidgetOf(tabs_));
}

QString AccessibleTab::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? Brief(tabs_.TabCaptions()[static_cast<std::size_t>(tab_)]) : QString();
}

// A tab is there to be seen though its page may be hidden.
QAccessible::State AccessibleTab::state() const {
    QAccessible::State state = parent()->state();
    state.focusable = state.focused = false;
    state.selectable = true;
    state.selected = tabs_.Tab() == tab_;
    return state;
}

QRect AccessibleTab::rect() const {
    const QWidget& whole = *Around().WidgetOf(tabs_);
    const double height = TabBarTwips(tabs_) * Around().Factor();
    return TabBarPlace(tabs_, tab_, whole.width(), height).toAlignedRect().translated(whole.mapToGlobal(QPoint()));
}

void AccessibleTab::doAction(const QString& action) {
    if (action == pressAction()) RunForReader(Around(), [&tabs = tabs_, tab = tab_] { PressTab(tabs, tab); });
}
