#include "platform/qt/accessible_value.h"

#include <algorithm>

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

void AccessibleValue::setCurrentValue(const QVariant& value) {
    if (control().kind() == Kind::ProgressBar) return;
    RunForReader([&range = static_cast<RangeControl&>(control()), to = value.toInt()] { SlideTo(range, to); });
}
