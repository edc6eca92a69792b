#include "platform/controls.h"

#include <algorithm>

#include "platform/text.h"

namespace {
int WithinText(const std::string& text, int characters) {
    return std::clamp(characters, 0, static_cast<int>(Length(text)));
}
}  // namespace

bool TextHolder::Hold(const std::string& text) {
    if (text == now_.text) return false;
    now_.text = text;
    now_.number = Val(text);
    return true;
}

void TextHolder::SetText(const std::string& text) {
    if (!Hold(text)) return;
    now_.caret = 0;
    selected_ = 0;
    Tell(Property::Text);
    Change.Raise();
}

void TextHolder::Enter(const std::string& text, int caret) {
    selected_ = 0;
    now_.caret = WithinText(text, caret);
    Tell(Property::Caret);
    if (!Hold(text)) return;
    Tell(Property::Text);
    Change.Raise();
    HasBeenEdited();
}

void TextHolder::SetSelStart(int characters) {
    selected_ = 0;
    Assign(now_.caret, WithinText(now_.text, characters), Property::Caret);
}

void TextHolder::Select(int start, int length) {
    now_.caret = WithinText(now_.text, start);
    selected_ = WithinText(now_.text, now_.caret + length) - now_.caret;
}

void TextHolder::SelectAll() {
    Select(0, static_cast<int>(Length(now_.text)));
    Tell(Property::Caret);
}

void Label::SetCaption(const std::string& caption) {
    if (Assign(now_.text, caption, Property::Caption)) Change.Raise();
}

void OptionButton::SetValue(bool selected) {
    if (selected == Value()) return;
    if (selected) {
        for (Control* sibling : owner_->Controls())
            if (auto* const option = dynamic_cast<OptionButton*>(sibling); option && option != this && option->container == container)
                option->SetValue(false);
    }
    Assign(now_.selected, selected, Property::Value);
    if (selected) Click.Raise();
}

void CheckBox::SetValue(int value) {
    if (Assign(now_.ticked, value, Property::Value)) Click.Raise();
}

void ComboBox::AddItem(const std::string& item) {
    now_.items.push_back(item);
    Tell(Property::Items);
}

void ComboBox::SetItem(int item, const std::string& text) {
    if (item >= 0 && item < ListCount()) Assign(now_.items[static_cast<std::size_t>(item)], text, Property::Items);
}

void ComboBox::Clear() {
    if (now_.items.empty() && now_.text.empty()) return;
    now_.items.clear();
    Hold("");
    now_.caret = 0;
    Tell(Property::Items);
    Tell(Property::Text);
}

void ComboBox::Choose(int item) {
    if (item < 0 || item >= ListCount()) return;
    now_.caret = 0;
    if (Hold(now_.items[item])) Tell(Property::Text);
    Click.Raise();
}

void TabControl::SetTab(int tab) {
    if (Assign(now_.tab, tab, Property::Value)) Change.Raise();
}

void ProgressBar::SetRange(int minimum, int maximum) {
    Assign(now_.minimum, minimum, Property::Range);
    Assign(now_.maximum, maximum, Property::Range);
}

void RangeControl::SetValue(int value) {
    if (Assign(now_.value, std::clamp(value, now_.minimum, std::max(now_.minimum, now_.maximum)), Property::Value)) Change.Raise();
}

void RangeControl::SetRange(int minimum, int maximum) {
    Assign(now_.minimum, minimum, Property::Range);
    Assign(now_.maximum, maximum, Property::Range);
    Assign(now_.value, std::clamp(now_.value, minimum, std::max(minimum, maximum)), Property::Value);
}

void RangeControl::SetSteps(int small_change, int large_change) {
    Assign(now_.small_change, small_change, Property::Range);
    Assign(now_.large_change, large_change, Property::Range);
}

bool MenuItem::IsInOpenPopup() const {
    const MenuItem* menu = this;
    while (menu && menu != mouse_hold.popup) menu = menu->Menu();
    return menu != nullptr;
}

bool MenuItem::IsUsable() const {
    for (const MenuItem* menu = this; menu; menu = menu->Menu()) {
        if (!menu->Enabled()) return false;
        if (menu == mouse_hold.popup && menu != this) return true;
        if (!menu->Visible()) return false;
    }
    return true;
}

bool TakesText(const Control& control) {
    const TextHolder* const holder = control.AsTextHolder();
    return holder && holder->TakesText();
}

bool TakesKeysAsInput(const Control& control) {
    const TextHolder* const holder = control.AsTextHolder();
    return holder && holder->TakesKeysAsInput();
}
