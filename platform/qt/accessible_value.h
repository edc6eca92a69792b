// Sliders, scroll bars and progress bars as a screen reader finds them: a value between two ends.
#pragma once
#include "platform/qt/accessible_control.h"

class AccessibleValue : public AccessibleControl, public QAccessibleValueInterface {
public:
    using AccessibleControl::AccessibleControl;

    void* interface_cast(QAccessible::InterfaceType type) override;
    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override { return control().State().maximum; }
    QVariant minimumValue() const override { return control().State().minimum; }
    QVariant minimumStepSize() const override { return control().State().small_change; }

protected:
    QString ValueText() const override { return currentValue().toString(); }
};
