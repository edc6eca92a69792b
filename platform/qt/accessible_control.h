// A control as a screen reader finds it. Everything is read from the program's own control: role, name, states and what can be done.
#pragma once
#include <QStringList>

#include "platform/controls.h"
#include "platform/qt/accessible_node.h"

class AccessibleControl : public AccessibleNode {
public:
    AccessibleControl(Control& control, QWidget& widget, WindowWidget& window);

    QAccessibleInterface* parent() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(QAccessible::Relation match) const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

protected:
    AccessibleControl(Control& control, QWidget& widget, WindowWidget& window, QAccessible::Role role);
    Control& control() const { return control_; }
    QList<QAccessibleInterface*> Children() const override;
    virtual QString ValueText() const { return {}; }
    virtual void Step(bool /*up*/) {}  // as a reader asks for it

private:
    Control& control_;
};

// Gives a control the focus as the user's hand does, if it can have it.
void FocusForReader(Control& control);
