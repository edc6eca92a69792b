// What has a value between two ends, or steps up and down, as a screen reader finds it.
#pragma once
#include "platform/qt/accessible_control.h"

class AccessibleValue : public AccessibleControl, public QAccessibleValueInterface {
public:
    using AccessibleControl::AccessibleControl;

    void* interface_cast(QAccessible::InterfaceType type) override;
    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& /*value*/) override {}
    QVariant maximumValue() const override { return control().State().maximum; }
    QVariant minimumValue() const override { return control().State().minimum; }
    QVariant minimumStepSize() const override { return control().State().small_change; }

protected:
    QString ValueText() const override { return currentValue().toString(); }
};

class AccessibleRange : public AccessibleValue {
public:
    AccessibleRange(RangeControl& range, QWidget& widget, WindowWidget& window) : AccessibleValue(range, widget, window), range_(range) {}

    void setCurrentValue(const QVariant& value) override;

protected:
    void Step(bool up) override;

private:
    RangeControl& range_;
};

class AccessibleArrows : public AccessibleControl {
public:
    AccessibleArrows(UpDown& arrows, QWidget& widget, WindowWidget& window) : AccessibleControl(arrows, widget, window), arrows_(arrows) {}

protected:
    void Step(bool up) override;

private:
    UpDown& arrows_;
};

// A tab control and its tabs, as a screen reader finds them. Its value is the place of the tab in front, from 0. What lies on a page lies
// in its tab.
class AccessibleTabs : public AccessibleValue {
public:
    AccessibleTabs(TabControl& tabs, QWidget& widget, WindowWidget& window) : AccessibleValue(tabs, widget, window), tabs_(tabs) {}

    QVariant currentValue() const override { return tabs_.Tab(); }
    void setCurrentValue(const QVariant& tab) override;
    QVariant maximumValue() const override;

protected:
    QList<QAccessibleInterface*> Children() const override;  // the tabs, then what lies on all of them
    QString ValueText() const override;

private:
    TabControl& tabs_;
};

// On the ground of its page.
class AccessibleTab : public AccessibleNode {
public:
    AccessibleTab(TabControl& tabs, int tab, QWidget& page, WindowWidget& window);

    QAccessibleInterface* parent() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QRect rect() const override;
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override;

protected:
    QList<QAccessibleInterface*> Children() const override { return ControlsIn(Around(), &tabs_, tab_); }

private:
    TabControl& tabs_;
    int tab_;
};

QWidget* PageOf(const WindowWidget& window, const TabControl& tabs, int tab);  // its ground
