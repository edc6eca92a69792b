#include "platform/qt/views.h"

std::unique_ptr<ControlWidget> ControlWidget::Make(Control& control, WindowWidget& window, ControlWidget* owner) {
    switch (control.kind()) {
        case Kind::TextBox:
            return MakeView(static_cast<TextBox&>(control), window, owner);
        case Kind::Label:
            return MakeView(static_cast<Label&>(control), window, owner);
        case Kind::Button:
            return MakeView(static_cast<Button&>(control), window, owner);
        case Kind::OptionButton:
            return MakeView(static_cast<OptionButton&>(control), window, owner);
        case Kind::CheckBox:
            return MakeView(static_cast<CheckBox&>(control), window, owner);
        case Kind::ComboBox:
            return MakeView(static_cast<ComboBox&>(control), window, owner);
        case Kind::Frame:
            return MakeView(static_cast<Frame&>(control), window, owner);
        case Kind::TabControl:
            return MakeView(static_cast<TabControl&>(control), window, owner);
        case Kind::PictureBox:
            return MakeView(static_cast<PictureBox&>(control), window, owner);
        case Kind::ProgressBar:
            return MakeView(static_cast<ProgressBar&>(control), window, owner);
        case Kind::Slider:
            return MakeView(static_cast<Slider&>(control), window, owner);
        case Kind::ScrollBar:
            return MakeView(static_cast<ScrollBar&>(control), window, owner);
        case Kind::UpDown:
            return MakeView(static_cast<UpDown&>(control), window, owner);
        case Kind::StatusBar:
            return MakeView(static_cast<StatusBar&>(control), window, owner);
        case Kind::MenuItem:
            break;  // the menu bar shows it
    }
    return nullptr;
}
