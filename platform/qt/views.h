// One view for each kind of control. Here are the plain ones: labels, frames, progress bars, and the status bar, which shows nothing but
// its edge.
#pragma once
#include <memory>

#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/qt/control_widget.h"

// The view for the kind of the control, on a ground that belongs to `owner` (nullptr: the window's own). nullptr: there is none for it.
std::unique_ptr<ControlWidget> MakeControlWidget(Control& control, ViewHost& window, ControlWidget* owner);

std::unique_ptr<ControlWidget> MakeView(TextBox& box, ViewHost& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(Label& label, ViewHost& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(Button& button, ViewHost& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(OptionButton& option, ViewHost& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(CheckBox& box, ViewHost& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(ComboBox& box, ViewHost& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(Frame& frame, ViewHost& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(TabControl& tabs, ViewHost& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(PictureBox& picture, ViewHost& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(ProgressBar& bar, ViewHost& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(Slider& slider, ViewHost& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(ScrollBar& bar, ViewHost& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(UpDown& arrows, ViewHost& window, ControlWidget* owner);
std::unique_ptr<ControlWidget> MakeView(StatusBar& bar, ViewHost& window, ControlWidget* owner);
