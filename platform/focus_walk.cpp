#include "platform/focus_walk.h"

#include <algorithm>

#include "platform/controls.h"

namespace {
// A picture takes the focus at a click and is no stop: there is nothing to type in it.
bool IsTabStop(const Control& control) {
    return TakesFocus(control.kind()) && control.kind() != Kind::PictureBox && control.tab_stop && CanReach(control);
}

// Of options that stand together only the selected one is a stop, as everywhere on the desktop.
bool IsSecondaryOption(const Control& control) {
    if (control.kind() != Kind::OptionButton || control.State().selected) return false;
    return std::ranges::any_of(control.window->Controls(), [&control](const Control* other) {
        return other->kind() == Kind::OptionButton && other->container == control.container && other->State().selected;
    });
}

std::vector<Control*> Stops(Window& window) {
    std::vector<Control*> stops = window.Focus() ? window.RoundOf(*window.Focus()) : std::vector<Control*>();
    if (!stops.empty()) return stops;
    for (Control* control : window.Controls())
        if (control == window.Focus() || (IsTabStop(*control) && !IsSecondaryOption(*control))) stops.push_back(control);
    return stops;
}
}  // namespace

Control* NextInRound(const std::vector<Control*>& controls, const Control* from, int step) {
    if (controls.empty()) return nullptr;
    const auto count = static_cast<int>(controls.size());
    const auto found = std::ranges::find(controls, from);
    if (found == controls.end()) return step > 0 ? controls.front() : controls.back();
    const int place = static_cast<int>(found - controls.begin());
    return controls[static_cast<std::size_t>((place + step + count) % count)];
}

void WalkFocus(Window& window, bool back) {
    Control* const next = NextInRound(Stops(window), window.Focus(), back ? -1 : 1);
    if (!next) return;
    next->SetFocus();
    next->WalkedTo.Raise();
    if (TextHolder* const box = next->AsTextHolder(); next->kind() == Kind::TextBox && !box->BreaksLines()) box->SelectAll();
}
