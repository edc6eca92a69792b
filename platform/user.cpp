#include "platform/user.h"

#include <algorithm>

#include "platform/failure.h"
#include "platform/services.h"
#include "platform/text.h"

namespace {
constexpr const char* kLineBreak = "\r\n";

void OpenMenusOnTheWay(const MenuItem* menu) {
    if (!menu || menu == mouse_hold.popup) return;
    OpenMenusOnTheWay(menu->Menu());
    menu->Click.Raise();
}

bool HasItems(const MenuItem& menu) {
    const auto& controls = menu.window->Controls();
    return std::any_of(controls.begin(), controls.end(), [&menu](const Control* control) { return control->container == &menu; });
}

void ClickMenuItem(MenuItem& item) {
    BringToFront(*item.window);
    if (!item.IsInOpenPopup()) mouse_hold.popup = nullptr;
    OpenMenusOnTheWay(item.Menu());
    if (HasItems(item))
        OpenMenu(item);
    else
        ClickOpenMenuItem(item);
}

// A window that shows only its upper part has buttons below its edge.
bool IsInSight(const Control& button) {
    return CanReach(button) && button.Top() < button.window->Height();
}

// A window that hears the keys first has its buttons for the mouse.
Control* EnterButton(const Window& window) {
    Control* const focus = window.Focus();
    if (focus && focus->kind() == Kind::Button) return window.key_preview ? nullptr : focus;
    const TextHolder* const box = focus ? focus->AsTextHolder() : nullptr;
    return box && box->BreaksLines() ? nullptr : window.confirm;
}

// The box as one that can be typed into; nullptr: what is typed lands nowhere.
TextHolder* EditorOf(Control& box) {
    return TakesText(box) ? box.AsTextHolder() : nullptr;
}

// Characters of the line break that begins behind `place` characters; 1 where there is none.
int StepAt(const std::string& text, int place) {
    return place >= 0 && Mid(text, static_cast<std::size_t>(place) + 1, 2) == kLineBreak ? 2 : 1;
}

// Puts `text` in place of the `count` characters after the first `start`.
void Replace(TextHolder& box, int start, int count, const std::string& text) {
    const std::string old = box.Text();
    const auto first = static_cast<std::size_t>(start);
    const std::size_t from = ByteOffset(old, first), to = ByteOffset(old, first + static_cast<std::size_t>(count));
    EnterText(box, old.substr(0, from) + text + old.substr(to), start + static_cast<int>(Length(text)));
}

void ReplaceSelection(TextHolder& box, const std::string& text) {
    Replace(box, box.SelStart(), box.SelLength(), text);
}
}  // namespace

void RunEvent(const std::function<void()>& event) {
    try {
        event();
    } catch (const Failure& failure) {
        services.host->Fail(failure.what());
    }
}

void BringToFront(Window& window) {
    if (window.Visible() && window.Enabled() && &window != ActiveWindow()) window.Show();
}

void OpenPopup(MenuItem& menu) {
    mouse_hold.popup = &menu;
    services.popups->Open(menu);
}

void OpenMenu(MenuItem& menu) {
    if (CanReach(menu)) menu.Click.Raise();
}

void ClickOpenMenuItem(MenuItem& item) {
    if (!CanReach(item)) return;  // opening its menu may have switched it off
    mouse_hold.popup = nullptr;
    item.Click.Raise();
}

void PressKey(int code) {
    Window* const window = ActiveWindow();
    if (!window) return;
    if (window->key_preview) window->KeyDown.Raise(code);
    if (window != ActiveWindow()) return;
    if (Control* focus = window->Focus(); focus && CanReach(*focus)) focus->KeyDown.Raise(code);
}

void ReleaseKey(int code) {
    Window* const window = ActiveWindow();
    if (!window) return;
    if (window->key_preview) window->KeyUp.Raise(code);
    if (window != ActiveWindow()) return;
    if (Control* focus = window->Focus(); focus && CanReach(*focus)) focus->KeyUp.Raise(code);
}

bool PressAnswer(int code) {
    Window* const window = ActiveWindow();
    if (!window || (code != kEnterKey && code != kEscapeKey)) return false;
    const Control* const focus = window->Focus();
    if (focus && (TakesKeysAsInput(*focus) || !CanReach(*focus))) return false;
    Control* const button = code == kEnterKey ? EnterButton(*window) : window->dismiss;
    if (!button || !IsInSight(*button)) return false;
    ClickControl(*button);
    return true;
}

void PressMouse(Control& control, Mouse mouse) {
    if (!CanReach(control)) return;
    BringToFront(*control.window);
    mouse_hold.pressed = &control;
    if (TakesFocus(control.kind())) control.SetFocus();
    control.MouseDown.Raise(mouse);
}

void MoveMouse(Control& control, Mouse mouse) {
    if (CanReach(control) || &control == mouse_hold.pressed) control.MouseMove.Raise(mouse);
}

void ReleaseMouse(Control& control, Mouse mouse) {
    if (&control != mouse_hold.pressed) return;
    mouse_hold.pressed = nullptr;
    if (control.window->IsLoaded()) control.MouseUp.Raise(mouse);
}

void MoveMouseOverWindow(Window& window, Mouse mouse) {
    if (window.Visible() && window.Enabled()) window.MouseMove.Raise(mouse);
}

void PressMouseOnWindow(Window& window, Mouse mouse) {
    BringToFront(window);
    if (window.Visible() && window.Enabled()) window.MouseDown.Raise(mouse);
}

void FinishClick(Control& control) {
    if (!CanReach(control)) return;
    if (auto* const item = dynamic_cast<MenuItem*>(&control))
        ClickMenuItem(*item);
    else
        control.TakeClick();
}

void ClickControl(Control& control) {
    if (!CanReach(control)) return;
    if (control.kind() != Kind::MenuItem) {
        const Mouse mouse = control.AtCorner(MouseButton::Left);
        PressMouse(control, mouse);
        ReleaseMouse(control, mouse);
    }
    FinishClick(control);
}

void FinishDoubleClick(Control& control) {
    if (CanReach(control)) control.DoubleClick.Raise();
}

void EnterText(Control& box, const std::string& text, int caret) {
    if (!HoldsFocus(box)) return;
    if (TextHolder* const editor = EditorOf(box)) editor->Enter(text, caret);
}

void InsertText(Control& box, const std::string& text) {
    if (TextHolder* const editor = EditorOf(box)) ReplaceSelection(*editor, text);
}

void DeleteBackward(Control& box) {
    TextHolder* const editor = EditorOf(box);
    if (!editor) return;
    const int caret = editor->SelStart();
    const int step = StepAt(editor->Text(), caret - 2);
    if (editor->SelLength() > 0)
        ReplaceSelection(*editor, "");
    else if (caret > 0)
        Replace(*editor, caret - step, step, "");
}

void DeleteForward(Control& box) {
    TextHolder* const editor = EditorOf(box);
    if (!editor) return;
    const int caret = editor->SelStart();
    if (editor->SelLength() > 0)
        ReplaceSelection(*editor, "");
    else if (caret < static_cast<int>(Length(editor->Text())))
        Replace(*editor, caret, StepAt(editor->Text(), caret), "");
}

void ChooseItem(ComboBox& box, int item) {
    if (!CanReach(box)) return;
    const Mouse mouse{MouseButton::Left, 0, 0};
    PressMouse(box, mouse);
    ReleaseMouse(box, mouse);
    box.Choose(item);
}

void PressTab(TabControl& tabs, int tab) {
    if (!CanReach(tabs)) return;
    const Mouse mouse{MouseButton::Left, 0, 0};
    PressMouse(tabs, mouse);
    tabs.SetTab(tab);
    ReleaseMouse(tabs, mouse);
}

void SlideTo(RangeControl& range, int value) {
    if (!CanReach(range)) return;
    BringToFront(*range.window);
    if (TakesFocus(range.kind())) range.SetFocus();
    range.SetValue(value);
}

void Spin(UpDown& arrows, bool up) {
    if (!CanReach(arrows)) return;
    BringToFront(*arrows.window);
    (up ? arrows.UpClick : arrows.DownClick).Raise();
}

void DropFile(Window& window, const std::string& path) {
    if (window.Visible() && window.Enabled()) window.FileDropped.Raise(path);
}

void ResizeWindow(Window& window, int width, int height) {
    if (!window.Visible() || !window.Enabled()) return;
    constexpr int kLargest = 1'000'000;  // twips: no screen is as large
    window.TakeSize(std::clamp(width, 0, kLargest), std::clamp(height, 0, kLargest));
}

void CloseWindow(Window& window) {
    if (!window.Visible() || !window.Enabled()) return;
    if (window.FrameClosed.IsJoined())
        window.FrameClosed.Raise();
    else
        window.Unload();
}
