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

void AccessibleRange::setCurrentValue(const QVariant& value) {
    RunForReader(Around(), [&range = range_, to = value.toInt()] { SlideTo(range, to); });
}

void AccessibleRange::Step(bool up) {
    RunForReader(Around(), [&range = range_, up] { SlideTo(range, range.Value() + (up ? range.SmallChange() : -range.SmallChange())); });
}

void AccessibleArrows::Step(bool up) {
    RunForReader(Around(), [&arrows = arrows_, up] { Spin(arrows, up); });
}
