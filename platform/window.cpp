#include "platform/window.h"

#include <algorithm>

#include "platform/text.h"
#include "platform/window_table.h"

namespace {
// The windows are globals that take themselves up before main: the list must be there first.
std::vector<Window*>& Register() {
    static std::vector<Window*> windows;
    return windows;
}

std::vector<Window*> shown;  // from the back to the front
Window* active = nullptr;
WindowView* window_view = nullptr;

void Tell(Window& window, WindowProperty property) {
    if (window_view) window_view->Changed(window, property);
}

// What was marked in a box that is left is not typed over when the focus comes back.
void Deselect(Control& control) {
    if (TextHolder* const holder = control.AsTextHolder()) holder->Deselect();
}

Window* Foremost() {
    const auto found = std::find_if(shown.rbegin(), shown.rend(), [](const Window* window) { return window->Enabled(); });
    return found == shown.rend() ? nullptr : *found;
}

Properties DesignOf(const ControlRow& row) {
    Properties design = row.control.State();
    design.box = row.place;
    design.text = row.caption;
    design.number = Val(row.caption);
    design.font_size = row.style.points;
    design.bold = row.style.bold;
    design.fore = row.style.fore;
    design.back = row.style.back.value_or(design.back);
    design.visible = row.style.visible;
    design.enabled = row.style.enabled;
    return design;
}
}  // namespace

const std::vector<Window*>& AllWindows() {
    return Register();
}
const std::vector<Window*>& ShownWindows() {
    return shown;
}
Window* ActiveWindow() {
    return active;
}
void BindWindowView(WindowView* view) {
    window_view = view;
}

// The box left behind loses the focus, and has it again when its window comes back to the front.
void ChangeActiveWindow() {
    Window* const next = Foremost();
    if (next == active) return;
    mouse_hold.popup = nullptr;
    Window* const left = active;
    active = next;
    if (left) left->LeaveFocus();
    if (active != next || !next) return;  // a procedure has brought up another window meanwhile
    next->EnterFocus();
    if (active == next) next->Activated.Raise();
}

Window::Window(const char* window_name, const char* title, int width, int height)
    : name(window_name), title_(title), design_title_(title), place_{0, 0, width, height}, design_place_(place_) {
    Register().push_back(this);
}

void Window::Lay(std::initializer_list<ControlRow> rows) {
    for (const ControlRow& row : rows) {
        row.control.named_by = row.named_by;
        row.control.accessible_name = row.accessible_name;
        row.control.tab_stop = row.style.tab_stop;
        row.control.SetDesign(DesignOf(row));
        row.control.name = row.name.name;
        row.control.index = row.name.index;
        row.control.window = this;
        row.control.BelongTo(*this);
        row.control.container = row.container;
        controls_.push_back(&row.control);
    }
}

void Window::LayMenus(std::initializer_list<MenuRow> rows) {
    for (const MenuRow& row : rows) Lay({{row.item, row.name, row.menu, {}, row.caption, row.style}});
}

void Window::KeepDesign() {
    for (Control* control : controls_) control->KeepDesign();
}

Control* Window::Find(const std::string& control_name, int index) const {
    for (Control* control : controls_)
        if (control->index == index && control->name == control_name) return control;
    return nullptr;
}

void Window::Load() {
    if (loaded_) return;
    loaded_ = true;
    Loaded.Raise();
}

void Window::Show() {
    stays_hidden_ = false;
    Load();
    if (stays_hidden_) return;
    std::erase(shown, this);
    shown.push_back(this);
    visible_ = true;
    Tell(*this, WindowProperty::Shown);
    ChangeActiveWindow();
}

void Window::Hide() {
    stays_hidden_ = true;
    if (!visible_) return;
    visible_ = false;
    std::erase(shown, this);
    Tell(*this, WindowProperty::Shown);
    ChangeActiveWindow();
}

void Window::Unload() {
    if (!loaded_) return;
    Unloading.Raise();
    if (focus_) Deselect(*focus_);
    focus_ = nullptr;
    Hide();
    loaded_ = false;
    enabled_ = true;
    title_ = design_title_;
    place_ = design_place_;
    Tell(*this, WindowProperty::Title);
    Tell(*this, WindowProperty::Enabled);
    Tell(*this, WindowProperty::Place);
    for (Control* control : controls_) control->ReturnToDesign();
    ForgetMembers();
}

void Window::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    Tell(*this, WindowProperty::Enabled);
    ChangeActiveWindow();
}

void Window::SetTitle(const std::string& title) {
    if (title == title_) return;
    title_ = title;
    Tell(*this, WindowProperty::Title);
}

void Window::SetSize(int width, int height) {
    if (width != place_.width || height != place_.height) TakeSize(width, height);
}

void Window::TakeSize(int width, int height) {
    place_.width = width;
    place_.height = height;
    Tell(*this, WindowProperty::Place);
    Resized.Raise();
}

void Window::SetPlace(int left, int top) {
    if (left == place_.left && top == place_.top) return;
    place_.left = left;
    place_.top = top;
    Tell(*this, WindowProperty::Place);
}

void Window::SetFocus(Control& control) {
    if (focus_ == &control) return;
    if (this == active) LeaveFocus();
    if (focus_) Deselect(*focus_);
    focus_ = &control;
    Tell(*this, WindowProperty::Focus);
    if (this == active) EnterFocus();
}

void Window::LeaveFocus() {
    if (focus_) focus_->LostFocus.Raise();
}

void Window::EnterFocus() {
    if (!focus_ && first_focus_ && first_focus_->IsUsable()) {
        focus_ = first_focus_;
        Tell(*this, WindowProperty::Focus);
    }
    if (focus_) focus_->GotFocus.Raise();
}

bool CanReach(const Control& control) {
    const Window& window = *control.window;
    return window.IsLoaded() && window.Visible() && window.Enabled() && control.IsUsable();
}

bool HoldsFocus(const Control& control) {
    return control.window == ActiveWindow() && control.window->Focus() == &control && CanReach(control);
}
