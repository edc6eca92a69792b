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
