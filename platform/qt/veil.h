// Lies over a window that takes no input: its words stay readable, it is plainly not the one to work in, and no mouse gets through. A
// press brings up the window that waits for an answer.
#pragma once
#include <QPainter>
#include <QWidget>

#include "platform/qt/look.h"
#include "platform/qt/model_view.h"

class Veil : public QWidget {
public:
    Veil(QWidget* parent, Window& window, UserEvents& events) : QWidget(parent), window_(window), events_(events) { hide(); }

protected:
    void paintEvent(QPaintEvent*) override {
        QColor mist = ToQt(kFormColour);
        mist.setAlpha(120);
        QPainter(this).fillRect(rect(), mist);
    }
    void showEvent(QShowEvent*) override { raise(); }
    void mousePressEvent(QMouseEvent*) override { events_.UserActivates(window_); }

private:
    Window& window_;
    UserEvents& events_;
};
