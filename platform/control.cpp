#include "platform/control.h"

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

void Control::SetPlace(int left, int top) {
    SetLeft(left);
    SetTop(top);
}

bool Control::IsUsable() const {
    for (const Control* inner = this; inner; inner = inner->container)
        if (!inner->Visible() || !inner->Enabled() || (inner->page >= 0 && !inner->container->IsPageInFront(inner->page))) return false;
    return true;
}

void Control::SetFocus() {
    if (owner_ && IsUsable()) owner_->SetFocus(*this);
}

void Control::ReturnToDesign() {
    now_ = design_;
    for (const Property property :
         {Property::Text, Property::Caption, Property::Value, Property::Range, Property::Items, Property::Caret, Property::Enabled,
          Property::Visible, Property::Checked, Property::Font, Property::Colours, Property::Place, Property::ToolTip, Property::Drawing})
        Tell(property);
}
