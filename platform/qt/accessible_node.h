// What all that a screen reader finds on a widget has in common: its place in the tree, and how it does what the reader asks for.
#pragma once
#include <QAccessibleWidget>
#include <QList>
#include <functional>

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
