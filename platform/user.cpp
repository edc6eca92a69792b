#include "platform/user.h"

#include <algorithm>

#include "platform/key_codes.h"
#include "platform/services.h"
#include "platform/text.h"

namespace {
constexpr const char* kLineBreak = "\r\n";

MenuItem* open_popup = nullptr;
Control* pressed = nullptr;  // the control that the mouse went down on

bool IsOnFrontTab(const Control& control) {
    return control.page < 0 || static_cast<const TabControl*>(control.container)->Tab() == control.page;
}

// An item inside a popup needs no place on the bar; all others need every menu on their way to be there.
bool MenuIsUsable(const MenuItem& item) {
    for (const Control* menu = &item; menu; menu = menu->container) {
        if (!menu->Enabled()) return false;
        if (menu == open_popup && menu != &item) return true;
        if (!menu->Visible()) return false;
    }
    return true;
}

void OpenMenusOnTheWay(const Control* menu) {
    if (!menu || menu == open_popup) return;
    OpenMenusOnTheWay(menu->container);
    menu->Click.Raise();
}

bool IsInOpenPopup(const MenuItem& item) {
    const Control* menu = &item;
    while (menu && menu != open_popup) menu = menu->container;
    return menu != nullptr;
}

bool HasItems(const MenuItem& menu) {
    const auto& controls = menu.window->Controls();
    return std::any_of(controls.begin(), controls.end(), [&menu](const Control* control) { return control->container == &menu; });
}

void ClickMenuItem(MenuItem& item) {
    BringToFront(*item.window);
    if (!IsInOpenPopup(item)) ClosePopup();
    OpenMenusOnTheWay(item.container);
    if (HasItems(item))
        OpenMenu(item);
    else
        ClickOpenMenuItem(item);
}

bool HasKeyFocus(const Control& control) {
    return control.window == ActiveWindow() && control.window->Focus() == &control && CanReach(control);
}

// A window that shows only its upper part has buttons below its edge.
bool IsInSight(const Button& button) {
    return CanReach(button) && button.Top() < button.window->Height();
}

// A window that hears the keys first has its buttons for the mouse.
Button* EnterButton(const Window& window) {
    Control* const focus = window.Focus();
    if (focus && focus->kind() == Kind::Button) return window.key_preview ? nullptr : static_cast<Button*>(focus);
    const bool breaks_line = focus && focus->kind() == Kind::TextBox && static_cast<const TextBox*>(focus)->multiline;
    return breaks_line ? nullptr : window.confirm;
}

struct Edit {
    std::string text;
    int caret;
    int selected;
};

Edit EditOf(const Control& box) {
    const auto& holder = static_cast<const TextHolder&>(box);
    return {holder.Text(), holder.SelStart(), holder.SelLength()};
}

bool TakesText(const Control& control) {
    if (control.kind() == Kind::TextBox) return static_cast<const TextBox&>(control).takes_text;
    return control.kind() == Kind::ComboBox;
}

// Characters of the line break that begins behind `place` characters; 1 where there is none.
int StepAt(const std::string& text, int place) {
    return place >= 0 && Mid(text, static_cast<std::size_t>(place) + 1, 2) == kLineBreak ? 2 : 1;
}

// Puts `text` in place of the `count` characters after the first `start`.
void Replace(Control& box, int start, int count, const std::string& text) {
    const std::string old = EditOf(box).text;
    const auto first = static_cast<std::size_t>(start);
    const std::size_t from = ByteOffset(old, first), to = ByteOffset(old, first + static_cast<std::size_t>(count));
    EnterText(box, old.substr(0, from) + text + old.substr(to), start + static_cast<int>(Length(text)));
}
}  // namespace

bool TakesFocus(Kind kind) {
    switch (kind) {
        case Kind::TextBox:
        case Kind::Button:
        case Kind::OptionButton:
        case Kind::CheckBox:
        case Kind::ComboBox:
        case Kind::Slider:
        case Kind::TabControl:
        case Kind::PictureBox:
            return true;
        default:
            return false;
    }
}

bool TakesKeysAsInput(const Control& control) {
    return control.kind() == Kind::TextBox && static_cast<const TextBox&>(control).takes_keys;
}

bool IsUsable(const Control& control) {
    if (control.kind() == Kind::MenuItem) return MenuIsUsable(static_cast<const MenuItem&>(control));
    for (const Control* inner = &control; inner; inner = inner->container)
        if (!inner->Visible() || !inner->Enabled() || !IsOnFrontTab(*inner)) return false;
    return true;
}

bool CanReach(const Control& control) {
    const Window& window = *control.window;
    return window.IsLoaded() && window.Visible() && window.Enabled() && IsUsable(control);
}

void BringToFront(Window& window) {
    if (window.Visible() && window.Enabled() && &window != ActiveWindow()) window.Show();
}

void OpenPopup(MenuItem& menu) {
    open_popup = &menu;
    services.popups->Open(menu);
}

void ClosePopup() {
    open_popup = nullptr;
}

void OpenMenu(MenuItem& menu) {
    if (CanReach(menu)) menu.Click.Raise();
}

void ClickOpenMenuItem(MenuItem& item) {
    if (!CanReach(item)) return;  // opening its menu may have switched it off
    ClosePopup();
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
    Button* const button = code == kEnterKey ? EnterButton(*window) : window->dismiss;
    if (!button || !IsInSight(*button)) return false;
    ClickControl(*button);
    return true;
}

void PressMouse(Control& control, Mouse mouse) {
    if (!CanReach(control)) return;
    BringToFront(*control.window);
    pressed = &control;
    if (TakesFocus(control.kind())) control.SetFocus();
    control.MouseDown.Raise(mouse);
}

void MoveMouse(Control& control, Mouse mouse) {
    if (CanReach(control) || &control == pressed) control.MouseMove.Raise(mouse);
}

void ReleaseMouse(Control& control, Mouse mouse) {
    if (&control != pressed) return;
    pressed = nullptr;
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
    switch (control.kind()) {
        case Kind::OptionButton:
            static_cast<OptionButton&>(control).SetValue(true);
            return;
        case Kind::CheckBox: {
            auto& box = static_cast<CheckBox&>(control);
            box.SetValue(box.Value() ? 0 : 1);
            return;
        }
        case Kind::MenuItem:
            ClickMenuItem(static_cast<MenuItem&>(control));
            return;
        case Kind::ComboBox:  // its Click is the choice of an item
            return;
        default:
            control.Click.Raise();
    }
}

Mouse AtCorner(const Control& control, MouseButton button) {
    if (control.kind() != Kind::PictureBox) return {button, 0, 0};
    const auto& picture = static_cast<const PictureBox&>(control);
    return {button, picture.ScaleLeft(), picture.ScaleTop()};
}

void ClickControl(Control& control) {
    if (!CanReach(control)) return;
    if (control.kind() != Kind::MenuItem) {
        const Mouse mouse = AtCorner(control, MouseButton::Left);
        PressMouse(control, mouse);
        ReleaseMouse(control, mouse);
    }
    FinishClick(control);
}

void FinishDoubleClick(Control& control) {
    if (CanReach(control)) control.DoubleClick.Raise();
}

void EnterText(Control& box, const std::string& text, int caret) {
    if (!HasKeyFocus(box) || !TakesText(box)) return;
    static_cast<TextHolder&>(box).Enter(text, caret);
}

void InsertText(Control& box, const std::string& text) {
    if (!TakesText(box)) return;
    const Edit edit = EditOf(box);
    Replace(box, edit.caret, edit.selected, text);
}

void DeleteBackward(Control& box) {
    if (!TakesText(box)) return;
    const Edit edit = EditOf(box);
    const int step = StepAt(edit.text, edit.caret - 2);
    if (edit.selected > 0)
        Replace(box, edit.caret, edit.selected, "");
    else if (edit.caret > 0)
        Replace(box, edit.caret - step, step, "");
}

void DeleteForward(Control& box) {
    if (!TakesText(box)) return;
    const Edit edit = EditOf(box);
    if (edit.selected > 0)
        Replace(box, edit.caret, edit.selected, "");
    else if (edit.caret < static_cast<int>(Length(edit.text)))
        Replace(box, edit.caret, StepAt(edit.text, edit.caret), "");
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
