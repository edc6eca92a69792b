#include "platform/qt/views.h"

namespace {
class ViewMaker : public ControlVisitor {
public:
    ViewMaker(ViewHost& window, ControlWidget* owner) : window_(window), owner_(owner) {}

    std::unique_ptr<ControlWidget> Take() { return std::move(view_); }

    void Visit(TextBox& box) override { view_ = MakeView(box, window_, owner_); }
    void Visit(Label& label) override { view_ = MakeView(label, window_, owner_); }
    void Visit(Button& button) override { view_ = MakeView(button, window_, owner_); }
    void Visit(OptionButton& option) override { view_ = MakeView(option, window_, owner_); }
    void Visit(CheckBox& box) override { view_ = MakeView(box, window_, owner_); }
    void Visit(ComboBox& box) override { view_ = MakeView(box, window_, owner_); }
    void Visit(Frame& frame) override { view_ = MakeView(frame, window_, owner_); }
    void Visit(TabControl& tabs) override { view_ = MakeView(tabs, window_, owner_); }
    void Visit(PictureBox& picture) override { view_ = MakeView(picture, window_, owner_); }
    void Visit(ProgressBar& bar) override { view_ = MakeView(bar, window_, owner_); }
    void Visit(Slider& slider) override { view_ = MakeView(slider, window_, owner_); }
    void Visit(ScrollBar& bar) override { view_ = MakeView(bar, window_, owner_); }
    void Visit(UpDown& arrows) override { view_ = MakeView(arrows, window_, owner_); }
    void Visit(StatusBar& bar) override { view_ = MakeView(bar, window_, owner_); }
    void Visit(MenuItem&) override {}  // the menu bar shows it

private:
    ViewHost& window_;
    ControlWidget* owner_;
    std::unique_ptr<ControlWidget> view_;
};
}  // namespace

std::unique_ptr<ControlWidget> MakeControlWidget(Control& control, ViewHost& window, ControlWidget* owner) {
    ViewMaker maker(window, owner);
    control.Accept(maker);
    return maker.Take();
}
