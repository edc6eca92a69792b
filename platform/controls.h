// The kinds of control. Each adds to Control the properties that it alone has, under the names that procedures use.
#pragma once
#include <string>
#include <vector>

#include "platform/control.h"

// What text boxes and combo boxes have in common: a text that is typed, a caret, and what is selected behind it.
class TextHolder : public Control {
public:
    const std::string& Text() const { return now_.text; }
    double Number() const { return now_.number; }  // Val of the text, kept so that reading it costs nothing
    // The program sets the text: the caret goes to its front, and Change is raised before SetText returns.
    void SetText(const std::string& text);
    // The user typed or pasted: the text as it now stands, the caret behind what was put in. Raises Change.
    void Enter(const std::string& text, int caret);

    int SelStart() const { return now_.caret; }  // characters before the caret
    void SetSelStart(int characters);
    int SelLength() const { return selected_; }  // characters selected behind the caret
    void Select(int start, int length);          // by the user
    void SelectAll();                            // by the program: what is typed next replaces the whole text
    void Deselect() { SetSelStart(now_.caret); }

    TextHolder* AsTextHolder() override { return this; }
    virtual bool TakesText() const { return true; }          // false: it can hold the focus, but what is typed lands nowhere
    virtual bool TakesKeysAsInput() const { return false; }  // each key counts as itself
    virtual bool BreaksLines() const { return false; }       // at Enter
    virtual bool IsCentred() const { return false; }
    virtual bool IsTypedOver() const { return false; }  // a click into it marks the whole text

protected:
    explicit TextHolder(Kind kind) : Control(kind) { now_.back = kWhite; }
    virtual void HasBeenEdited() {}      // by the user, after Change
    bool Hold(const std::string& text);  // tells nobody; false: it is the text already

private:
    int selected_ = 0;
};

class TextBox : public TextHolder {
public:
    TextBox() : TextHolder(Kind::TextBox) {}
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

    bool multiline = false;  // set once, with the design
    bool centred = false;
    bool takes_keys = false;  // each key counts as itself, whatever it types or does elsewhere: Tab, Enter and dead keys too
    bool takes_text = true;   // false: it can hold the focus, but what is typed lands nowhere
    std::string placeholder;  // a text that stands for nothing: a click into the box selects it, to type over it; empty: none
    bool marks_all = false;   // that click selects whatever it holds: a name that is there to be changed

    bool TakesText() const override { return takes_text; }
    bool TakesKeysAsInput() const override { return takes_keys; }
    bool BreaksLines() const override { return multiline; }
    bool IsCentred() const override { return centred; }
    bool IsTypedOver() const override { return !Text().empty() && (marks_all || Text() == placeholder); }
};

class Label : public Control {
public:
    Label() : Control(Kind::Label) {}
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
    const std::string& Caption() const { return now_.text; }
    void SetCaption(const std::string& caption);  // raises Change
    bool centred = false;
    bool right_aligned = false;
};

class Button : public Control {
public:
    Button() : Control(Kind::Button) {}
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
    const std::string& Caption() const { return now_.text; }
    void SetCaption(const std::string& caption) { Assign(now_.text, caption, Property::Caption); }
};

// One of the options that stand in the same container is selected at a time.
class OptionButton : public Control {
public:
    OptionButton() : Control(Kind::OptionButton) {}
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
    const std::string& Caption() const { return now_.text; }
    void SetCaption(const std::string& caption) { Assign(now_.text, caption, Property::Caption); }
    bool Value() const { return now_.selected; }
    void SetValue(bool selected);  // true takes the selection from its siblings, then raises Click
    void TakeClick() override { SetValue(true); }
};

class CheckBox : public Control {
public:
    CheckBox() : Control(Kind::CheckBox) {}
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
    const std::string& Caption() const { return now_.text; }
    void SetCaption(const std::string& caption) { Assign(now_.text, caption, Property::Caption); }
    int Value() const { return now_.ticked; }
    void SetValue(int value);  // 0 or 1; raises Click
    void TakeClick() override { SetValue(Value() ? 0 : 1); }
};

class ComboBox : public TextHolder {
public:
    ComboBox() : TextHolder(Kind::ComboBox) {}
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

    Event<> Edited;               // the user typed into the text box; Change is raised as well
    void TakeClick() override {}  // its Click is the choice of an item

    const std::vector<std::string>& List() const { return now_.items; }
    int ListCount() const { return static_cast<int>(now_.items.size()); }
    void AddItem(const std::string& item);
    void SetItem(int item, const std::string& text);  // nothing if there is no such item
    void Clear();                                     // the list and the text, with no event
    void Choose(int item);                            // the user picks an item: the text takes it, Click is raised even if it shows already

private:
    void HasBeenEdited() override { Edited.Raise(); }
};

class Frame : public Control {
public:
    Frame() : Control(Kind::Frame) {}
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
    const std::string& Caption() const { return now_.text; }
    void SetCaption(const std::string& caption) { Assign(now_.text, caption, Property::Caption); }
    bool Border() const { return now_.border; }  // without it the caption is not shown either
    void SetBorder(bool border) { Assign(now_.border, border, Property::Value); }
};

class TabControl : public Control {
public:
    TabControl() : Control(Kind::TabControl) {}
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
    int Tab() const { return now_.tab; }
    void SetTab(int tab);  // raises Change
    bool IsPageInFront(int page) const override { return page == Tab(); }
    const std::vector<std::string>& TabCaptions() const { return now_.items; }
    void SetTabCaptions(const std::vector<std::string>& captions) { Assign(now_.items, captions, Property::Items); }
};

class ProgressBar : public Control {
public:
    ProgressBar() : Control(Kind::ProgressBar) {}
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
    int Value() const { return now_.value; }
    int Min() const { return now_.minimum; }
    int Max() const { return now_.maximum; }
    void SetValue(int value) { Assign(now_.value, value, Property::Value); }  // past the maximum the bar is just full
    void SetRange(int minimum, int maximum);
};

// A value between two ends, moved by the user or the program; raises Change, also while the user drags.
class RangeControl : public Control {
public:
    int Value() const { return now_.value; }
    int Min() const { return now_.minimum; }
    int Max() const { return now_.maximum; }
    int SmallChange() const { return now_.small_change; }
    int LargeChange() const { return now_.large_change; }
    void SetValue(int value);                 // kept within the ends
    void SetRange(int minimum, int maximum);  // a value outside is brought back without an event
    void SetSteps(int small_change, int large_change);

protected:
    using Control::Control;
};

class Slider : public RangeControl {
public:
    Slider() : RangeControl(Kind::Slider) {}
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
    bool vertical = false;
};

class ScrollBar : public RangeControl {
public:
    ScrollBar() : RangeControl(Kind::ScrollBar) {}
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
};

class UpDown : public Control {
public:
    UpDown() : Control(Kind::UpDown) {}
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
    Event<> UpClick;
    Event<> DownClick;
};

class StatusBar : public Control {
public:
    StatusBar() : Control(Kind::StatusBar) {}
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
};

// An item of a menu bar or popup. Its container is the menu it stands in. Clicking an item first raises Click of the menus on its way.
class MenuItem : public Control {
public:
    MenuItem() : Control(Kind::MenuItem) {}
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
    const std::string& Caption() const { return now_.text; }  // "&" stands before the access key, "-" alone is a separator
    void SetCaption(const std::string& caption) { Assign(now_.text, caption, Property::Caption); }
    bool Checked() const { return now_.checked; }
    void SetChecked(bool checked) { Assign(now_.checked, checked, Property::Checked); }
    char control_letter = 0;  // 'S' for Ctrl+S; 0: none

    MenuItem* Menu() const { return static_cast<MenuItem*>(container); }  // that it stands in; nullptr: on the bar
    bool IsInOpenPopup() const;                                           // it is the popup that is open, or stands in it
    bool IsUsable() const override;  // what stands in an open popup needs no place on the bar; all else needs every menu on its way
};

// What the user has opened and holds down with the mouse, whatever the window; nullptr: nothing.
struct MouseHold {
    MenuItem* popup = nullptr;   // its items can be reached until one is clicked, or another window comes up
    Control* pressed = nullptr;  // from the press on it to the release
};
inline MouseHold mouse_hold;

// Of any control; false for one that holds no text.
bool TakesText(const Control& control);
bool TakesKeysAsInput(const Control& control);
