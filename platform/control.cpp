#include "platform/control.h"

#include <algorithm>

namespace {
bool IsSpoken(unsigned char byte) {
    return byte >= 0x80 || (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

// "" if there is nothing in it to be spoken.
std::string Words(const std::string& text) {
    if (std::none_of(text.begin(), text.end(), IsSpoken)) return "";
    const std::size_t start = text.find_first_not_of(" \r\n");
    return text.substr(start, text.find_last_not_of(":- \r\n") + 1 - start);
}

std::string WithoutAccessKey(std::string caption) {
    std::erase(caption, '&');
    return caption;
}

std::string Caption(const Control& control) {
    switch (control.kind()) {
        case Kind::Label:
        case Kind::Button:
        case Kind::OptionButton:
        case Kind::CheckBox:
        case Kind::Frame:
            return control.State().text;
        case Kind::MenuItem:
            return WithoutAccessKey(control.State().text);
        default:
            return "";
    }
}

// A label that was renamed to nothing is called as it was designed: what it names keeps a name of its own.
std::string LabelText(const Control* label) {
    if (!label) return "";
    const std::string& now = label->State().text;
    return Words(now).empty() ? label->DesignText() : now;
}
}  // namespace

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

std::string SpokenName(const Control& control) {
    std::string name;
    for (const std::string& part : {control.accessible_name, Caption(control), LabelText(control.named_by)}) {
        const std::string words = Words(part);
        if (!words.empty()) name += (name.empty() ? "" : ": ") + words;
    }
    return name;
}
