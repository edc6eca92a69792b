#include "platform/headless/headless_hands.h"

#include "events/program.h"
#include "platform/text.h"
#include "platform/user.h"

namespace {

Control* FocusNow() {
    return ActiveWindow() ? ActiveWindow()->Focus() : nullptr;
}

void BreakLine(Control& box) {
    if (const TextHolder* const holder = box.AsTextHolder(); holder && holder->BreaksLines()) InsertText(box, "\r\n");
}

void TypeInto(Control& box, int code, const std::string& character) {
    if (code == kBackspaceKey)
        DeleteBackward(box);
    else if (code == kDeleteKey)
        DeleteForward(box);
    else if (code == kEnterKey)
        BreakLine(box);
    else if (code != kEscapeKey && !character.empty())
        InsertText(box, character);
}

void SelectAll(Control& box) {
    if (TextHolder* const holder = box.AsTextHolder()) holder->Select(0, static_cast<int>(Length(holder->Text())));
}

}  // namespace

void HeadlessHands::Run(const std::function<void()>& event) {
    if (!has_ended_()) RunEvent(event);
}

void HeadlessHands::Start() {
    Run(StartProgram);
}

void HeadlessHands::KeyDown(int code) {
    Run([&] { PressKey(code); });
}

void HeadlessHands::KeyUp(int code) {
    Run([&] { ReleaseKey(code); });
}

void HeadlessHands::Press(int code, const std::string& character) {
    const Window* const window = ActiveWindow();
    Control* const focus = FocusNow();
    KeyDown(code);
    Run([&] {
        if (window != ActiveWindow() || focus != FocusNow() || PressAnswer(code)) return;
        if (focus) TypeInto(*focus, code, character);
    });
    KeyUp(code);
}

void HeadlessHands::FocusBox(Control& box) {
    Click(box);
}

void HeadlessHands::SetBox(Control& box, const std::string& text) {
    FocusBox(box);
    Run([&] {
        if (FocusNow() != &box || !CanReach(box)) return;
        SelectAll(box);
        InsertText(box, text);
    });
}

void HeadlessHands::Paste(const std::string& text) {
    Run([&] {
        if (Control* const box = FocusNow()) InsertText(*box, text);
    });
}

void HeadlessHands::Click(Control& control) {
    Run([&] { ClickControl(control); });
}

void HeadlessHands::DoubleClick(Control& control) {
    Click(control);
    Run([&] { FinishDoubleClick(control); });
}

void HeadlessHands::RightClick(Control& control) {
    const Mouse corner = control.AtCorner(MouseButton::Right);
    MouseDown(control, corner.button, corner.x, corner.y);
    MouseUp(control, corner.button, corner.x, corner.y);
}

void HeadlessHands::Choose(ComboBox& box, int item) {
    Run([&] { ChooseItem(box, item); });
}

void HeadlessHands::PressTab(TabControl& tabs, int tab) {
    Run([&] { ::PressTab(tabs, tab); });
}

void HeadlessHands::Slide(RangeControl& range, int value) {
    Run([&] { SlideTo(range, value); });
}

void HeadlessHands::Spin(UpDown& arrows, bool up) {
    Run([&] { ::Spin(arrows, up); });
}

void HeadlessHands::MouseDown(Control& control, MouseButton button, double x, double y) {
    held_ = button;
    Run([&] { PressMouse(control, {button, x, y}); });
}

void HeadlessHands::MouseUp(Control& control, MouseButton button, double x, double y) {
    held_ = MouseButton::None;
    Run([&] { ReleaseMouse(control, {button, x, y}); });
}

void HeadlessHands::MouseMove(Control& control, double x, double y) {
    Run([&] { MoveMouse(control, {held_, x, y}); });
}

void HeadlessHands::MouseDownOnWindow(Window& window, MouseButton button, double x, double y) {
    held_ = button;
    Run([&] { PressMouseOnWindow(window, {button, x, y}); });
}

void HeadlessHands::MouseUpOnWindow(Window&, MouseButton, double, double) {
    held_ = MouseButton::None;  // windows answer no release
}

void HeadlessHands::MouseMoveOverWindow(Window& window, double x, double y) {
    Run([&] { ::MoveMouseOverWindow(window, {held_, x, y}); });
}

void HeadlessHands::Resize(Window& window, int width, int height) {
    Run([&] { ResizeWindow(window, width, height); });
}

void HeadlessHands::Close(Window& window) {
    Run([&] { CloseWindow(window); });
}
