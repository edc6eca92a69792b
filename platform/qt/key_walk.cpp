#include "platform/qt/key_walk.h"

#include <QKeyEvent>
#include <algorithm>
#include <vector>

#include "platform/controls.h"
#include "platform/qt/renderer.h"
#include "platform/user.h"

namespace {
// A picture takes the focus at a click and is no stop: there is nothing to type in it.
bool IsTabStop(const Control& control) {
    return TakesFocus(control.kind()) && control.kind() != Kind::PictureBox && control.tab_stop && CanReach(control);
}

// Of options that stand together only the selected one is a stop, as everywhere on the desktop.
bool IsSecondaryOption(const Control& control) {
    if (control.kind() != Kind::OptionButton || static_cast<const OptionButton&>(control).Value()) return false;
    return std::ranges::any_of(control.window->Controls(), [&control](const Control* other) {
        return other->kind() == Kind::OptionButton && other->container == control.container &&
               static_cast<const OptionButton*>(other)->Value();
    });
}

std::vector<Control*> Siblings(const Control& option) {
    std::vector<Control*> options;
    for (Control* other : option.window->Controls())
        if (other->kind() == Kind::OptionButton && other->container == option.container && CanReach(*other)) options.push_back(other);
    return options;
}

Control* Next(const std::vector<Control*>& controls, const Control* from, int step) {
    if (controls.empty()) return nullptr;
    const auto count = static_cast<int>(controls.size());
    const auto found = std::ranges::find(controls, from);
    if (found == controls.end()) return step > 0 ? controls.front() : controls.back();
    const int place = static_cast<int>(found - controls.begin());
    return controls[static_cast<std::size_t>((place + step + count) % count)];
}

// By what the key is: one that a script only holds down is neither.
int AnswerCode(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) return 13;
    return key.key() == Qt::Key_Escape ? 27 : 0;
}

bool SelectSibling(OptionButton& option, int step) {
    Control* const next = Next(Siblings(option), &option, step);
    if (next && next != &option) TheRenderer().Run([next] { ClickControl(*next); });
    return true;
}
}  // namespace

bool IsWalk(const QKeyEvent& key) {
    return (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) && !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

void WalkFocus(Window& window, const QKeyEvent& key) {
    const bool back = key.key() == Qt::Key_Backtab || (key.modifiers() & Qt::ShiftModifier);
    std::vector<Control*> stops;
    for (Control* control : window.Controls())
        if (control == window.Focus() || (IsTabStop(*control) && !IsSecondaryOption(*control))) stops.push_back(control);
    if (Control* const next = Next(stops, window.Focus(), back ? -1 : 1)) TheRenderer().Run([next] { next->SetFocus(); });
}

bool PressFocused(Control& focus, const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Space:
            if (focus.kind() != Kind::Button && focus.kind() != Kind::CheckBox && focus.kind() != Kind::OptionButton) return false;
            break;
        case Qt::Key_Up:
        case Qt::Key_Left:
            return focus.kind() == Kind::OptionButton && SelectSibling(static_cast<OptionButton&>(focus), -1);
        case Qt::Key_Down:
        case Qt::Key_Right:
            return focus.kind() == Kind::OptionButton && SelectSibling(static_cast<OptionButton&>(focus), 1);
        default:
            return false;
    }
    TheRenderer().Run([&focus] { ClickControl(focus); });
    return true;
}

bool PressAnswer(const QKeyEvent& key) {
    bool pressed = false;
    if (const int code = AnswerCode(key); code != 0) TheRenderer().Run([&] { pressed = PressAnswer(code); });
    return pressed;
}
