// What shows a control of the program.
#pragma once
#include <QMouseEvent>
#include <QObject>
#include <QPainter>
#include <QWidget>
#include <functional>

#include "platform/control.h"

class FittedText;
class ModelView;
class SizeGroup;

// The renderer, as far as the widgets need it.
class UserEvents {
public:
    virtual void Run(const std::function<void()>& event) = 0;  // something that the user does; what it changes is on show afterwards
    virtual bool InEvent() const = 0;                          // one is being run
    virtual void UserActivates(Window& window) = 0;            // a window has come to the front of the screen
    virtual void SyncLater(ModelView& view) = 0;               // it has something to show
    virtual void TextChanged() = 0;                            // the text of a box has changed

protected:
    ~UserEvents() = default;
};

// A change of the control is only noted; the renderer has it shown when the event is over.
class ModelView : public ControlView {
public:
    ModelView(Control& control, UserEvents& events) : control_(control), events_(events) { control_.BindView(this); }
    ~ModelView() override { control_.BindView(nullptr); }
    ModelView(const ModelView&) = delete;
    ModelView& operator=(const ModelView&) = delete;

    void Changed(Property property) override;
    UserEvents& Events() const { return events_; }
    void Sync();  // shows what has changed since the last time

protected:
    class Changes {
    public:
        static Changes All() { return Changes(~0u); }
        Changes() = default;
        void Add(Property property) { bits_ |= Bit(property); }
        bool Any() const { return bits_ != 0; }
        bool Has(Property property) const { return (bits_ & Bit(property)) != 0; }
        bool HasOnly(Property property) const { return bits_ == Bit(property); }

    private:
        explicit Changes(unsigned bits) : bits_(bits) {}
        static unsigned Bit(Property property) { return 1u << static_cast<unsigned>(property); }
        unsigned bits_ = 0;
    };
    // Reads the control and never writes it.
    virtual void Show(Changes changes) = 0;

private:
    Control& control_;
    UserEvents& events_;
    Changes changes_;
};

// The window of the screen on which controls are shown, as far as they need it.
class ViewHost {
public:
    virtual UserEvents& Events() const = 0;
    virtual QWidget* Ground() const = 0;                          // where the controls lie that no other contains
    virtual double Factor() const = 0;                            // pixels a twip
    virtual QWidget* WidgetOf(const Control& control) const = 0;  // nullptr: nothing of it is to be seen
    virtual SizeGroup* GroupOf(const Control& control) = 0;       // nullptr: it has a size of its own

protected:
    ~ViewHost() = default;
};

// A control on the screen: the widget that shows it, and the mouse on it. One class below this one for each kind of control.
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
    virtual bool UseKey(QKeyEvent& /*key*/) { return false; }
    void Rescale() { Apply(Changes::All()); }

protected:
    ControlWidget(Control& control, ViewHost& window, ControlWidget* owner)
        : ModelView(control, window.Events()), control_(control), window_(window), owner_(owner) {}

    QWidget* OwnerGround() const;
    void Adopt(QWidget* widget);       // the control's widget; its mouse is told to the program
    void WatchMouse(QWidget* widget);  // of a part of it
    double Factor() const;
    QFont Font() const;
    SizeGroup* Group() const { return window_.GroupOf(control_); }
    void Show(Changes changes) override;
    virtual void ShowContent(Changes changes) = 0;
    virtual QString Tip() const;
    virtual const FittedText* Fitted() const { return nullptr; }  // what is painted of its text; nullptr: it is not fitted
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
    void SyncTip();
    void TellReaders(Changes changes);
    void TellNamesOfOthers() const;  // of the controls that are called after this one
    bool TellPress(const QMouseEvent& event, QPointF at);
    bool TellMove(const QMouseEvent& event, QPointF at);
    bool LeavesWith(const QMouseEvent& event, QPointF at) const;
    void MoveElsewhere(QPointF at);
    bool TellRelease(const QMouseEvent& event, QPointF at);

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
