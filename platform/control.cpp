#include "platform/control.h"

#include "platform/user.h"
#include "platform/window.h"

void Control::SetPlace(int left, int top) {
    SetLeft(left);
    SetTop(top);
}

void Control::SetFocus() {
    if (window && IsUsable(*this)) window->SetFocus(*this);
}

void Control::ReturnToDesign() {
    now_ = design_;
    for (const Property property :
         {Property::Text, Property::Caption, Property::Value, Property::Range, Property::Items, Property::Caret, Property::Enabled,
          Property::Visible, Property::Checked, Property::Font, Property::Colours, Property::Place, Property::ToolTip, Property::Drawing})
        Tell(property);
}
