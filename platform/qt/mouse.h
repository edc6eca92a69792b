// The mouse: events that no mouse sends, and the shape of its pointer.
#pragma once
#include <QEvent>
#include <QPointF>
#include <QWidget>

#include "platform/control.h"

// A script's events, and those that one control hands on to another.
class MadeMouse {
public:
    void Send(QWidget& widget, QEvent::Type type, MouseButton button, QPointF at);  // `at` in the widget; of a move: no button
    bool Holds() const { return held_ != Qt::NoButton; }

private:
    Qt::MouseButton held_ = Qt::NoButton;
};

// The program says the shape for all windows alike; while it says nothing, each widget has its own.
void ShowPointer();  // as the program wants it now

// While a message box or file dialog is open, the pointer is a plain one.
class PlainPointer {
public:
    PlainPointer();
    ~PlainPointer() { ShowPointer(); }
    PlainPointer(const PlainPointer&) = delete;
    PlainPointer& operator=(const PlainPointer&) = delete;
};
