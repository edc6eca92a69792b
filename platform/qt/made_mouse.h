// Mouse events that no mouse sends: a script's, and those that one control hands on to another.
#pragma once
#include <QEvent>
#include <QPointF>
#include <QWidget>

#include "platform/control.h"

class MadeMouse {
public:
    void Send(QWidget& widget, QEvent::Type type, MouseButton button, QPointF at);  // `at` in the widget; of a move: no button
    bool Holds() const { return held_ != Qt::NoButton; }

private:
    Qt::MouseButton held_ = Qt::NoButton;
};
