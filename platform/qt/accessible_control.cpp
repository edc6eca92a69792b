#include "platform/qt/accessible_control.h"

#include <QApplication>
#include <QMetaObject>

#include "platform/control.h"
#include "platform/qt/look.h"
#include "platform/qt/shown_text.h"
#include "platform/user.h"

int AccessibleNode::indexOfChild(const QAccessibleInterface* child) const {
    return static_cast<int>(Children().indexOf(const_cast<QAccessibleInterface*>(child)));
}

QList<QAccessibleInterface*> ControlsIn(const WindowWidget& window, const Control* container, int page) {
    QList<QAccessibleInterface*> found;
    for (const Control* control : window.window().Controls()) {
        if (control->container != container || control->page != page) continue;
        if (QWidget* const widget = window.WidgetOf(*control)) found.append(QAccessible::queryAccessibleInterface(widget));
    }
    return found;
}

void RunForReader(WindowWidget& window, std::function<void()> act) {
    QMetaObject::invokeMethod(
        &window,
        [&window, act = std::move(act)] {
            if (QApplication::activeModalWidget()) return;
            while (QWidget* const popup = QApplication::activePopupWidget())
                if (!popup->close()) break;
            window.Events().Run(act);
        },
        Qt::QueuedConnection);
}

namespace {
QAccessible::Role RoleOf(Kind kind) {
    switch (kind) {
        case Kind::TextBox:
            return QAccessible::EditableText;
        case Kind::Label:
            return QAccessible::StaticText;
        case Kind::Button:
            return QAccessible::Button;
        case Kind::OptionButton:
            return QAccessible::RadioButton;
        case Kind::CheckBox:
            return QAccessible::CheckBox;
        case Kind::ComboBox:
            return QAccessible::ComboBox;
        case Kind::Frame:
            return QAccessible::Grouping;
        case Kind::TabControl:
            return QAccessible::PageTabList;
        case Kind::PictureBox:
            return QAccessible::Graphic;
        case Kind::ProgressBar:
            return QAccessible::ProgressBar;
        case Kind::Slider:
            return QAccessible::Slider;
        case Kind::ScrollBar:
            return QAccessible::ScrollBar;
        case Kind::UpDown:
            return QAccessible::SpinBox;
        case Kind::StatusBar:
            return QAccessible::StatusBar;
        case Kind::MenuItem:
            return QAccessible::MenuItem;
    }
    return QAccessible::NoRole;
}

// What the reader may ask for besides the focus.
QStringList ActionsOf(const Control& control) {
    using Actions = QAccessibleActionInterface;
    switch (control.kind()) {
        case Kind::Button:
        case Kind::OptionButton:
            return {Actions::pressAction()};
        case Kind::PictureBox:
            return control.Click.IsJoined() ? QStringList{Actions::pressAction()} : QStringList();
        case Kind::CheckBox:
            return {Actions::toggleAction()};
        case Kind::ComboBox:
            return {Actions::showMenuAction()};
        case Kind::Slider:
        case Kind::ScrollBar:
        case Kind::UpDown:
            return {Actions::increaseAction(), Actions::decreaseAction()};
        default:
            return {};
    }
}

// A window may show only its upper part.
bool IsBeyondEdge(const QWidget& widget) {
    const QWidget& window = *widget.window();
    return !window.rect().intersects(QRect(widget.mapTo(&window, QPoint()), widget.size()));
}
}  // namespace

AccessibleControl::AccessibleControl(Control& control, QWidget& widget, WindowWidget& window)
    : AccessibleControl(control, widget, window, RoleOf(control.kind())) {}

AccessibleControl::AccessibleControl(Control& control, QWidget& widget, WindowWidget& window, QAccessible::Role role)
    : AccessibleNode(widget, role, window), control_(control) {}

QAccessibleInterface* AccessibleControl::parent() const {
    if (control_.page >= 0) return QAccessible::queryAccessibleInterface(widget()->parentWidget());
    QWidget* const outer = control_.container ? Around().WidgetOf(*control_.container) : widget()->window();
    return QAccessible::queryAccessibleInterface(outer);
}

QList<QAccessibleInterface*> AccessibleControl::Children() const {
    return ControlsIn(Around(), &control_);
}

QString AccessibleControl::text(QAccessible::Text kind) const {
    switch (kind) {
        case QAccessible::Name:
            return Brief(SpokenName(control_));
        case QAccessible::Description:
            return Brief(control_.ToolTip());
        case QAccessible::Value:
            return ValueText();
        default:
            return {};
    }
}

QAccessible::State AccessibleControl::state() const {
    QAccessible::State state = AccessibleNode::state();
    const Properties& now = control_.State();
    state.disabled = state.disabled || !control_.window->Enabled();
    state.offscreen = IsBeyondEdge(*widget());
    state.focusable = TakesFocus(control_.kind()) && CanReach(control_);
    state.focused = HoldsFocus(control_);
    state.checkable = control_.kind() == Kind::CheckBox || control_.kind() == Kind::OptionButton;
    state.checked = now.selected || now.ticked != 0;
    return state;
}

QList<QPair<QAccessibleInterface*, QAccessible::Relation>> AccessibleControl::relations(QAccessible::Relation match) const {
    QWidget* const label = control_.named_by ? Around().WidgetOf(*control_.named_by) : nullptr;
    if (!label || !(match & QAccessible::Label)) return {};
    return {{QAccessible::queryAccessibleInterface(label), QAccessible::Label}};
}

QStringList AccessibleControl::actionNames() const {
    QStringList actions = ActionsOf(control_);
    if (TakesFocus(control_.kind())) actions.append(setFocusAction());
    return actions;
}

void AccessibleControl::doAction(const QString& action) {
    if (!actionNames().contains(action)) return;
    if (action == increaseAction() || action == decreaseAction()) return Step(action == increaseAction());
    RunForReader(Around(), [&control = control_, action] {
        if (action == setFocusAction())
            FocusForReader(control);
        else
            ClickControl(control);
    });
}

// A box gets it by a press, for the program may send that elsewhere: while it counts, no key may land in a box. A press on anything else
// would do more; the window hears of it instead, and may send the focus elsewhere too.
void FocusForReader(Control& control) {
    if (!TakesFocus(control.kind()) || !CanReach(control)) return;
    if (control.AsTextHolder()) {
        const Mouse mouse = control.AtCorner(MouseButton::Left);
        PressMouse(control, mouse);
        return ReleaseMouse(control, mouse);
    }
    BringToFront(*control.window);
    control.SetFocus();
    control.window->FocusGiven.Raise();
}
