// One view for each kind of control. ControlWidget::Make chooses among them.
#pragma once
#include <memory>

#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/qt/control_widget.h"

std::unique_ptr<ControlWidget> MakeView(TextBox& box, WindowWidget& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(Label& label, WindowWidget& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(Button& button, WindowWidget& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(OptionButton& option, WindowWidget& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(CheckBox& box, WindowWidget& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(ComboBox& box, WindowWidget& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(Frame& frame, WindowWidget& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(TabControl& tabs, WindowWidget& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(PictureBox& picture, WindowWidget& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(ProgressBar& bar, WindowWidget& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(Slider& slider, WindowWidget& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(ScrollBar& bar, WindowWidget& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(UpDown& arrows, WindowWidget& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(StatusBar& bar, WindowWidget& window, ControlWidget* owner);
