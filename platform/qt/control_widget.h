// A control on the screen: the widget that shows it, and the mouse on it. One class below this one for each kind of control.
#pragma once
#include <QMouseEvent>
#include <QObject>
#include <QPainter>
#include <QWidget>
#include <functional>

#include "platform/qt/model_view.h"

// The window of the screen on which controls are shown, as far as they need it.
class ViewHost {
public:
    virtual UserEvents& Events() const = 0;
    virtual QWidget* Ground() const = 0;                          // where the controls lie that no other contains
    virtual double Factor() const = 0;                            // pixels a twip
    virtual QWidget* WidgetOf(const Control& control) const = 0;  // nullptr: nothing of it is to be seen

protected:
    ~ViewHost() = default;
};

class ControlWidget : public QObject, public ModelView {
public:
    Control& control() const { return control_; }
    QWidget* Widget() const { return widget_; }
    virtual QWidget* Ground(int /*page*/) { return widget_; }       // where the controls lie that this one contains
    virtual QPoint GroundOrigin(int /*page*/) const { return {}; }  // its corner within the widget
    virtual QWidget* FocusWidget() { return widget_; }              // what takes the keyboard while the control has the focus
    virtual QWidget* MouseWidget() { return widget_; }              // the part of it that the mouse meets
    virtual QPointF PlaceOf(double x, double y) const;              // in the widget, of a place as the mouse events tell it
    // A key that the program has seen and not used up, while the control has the focus. true: the control used it.
    virtual bool TakeKey(QKeyEvent& /*key*/) { return false; }
    void Rescale() { Apply(Changes::All()); }

protected:
    ControlWidget(Control& control, ViewHost& window, ControlWidget* owner)
        : ModelView(control, window.Events()), control_(control), window_(window), owner_(owner) {}

    QWidget* OwnerGround() const;
    void Adopt(QWidget* widget);       // the control's widget; its mouse is told to the program
    void WatchMouse(QWidget* widget);  // of a part of it
    double Factor() const;
    QFont Font() const;
    void Show(Changes changes) override;
    virtual void ShowContent(Changes changes) = 0;
    virtual void Repaint(Changes /*changes*/) { widget_->update(); }

    // What the kind does at a press, besides its events; at the widget's own coordinates.
    virtual void Press(const Mouse& mouse, QPointF at);
    virtual void Release(const Mouse& mouse, bool clicks);
    virtual bool PassesMouse() const { return false; }    // the widget itself answers the mouse too
    virtual bool GivesDragAway() const { return false; }  // a held mouse that leaves it moves over what it is then on
    virtual void ShowPressed(bool /*pressed*/) {}
    virtual Mouse MouseAt(MouseButton button, QPointF at) const;  // PlaceOf, the other way round

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Apply(Changes changes);  // what all kinds have in common
    void TellReaders(Changes changes);
    void TellNamesOfOthers() const;  // of the controls that are called after this one
    bool TakePress(const QMouseEvent& event, QPointF at);
    bool TakeMove(const QMouseEvent& event, QPointF at);
    bool LeavesWith(const QMouseEvent& event, QPointF at) const;
    void MoveElsewhere(QPointF at);
    bool TakeRelease(const QMouseEvent& event, QPointF at);

    Control& control_;
    ViewHost& window_;
    ControlWidget* owner_;
    QWidget* widget_ = nullptr;
    MouseButton pressed_ = MouseButton::None;
};

// A widget that a function paints.
template <class Base>
class Painted : public Base {
public:
    Painted(QWidget* parent, std::function<void(QPainter&)> paint) : Base(parent), paint_(std::move(paint)) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paint_(painter);
    }

private:
    std::function<void(QPainter&)> paint_;
};
