// What all that a screen reader finds on a widget has in common: its place in the tree, and how it does what the reader asks for.
#pragma once
#include <QAccessibleWidget>
#include <QList>
#include <QStringList>
#include <functional>

#include "platform/controls.h"
#include "platform/qt/window_widget.h"

class AccessibleNode : public QAccessibleWidget {
public:
    int childCount() const override { return static_cast<int>(Children().size()); }
    QAccessibleInterface* child(int place) const override { return Children().value(place); }
    int indexOfChild(const QAccessibleInterface* child) const override;

protected:
    AccessibleNode(QWidget& widget, QAccessible::Role role, WindowWidget& window) : QAccessibleWidget(&widget, role), window_(window) {}
    WindowWidget& Around() const { return window_; }  // the window that it is in
    virtual QList<QAccessibleInterface*> Children() const = 0;

private:
    WindowWidget& window_;
};

// What lies in a window (`container` nullptr) or a control, on this page of it (-1: on all), and has a widget.
QList<QAccessibleInterface*> ControlsIn(const WindowWidget& window, const Control* container, int page = -1);

// Runs `act` as an event of the user's once the reader has its answer: what it does may open a box, and the reader would wait for the end
// of that. Nothing is done behind an open box.
void RunForReader(WindowWidget& window, std::function<void()> act);

// A control as a screen reader finds it. Everything is read from the program's own control: role, name, states and what can be done.
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

// Gives a control the focus as a user's click does, if it can have it.
void FocusForReader(Control& control);
