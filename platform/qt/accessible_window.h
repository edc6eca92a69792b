// A window of the program as a screen reader finds it: its menu bar, and the controls that lie in no other.
#pragma once
#include "platform/qt/accessible_control.h"

class AccessibleWindow : public AccessibleNode {
public:
    explicit AccessibleWindow(WindowWidget& window);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

protected:
    QList<QAccessibleInterface*> Children() const override;
};
