#include "platform/qt/key_walk.h"

#include <QKeyEvent>
#include <vector>

#include "platform/controls.h"
#include "platform/focus_walk.h"
#include "platform/key_codes.h"
#include "platform/user.h"

namespace {
std::vector<Control*> Siblings(const Control& option) {
    std::vector<Control*> options;
    for (Control* other : option.window->Controls())
        if (other->kind() == Kind::OptionButton && other->container == option.container && CanReach(*other)) options.push_back(other);
    return options;
}

// By what the key is: one that a script only holds down is neither.
int AnswerCode(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) return kEnterKey;
    return key.key() == Qt::Key_Escape ? kEscapeKey : 0;
}

bool SelectSibling(UserEvents& events, Control& option, int step) {
    Control* const next = NextInRound(Siblings(option), &option, step);
    if (next && next != &option) events.Run([next] { ClickControl(*next); });
    return true;
}
}  // namespace

bool IsWalk(const QKeyEvent& key) {
    return (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) && !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

void WalkFocus(UserEvents& events, Window& window, const QKeyEvent& key) {
    const bool back = key.key() == Qt::Key_Backtab || (key.modifiers() & Qt::ShiftModifier);
    events.Run([&] { WalkFocus(window, back); });
}

bool PressFocused(UserEvents& events, Control& focus, const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Space:
            if (focus.kind() != Kind::Button && focus.kind() != Kind::CheckBox && focus.kind() != Kind::OptionButton) return false;
            break;
        case Qt::Key_Up:
        case Qt::Key_Left:
            return focus.kind() == Kind::OptionButton && SelectSibling(events, focus, -1);
        case Qt::Key_Down:
        case Qt::Key_Right:
            return focus.kind() == Kind::OptionButton && SelectSibling(events, focus, 1);
        default:
            return false;
    }
    events.Run([&focus] { ClickControl(focus); });
    return true;
}

bool IsAnswer(const QKeyEvent& key) {
    return AnswerCode(key) != 0;
}

bool PressAnswer(UserEvents& events, const QKeyEvent& key) {
    bool pressed = false;
    if (const int code = AnswerCode(key); code != 0) events.Run([&] { pressed = PressAnswer(code); });
    return pressed;
}
