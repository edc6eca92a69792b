#include "platform/qt/control_widget.h"

#include <QAccessible>
#include <utility>

#include "platform/qt/fitted_text.h"
#include "platform/qt/look.h"
#include "platform/qt/mouse.h"
#include "platform/qt/shown_text.h"
#include "platform/user.h"
#include "platform/window.h"

void ModelView::Changed(Property property) {
    if (!changes_.Any()) events_.SyncLater(*this);
    changes_.Add(property);
    if (property == Property::Text) events_.TextChanged();
}

void ModelView::Sync() {
    if (const Changes changes = std::exchange(changes_, {}); changes.Any()) Show(changes);
}

// ---- Widgets ----

namespace {
MouseButton ButtonOf(Qt::MouseButtons buttons) {
    if (buttons & Qt::LeftButton) return MouseButton::Left;
    if (buttons & Qt::RightButton) return MouseButton::Right;
    return MouseButton::None;
}

// What screen readers are told of a widget, while it can be seen.
void Tell(QWidget& widget, QAccessible::Event type) {
    QAccessibleEvent event(&widget, type);
    QAccessible::updateAccessibility(&event);
}

// Its value is another now, if it has one.
void TellValue(QWidget& widget) {
    if (!widget.isVisible()) return;
    QAccessibleInterface* const shown = QAccessible::queryAccessibleInterface(&widget);
    if (!shown->valueInterface()) return;
    QAccessibleValueChangeEvent event(&widget, shown->text(QAccessible::Value));
    QAccessible::updateAccessibility(&event);
}

void TellName(QWidget& widget) {
    if (widget.isVisible()) Tell(widget, QAccessible::NameChanged);
}

// It is the one selected of several, whether it can be seen yet or not.
void TellSelection(QWidget& widget) {
    Tell(widget, QAccessible::Selection);
}
}  // namespace

QWidget* ControlWidget::OwnerGround() const {
    return owner_ ? owner_->Ground(control_.page) : window_.Ground();
}

// The program says where the focus is: no widget takes it by itself.
void ControlWidget::Adopt(QWidget* widget) {
    widget_ = widget;
    widget_->setFocusPolicy(Qt::NoFocus);
    widget_->setContextMenuPolicy(Qt::PreventContextMenu);
    WatchMouse(widget_);
}

void ControlWidget::WatchMouse(QWidget* widget) {
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
}

double ControlWidget::Factor() const {
    return window_.Factor();
}

QFont ControlWidget::Font() const {
    return ControlFont(control_.State(), Factor());
}

void ControlWidget::Show(Changes changes) {
    Apply(changes);
    if (QAccessible::isActive()) TellReaders(changes);
}

void ControlWidget::TellReaders(Changes changes) {
    if (changes.Has(Property::Text) || changes.Has(Property::Value)) {
        TellValue(*widget_);
        if (control_.kind() == Kind::TabControl && widget_->isVisible()) TellSelection(*Ground(control_.State().tab));
    }
    if (changes.Has(Property::Caption)) TellName(*widget_);
    if (changes.Has(Property::Text) || changes.Has(Property::Caption)) TellNamesOfOthers();
}

void ControlWidget::TellNamesOfOthers() const {
    for (const Control* other : control_.window->Controls()) {
        if (other->named_by != &control_) continue;
        if (QWidget* const named = window_.WidgetOf(*other)) TellName(*named);
    }
}

void ControlWidget::Apply(Changes changes) {
    if (changes.Has(Property::Place)) {
        const QPoint origin = owner_ ? owner_->GroundOrigin(control_.page) : QPoint();
        widget_->setGeometry(Scaled(control_.State().box, Factor()).translated(-origin));
    }
    if (changes.Has(Property::Enabled)) widget_->setEnabled(control_.Enabled());
    ShowContent(changes);
    if (changes.Has(Property::ToolTip) || changes.Has(Property::Text)) SyncTip();
    Repaint(changes);
    if (changes.Has(Property::Visible)) widget_->setVisible(control_.Visible());
}

QString ControlWidget::Tip() const {
    return Brief(control_.ToolTip());
}

// A text of which a part is not seen stands above what else there is to say.
void ControlWidget::SyncTip() {
    const QString tip = Tip();
    const bool is_cut = Fitted() && Fitted()->IsCut();
    const QString whole = is_cut ? BriefLines(control_.State().text, kMostAtRest).trimmed() : QString();
    widget_->setToolTip(whole.isEmpty() || tip.isEmpty() ? whole + tip : whole + u'\n' + tip);
}

Mouse ControlWidget::MouseAt(MouseButton button, QPointF at) const {
    return {button, at.x() / Factor(), at.y() / Factor()};
}

QPointF ControlWidget::PlaceOf(double x, double y) const {
    return {x * Factor(), y * Factor()};
}

void ControlWidget::Press(const Mouse& mouse, QPointF) {
    PressMouse(control_, mouse);
}

void ControlWidget::Release(const Mouse& mouse, bool clicks) {
    ReleaseMouse(control_, mouse);
    if (clicks) FinishClick(control_);
}

// The mouse on a control that cannot be used goes to what lies below it.
bool ControlWidget::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ToolTip:
            SyncTip();
            return QObject::eventFilter(watched, event);
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
            break;
        default:
            return QObject::eventFilter(watched, event);
    }
    const auto& mouse = *static_cast<const QMouseEvent*>(event);
    const auto* const part = static_cast<const QWidget*>(watched);
    const QPointF at = part == widget_ ? mouse.position() : part->mapTo(widget_, mouse.position());
    if (event->type() == QEvent::MouseButtonRelease) return TellRelease(mouse, at);
    if (event->type() == QEvent::MouseMove) return (control_.Enabled() || pressed_ != MouseButton::None) && TellMove(mouse, at);
    return control_.Enabled() && TellPress(mouse, at);
}

// The second press of a double click is no press of its own where the double click is answered; elsewhere it is one like the first.
bool ControlWidget::TellPress(const QMouseEvent& event, QPointF at) {
    const MouseButton button = ButtonOf(event.button());
    if (button == MouseButton::None) return !PassesMouse();
    if (event.type() == QEvent::MouseButtonDblClick && button == MouseButton::Left && control_.DoubleClick.IsJoined()) {
        Events().Run([this] { FinishDoubleClick(control_); });
        return !PassesMouse();
    }
    pressed_ = button;
    if (button == MouseButton::Left) ShowPressed(true);
    Events().Run([&] { Press(MouseAt(button, at), at); });
    return !PassesMouse() || event.source() == Qt::MouseEventSynthesizedByApplication;  // a script's press must not move the caret
}

bool ControlWidget::TellMove(const QMouseEvent& event, QPointF at) {
    const MouseButton held = ButtonOf(event.buttons());
    if (held == MouseButton::None && pressed_ != MouseButton::None) {  // the release went to a menu or another program
        const MouseButton lost = std::exchange(pressed_, MouseButton::None);
        ShowPressed(false);
        Events().Run([&] { Release(MouseAt(lost, at), false); });
    }
    if (LeavesWith(event, at)) {
        MoveElsewhere(at);
        return true;
    }
    Events().Run([&] { MoveMouse(control_, MouseAt(held, at)); });
    return held == MouseButton::None || !PassesMouse();
}

// A script says by itself what its mouse is on.
bool ControlWidget::LeavesWith(const QMouseEvent& event, QPointF at) const {
    const bool is_made = event.source() == Qt::MouseEventSynthesizedByApplication;
    return pressed_ != MouseButton::None && GivesDragAway() && !is_made && !QRectF(widget_->rect()).contains(at);
}

// To what lies under the pointer; beyond the window that is its ground.
void ControlWidget::MoveElsewhere(QPointF at) {
    const QPoint place = widget_->mapTo(window_.Ground(), at.toPoint());
    QWidget* const under = window_.Ground()->childAt(place);
    MadeMouse().Send(under ? *under : *window_.Ground(), QEvent::MouseMove, MouseButton::None,
                     under ? under->mapFrom(window_.Ground(), place) : place);
}

// With both buttons down the first release ends the press, whichever it is of.
bool ControlWidget::TellRelease(const QMouseEvent& event, QPointF at) {
    const MouseButton button = ButtonOf(event.button());
    if (button == MouseButton::None || pressed_ == MouseButton::None) return !PassesMouse();
    pressed_ = MouseButton::None;
    ShowPressed(false);
    const bool clicks = button == MouseButton::Left && QRectF(widget_->rect()).contains(at);
    Events().Run([&] { Release(MouseAt(button, at), clicks); });
    return !PassesMouse();
}
