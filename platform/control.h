// What all controls share. A control is data: it holds its properties and raises its events; it draws nothing. A view, if a platform
// binds one, is told of each change and shows it.
//
// Setting a property to the value it has does nothing. All places are in twips (a fifteenth of a pixel at 100 %), in the container's
// own coordinates.
#pragma once
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/event.h"

class Window;
class Control;
class TextHolder;
class Button;
class CheckBox;
class ComboBox;
class Frame;
class Label;
class MenuItem;
class OptionButton;
class PictureBox;
class ProgressBar;
class ScrollBar;
class Slider;
class StatusBar;
class TabControl;
class TextBox;
class UpDown;

enum class Kind {
    TextBox,
    Label,
    Button,
    OptionButton,
    CheckBox,
    ComboBox,
    Frame,
    TabControl,
    PictureBox,
    ProgressBar,
    Slider,
    ScrollBar,
    UpDown,
    StatusBar,
    MenuItem,
};

enum class Property { Text, Caption, Value, Range, Items, Caret, Enabled, Visible, Checked, Font, Colours, Place, ToolTip, Drawing };

enum class MouseButton { None, Left, Right };

struct Mouse {
    MouseButton button = MouseButton::None;  // of a move: the button held
    double x = 0;                            // in the scale of a picture, else in twips of the control
    double y = 0;
};

// The virtual-key numbers that the program knows by name. They are the numbers that Windows gives the keys, on every system.
constexpr int kBackspaceKey = 8;
constexpr int kTabKey = 9;
constexpr int kEnterKey = 13;
constexpr int kEscapeKey = 27;
constexpr int kDeleteKey = 46;

constexpr int kTwipsPerPixel = 15;  // at 100 %
constexpr int kTwipsPerPoint = 20;

struct Box {  // in twips
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Colour&) const = default;
};

constexpr Colour kBlack{0, 0, 0};
constexpr Colour kWhite{255, 255, 255};
constexpr Colour kFormColour{236, 238, 240};  // the ground of every window

class ControlView {
public:
    virtual ~ControlView() = default;
    virtual void Changed(Property property) = 0;
};

// The properties of every kind in one plain record, so that the design state of a control can be kept and come back as a whole.
struct Properties {
    Box box;
    bool enabled = true;
    bool visible = true;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    double font_size = 9;  // in points
    Colour back = kFormColour;
    Colour fore = kBlack;
    std::string tool_tip;
    std::string text;   // the text of a box, the caption of all else
    double number = 0;  // the leading number of the text of a box
    int caret = 0;      // characters before it
    int value = 0;      // of a slider, scroll bar or progress bar
    int minimum = 0;
    int maximum = 100;
    int small_change = 1;
    int large_change = 10;
    int tab = 0;                     // the one in front, from 0
    bool selected = false;           // of an option button
    int ticked = 0;                  // of a check box: 0 or 1
    bool checked = false;            // of a menu item
    bool border = true;              // of a frame
    std::vector<std::string> items;  // of a list; the captions of tabs
};

bool TakesFocus(Kind kind);  // at a click

// What is done differently for each kind: Control::Accept calls the function of its own.
class ControlVisitor {
public:
    virtual void Visit(TextBox& box) = 0;
    virtual void Visit(Label& label) = 0;
    virtual void Visit(Button& button) = 0;
    virtual void Visit(OptionButton& option) = 0;
    virtual void Visit(CheckBox& box) = 0;
    virtual void Visit(ComboBox& box) = 0;
    virtual void Visit(Frame& frame) = 0;
    virtual void Visit(TabControl& tabs) = 0;
    virtual void Visit(PictureBox& picture) = 0;
    virtual void Visit(ProgressBar& bar) = 0;
    virtual void Visit(Slider& slider) = 0;
    virtual void Visit(ScrollBar& bar) = 0;
    virtual void Visit(UpDown& arrows) = 0;
    virtual void Visit(StatusBar& bar) = 0;
    virtual void Visit(MenuItem& item) = 0;

protected:
    ~ControlVisitor() = default;
};

// The window of a control, as far as the control needs it.
class ControlOwner {
public:
    virtual const std::vector<Control*>& Controls() const = 0;
    virtual void SetFocus(Control& control) = 0;

protected:
    ~ControlOwner() = default;
};

class Control {
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    Kind kind() const { return kind_; }

    // Set once, when the window takes the control up.
    std::string name;  // "Text1"
    int index = -1;    // -1: not of a control array
    Window* window = nullptr;
    Control* container = nullptr;  // nullptr: the window itself
    int page = -1;                 // the tab of the container it lies on; -1: on all
    bool tab_stop = true;          // whether Tab can bring the focus here
    std::string accessible_name;   // what a screen reader says for it, where no caption on it or beside it does
    Control* named_by = nullptr;   // the label beside it; of a count, the name of its taxon
    int size_group = 0;            // of its window: all in it have letters of one size; 0: it has a size of its own

    Event<> Click;
    Event<> DoubleClick;
    Event<> Change;
    Event<> GotFocus;
    Event<> LostFocus;
    Event<> WalkedTo;    // Tab has brought the focus here, after GotFocus
    Event<int> KeyDown;  // virtual-key number
    Event<int> KeyUp;
    Event<Mouse> MouseDown;
    Event<Mouse> MouseMove;
    Event<Mouse> MouseUp;

    int Left() const { return now_.box.left; }
    int Top() const { return now_.box.top; }
    int Width() const { return now_.box.width; }
    int Height() const { return now_.box.height; }
    bool Enabled() const { return now_.enabled; }
    bool Visible() const { return now_.visible; }
    bool Bold() const { return now_.bold; }
    bool Italic() const { return now_.italic; }
    bool Underline() const { return now_.underline; }
    double FontSize() const { return now_.font_size; }
    Colour BackColor() const { return now_.back; }
    Colour ForeColor() const { return now_.fore; }
    const std::string& ToolTip() const { return now_.tool_tip; }

    void SetLeft(int left) { Assign(now_.box.left, left, Property::Place); }
    void SetTop(int top) { Assign(now_.box.top, top, Property::Place); }
    void SetWidth(int width) { Assign(now_.box.width, width, Property::Place); }
    void SetHeight(int height) { Assign(now_.box.height, height, Property::Place); }
    void SetPlace(int left, int top);
    void SetEnabled(bool enabled) { Assign(now_.enabled, enabled, Property::Enabled); }
    void SetVisible(bool visible) { Assign(now_.visible, visible, Property::Visible); }
    void SetBold(bool bold) { Assign(now_.bold, bold, Property::Font); }
    void SetItalic(bool italic) { Assign(now_.italic, italic, Property::Font); }
    void SetUnderline(bool underline) { Assign(now_.underline, underline, Property::Font); }
    void SetFontSize(double points) { Assign(now_.font_size, points, Property::Font); }
    void SetBackColor(Colour colour) { Assign(now_.back, colour, Property::Colours); }
    void SetForeColor(Colour colour) { Assign(now_.fore, colour, Property::Colours); }
    void SetToolTip(const std::string& text) { Assign(now_.tool_tip, text, Property::ToolTip); }

    // Every property as it is now: for a platform and for the driver, which read all kinds alike.
    const Properties& State() const { return now_; }

    // It and what contains it are visible and enabled, and it lies on the tab in front. The state of its window is left aside.
    virtual bool IsUsable() const;
    virtual bool IsPageInFront(int /*page*/) const { return true; }  // of those that it contains
    void SetFocus();  // makes it the one with the focus in its window; nothing if it is not usable

    virtual void Accept(ControlVisitor& visitor) = 0;
    virtual TextHolder* AsTextHolder() { return nullptr; }
    const TextHolder* AsTextHolder() const { return const_cast<Control*>(this)->AsTextHolder(); }
    virtual Mouse AtCorner(MouseButton button) const { return {button, 0, 0}; }  // at its upper left corner, in its own scale
    virtual void TakeClick() { Click.Raise(); }                                  // a click by the user, after its press and release

    void BelongTo(ControlOwner& owner) { owner_ = &owner; }
    void BindView(ControlView* view) { view_ = view; }
    void SetDesign(Properties design) { now_ = std::move(design); }  // by the window that lays it down: raises nothing
    void KeepDesign() { design_ = now_; }
    const Box& DesignBox() const { return design_.box; }
    const std::string& DesignText() const { return design_.text; }
    virtual void ReturnToDesign();

protected:
    explicit Control(Kind kind) : kind_(kind) {}

    template <class T>
    bool Assign(T& property, const T& value, Property changed) {
        if (property == value) return false;
        property = value;
        Tell(changed);
        return true;
    }
    void Tell(Property changed) const {
        if (view_) view_->Changed(changed);
    }

    Properties now_;
    ControlOwner* owner_ = nullptr;

private:
    Kind kind_;
    Properties design_;
    ControlView* view_ = nullptr;
};

// What a screen reader says for a control: its accessible name, its own caption and the words of the control that names it, as they are
// now, in this order: "Set alarm: All total". A part without a letter or digit, such as the "---" of a cell that has no taxon, is left out,
// and so are blanks, dashes and the colon at an end. A label with nothing left in it counts as it was designed: "Subtotal-1".
std::string SpokenName(const Control& control);
