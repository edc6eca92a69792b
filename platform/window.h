// A window as data, and the order in which windows stand on the screen. One window is active: the foremost that is shown and enabled.
#pragma once
#include <initializer_list>
#include <string>
#include <vector>

#include "platform/control.h"
#include "platform/controls.h"

enum class WindowProperty { Title, Enabled, Shown, Place, Focus, BackColor };

struct ControlRow;  // platform/window_table.h
struct MenuRow;

class WindowView {
public:
    virtual ~WindowView() = default;
    virtual void Changed(Window& window, WindowProperty property) = 0;
};

class Window : public ControlOwner {
public:
    Window(const char* name, const char* title, int width, int height);  // twips, without the frame and the menu bar
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    virtual ~Window() = default;

    const std::string name;
    bool key_preview = false;   // the window sees a key before the control with the focus
    Button* confirm = nullptr;  // Enter presses it and Esc the other, wherever the focus is, unless the control there wants the key
    Button* dismiss = nullptr;
    bool covers_screen = false;  // all of it, without a frame
    int unfolds_to = 0;          // the height, in twips, that it comes to have while it is up; 0: the one it has
    bool resizable = false;      // the user's size is the window's own; otherwise a larger window is the same one, enlarged
    Event<> Loaded;              // raised once by Load
    Event<> Unloading;
    Event<> Activated;                      // it has become the active window
    Event<> FocusGiven;                     // by a screen reader, to a control that it does not press
    Event<> FrameClosed;                    // the user closes it by its frame; if nothing is joined, it is just unloaded
    Event<> Resized;                        // by the user, or by SetSize
    Event<const std::string&> FileDropped;  // by the user onto it: the path. A window that joins nothing takes none
    Event<int> KeyDown;
    Event<int> KeyUp;
    Event<Mouse> MouseDown;
    Event<Mouse> MouseMove;

    bool IsLoaded() const { return loaded_; }
    bool Visible() const { return visible_; }
    bool Enabled() const { return enabled_; }
    const std::string& Title() const { return title_; }
    int Left() const { return place_.left; }
    int Top() const { return place_.top; }
    int Width() const { return place_.width; }
    int Height() const { return place_.height; }
    Colour BackColor() const { return back_; }

    void Load();    // nothing if it is loaded
    void Show();    // loads it, brings it to the front; a window that hides itself while it loads stays hidden
    void Hide();    // stays loaded
    void Unload();  // hides it and puts it back into its design state; nothing if it is not loaded
    void SetEnabled(bool enabled);
    void SetTitle(const std::string& title);
    void SetSize(int width, int height);   // by the program: raises Resized if it is another size
    void TakeSize(int width, int height);  // by the user: raises Resized even at the same size
    void SetPlace(int left, int top);

    Control* Focus() const { return focus_; }
    void SetFocus(Control& control) override;

    const std::vector<Control*>& Controls() const override { return controls_; }
    // The controls among which Tab goes round and round from this one, in order; empty: the stops of the whole window.
    virtual std::vector<Control*> RoundOf(const Control& /*control*/) { return {}; }
    Control* Find(const std::string& control_name, int index) const;  // index -1: not of an array; nullptr if there is none

protected:
    // Take the controls up, in the order of their rows: each once, from the constructor of the window.
    void Lay(std::initializer_list<ControlRow> rows);
    void LayMenus(std::initializer_list<MenuRow> rows);
    void FirstFocus(Control& control) { first_focus_ = &control; }  // has the focus when the window comes up
    void KeepDesign();                                              // ends the design; Unload comes back to it
    virtual void ForgetMembers() {}                                 // the window's own members back to their first values

private:
    friend void ChangeActiveWindow();
    void LeaveFocus();
    void EnterFocus();

    std::string title_, design_title_;
    Box place_, design_place_;
    Colour back_ = kFormColour;
    bool loaded_ = false;
    bool visible_ = false;
    bool enabled_ = true;
    bool stays_hidden_ = false;  // Hide was called since Show began
    std::vector<Control*> controls_;
    Control* focus_ = nullptr;
    Control* first_focus_ = nullptr;
};

const std::vector<Window*>& AllWindows();    // in no special order
const std::vector<Window*>& ShownWindows();  // from the back to the front
Window* ActiveWindow();                      // nullptr if none is shown and enabled
void BindWindowView(WindowView* view);       // nullptr: nobody looks

// Its window is loaded, shown and enabled, and it is usable there. An item of a menu that is hidden from the bar can be reached while its
// popup is open.
bool CanReach(const Control& control);
bool HoldsFocus(const Control& control);  // in the active window, where it can be reached
