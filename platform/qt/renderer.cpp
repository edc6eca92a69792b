#include "platform/qt/renderer.h"

#include <QApplication>
#include <QTimer>
#include <utility>

#include "platform/qt/mouse.h"
#include "platform/qt/window_widget.h"
#include "platform/user.h"

Renderer::Renderer(std::function<bool()> has_ended) : has_ended_(std::move(has_ended)) {
    BindWindowView(this);
}

Renderer::~Renderer() {
    BindWindowView(nullptr);
    widgets_.clear();
}

void Renderer::Run(const std::function<void()>& event) {
    if (has_ended_()) return;
    if (depth_ == 0) TellUserSizes();
    event_begins_();
    ++depth_;
    RunEvent(event);
    if (--depth_ > 0) return;
    Sync();
    BringToFront();
    if (WindowWidget* const active = ActiveWidget()) active->SyncFocus();
    ShowPointer();
    OpenPopup();
    if (was_shown_ && ShownWindows().empty() && !has_ended_()) nothing_is_shown_();
    event_is_over_();
}

// The user gave them before the event: it may close such a window.
void Renderer::TellUserSizes() {
    for (const auto& [window, widget] : widgets_)
        if (widget->HasNewSize()) widget->TellUserSize();
}

void Renderer::SyncLater(ModelView& view) {
    noted_.push_back(&view);
    SyncSoon();
}

// What changes outside any event is shown all the same.
void Renderer::SyncSoon() {
    if (depth_ > 0 || sync_soon_) return;
    sync_soon_ = true;
    QTimer::singleShot(0, this, [this] {
        sync_soon_ = false;
        Run([] {});
    });
}

void Renderer::Sync() {
    if (std::exchange(windows_changed_, false)) SyncWindows();
    while (!noted_.empty())
        for (ModelView* view : std::exchange(noted_, {})) view->Sync();
}

void Renderer::Changed(Window& window, WindowProperty property) {
    if (WindowWidget* const widget = WidgetOf(window)) widget->NoteChange(property);
    if (property != WindowProperty::Focus) windows_changed_ = true;
    SyncSoon();
}

WindowWidget* Renderer::WidgetOf(const Window& window) const {
    const auto found = widgets_.find(&window);
    return found == widgets_.end() ? nullptr : found->second.get();
}

WindowWidget* Renderer::ActiveWidget() const {
    return ActiveWindow() ? WidgetOf(*ActiveWindow()) : nullptr;
}

// Windows that come are shown before those that go are hidden, so that the desktop gives the focus to no other program in between.
void Renderer::SyncWindows() {
    for (Window* window : std::vector<Window*>(ShownWindows())) {  // a copy: a window that comes to the front moves in the list
        auto& widget = widgets_[window];
        if (!widget) widget = std::make_unique<WindowWidget>(*window, *this);
        if (widget->isVisible())
            widget->Sync();
        else
            ShowWindow(*window, *widget);
    }
    for (const auto& [window, widget] : widgets_)
        if (!window->Visible() && widget->isVisible()) widget->PutAway();
}

// A dialog belongs to the window that it disables, and stays above it.
void Renderer::ShowWindow(Window& window, WindowWidget& widget) {
    WindowWidget* below = nullptr;
    for (Window* other : ShownWindows()) {
        if (other == &window) break;
        if (WindowWidget* const shown = WidgetOf(*other); shown && !other->Enabled()) below = shown;
    }
    widget.ShowAbove(below);
    was_shown_ = true;
}

void Renderer::BringToFront() {
    Window* const front = ActiveWindow();
    if (front == in_front_) return;
    WindowWidget* const before = in_front_ ? WidgetOf(*in_front_) : nullptr;
    const bool is_under_way = before && before->StopsWaiting();  // the desktop will bring that one up all the same
    in_front_ = front;
    if (WindowWidget* const widget = ActiveWidget(); widget && (is_under_way || !widget->isActiveWindow())) widget->BringToFront();
}

void Renderer::UserActivates(Window& window) {
    if (depth_ > 0 || QApplication::activeModalWidget() || &window == ActiveWindow()) return;
    if (WindowWidget* const wanted = ActiveWidget(); wanted && wanted->WaitsForFront()) return;  // the desktop has not caught up yet
    if (window.Enabled() && window.Visible())
        Run([&window] { ::BringToFront(window); });
    else if (WindowWidget* const active = ActiveWidget())
        active->BringToFront();
}

void Renderer::OpenPopup() {
    MenuItem* const menu = std::exchange(popup_, nullptr);
    if (!menu || has_ended_()) return;
    if (WindowWidget* const widget = WidgetOf(*menu->window)) widget->OpenPopup(*menu);
}
