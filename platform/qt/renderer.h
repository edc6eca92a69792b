// Shows the windows of the program and tells it what the user does.
//
// Each thing the user does is one event, run by Run. What the program changes meanwhile is noted and shown when the event is over, or
// by Sync in the middle of it: before a box opens, when a bar moves. The program holds the focus and says which window is active; the
// widgets are made to agree with it after every event. There is one renderer, from before the start of the program to its end.
#pragma once
#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/controls.h"
#include "platform/qt/control_widget.h"
#include "platform/window.h"

class WindowWidget;

class Renderer : public QObject, public UserEvents, private WindowView {
public:
    // Binds itself to the windows. No event reaches the program once it `has_ended`.
    explicit Renderer(std::function<bool()> has_ended = [] { return false; });
    ~Renderer() override;

    void Run(const std::function<void()>& event) override;
    void Sync();
    bool InEvent() const override { return depth_ > 0; }

    // Called after an event that leaves no window on the screen: the user could not go on.
    void WhenNothingIsShown(std::function<void()> procedure) { nothing_is_shown_ = std::move(procedure); }

    // Called after every event, when what it changed is on show.
    void WhenEventIsOver(std::function<void()> procedure) { event_is_over_ = std::move(procedure); }
    void WhenEventBegins(std::function<void()> procedure) { event_begins_ = std::move(procedure); }

    void SyncLater(ModelView& view) override;
    int TextChanges() const { return text_changes_; }  // grows whenever the text of a box changes
    void TextChanged() override { ++text_changes_; }
    void OpenPopupAfterEvent(MenuItem& menu) { popup_ = &menu; }
    void UserActivates(Window& window) override;

    WindowWidget* WidgetOf(const Window& window) const;  // nullptr while it has never been shown
    WindowWidget* ActiveWidget() const;

private:
    void Changed(Window& window, WindowProperty property) override;
    void TellUserSizes();
    void SyncWindows();
    void ShowWindow(Window& window, WindowWidget& widget);
    void BringToFront();
    void OpenPopup();
    void SyncSoon();

    std::function<bool()> has_ended_;
    std::function<void()> nothing_is_shown_ = [] {};
    std::function<void()> event_begins_ = [] {};
    std::function<void()> event_is_over_ = [] {};
    int depth_ = 0;  // events that run, one inside the other
    int text_changes_ = 0;
    bool sync_soon_ = false;
    bool windows_changed_ = false;
    bool was_shown_ = false;  // some window has been
    Window* in_front_ = nullptr;
    MenuItem* popup_ = nullptr;
    std::vector<ModelView*> noted_;
    std::map<const Window*, std::unique_ptr<WindowWidget>> widgets_;
};
