// The hands that need no window: each action is told to the windows as data.
#pragma once
#include "platform/hands.h"

class HeadlessHands : public Hands {
public:
    explicit HeadlessHands(std::function<bool()> has_ended) : has_ended_(std::move(has_ended)) {}

    void Start() override;
    void KeyDown(int code) override;
    void KeyUp(int code) override;
    void Press(int code, const std::string& character) override;
    void FocusBox(Control& box) override;
    void SetBox(Control& box, const std::string& text) override;
    void Paste(const std::string& text) override;
    void Click(Control& control) override;
    void DoubleClick(Control& control) override;
    void RightClick(Control& control) override;
    void Choose(ComboBox& box, int item) override;
    void PressTab(TabControl& tabs, int tab) override;
    void Slide(RangeControl& range, int value) override;
    void Spin(UpDown& arrows, bool up) override;
    void MouseDown(Control& control, MouseButton button, double x, double y) override;
    void MouseUp(Control& control, MouseButton button, double x, double y) override;
    void MouseMove(Control& control, double x, double y) override;
    void MouseDownOnWindow(Window& window, MouseButton button, double x, double y) override;
    void MouseUpOnWindow(Window& window, MouseButton button, double x, double y) override;
    void MouseMoveOverWindow(Window& window, double x, double y) override;
    void Resize(Window& window, int width, int height) override;
    void Close(Window& window) override;
    bool SaveImage(Window&, Control*, const std::string&) override { return false; }

private:
    // One event; nothing if the program has ended.
    void Run(const std::function<void()>& event);

    std::function<bool()> has_ended_;
    MouseButton held_ = MouseButton::None;
};
