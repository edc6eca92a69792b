// What a user does to the program, one action a call. A script is played by these hands: HeadlessHands tells the windows directly,
// QtHands turns each action into real key and mouse events on the widgets that show them.
//
// Each action is one or several events, each run to its end (through RunEvent) before the call returns, and all that it changed is on
// show by then. What a user could not reach (CanReach, platform/window.h) is passed over in silence. When the program has ended within
// an action, its remaining events are left out; the caller makes no further action.
#pragma once
#include <functional>
#include <memory>
#include <string>

#include "platform/controls.h"
#include "platform/window.h"

class Hands {
public:
    virtual ~Hands() = default;

    // The program starts: StartProgram (events/program.h), run as one event. Called once at the most, when the services are in place;
    // windows may be looked at, but no action comes, before.
    virtual void Start() = 0;

    // A key in the active window; no character comes of it. `code`: virtual-key number. Pressed again without a release, it repeats.
    virtual void KeyDown(int code) = 0;
    virtual void KeyUp(int code) = 0;
    // KeyDown, then what the key does and types, then KeyUp. `character` (UTF-8; empty: nothing) goes in at the caret of the box in focus,
    // unless the KeyDown has moved the focus. The codes 8 and 46 delete before and after the caret instead, and 13 breaks the line (CR LF)
    // in a box of several lines; elsewhere 13 and 27 click the buttons for Enter and Esc (PressAnswer). These four type no character.
    virtual void Press(int code, const std::string& character) = 0;

    // Boxes are text boxes and combo boxes. To focus one is to click it with the left button, which leaves the caret where it is. To set
    // one is to focus it and then, if it has the focus, to select all and paste: one change. Pasting goes in at the caret of the box in
    // focus: one change, no key.
    virtual void FocusBox(Control& box) = 0;
    virtual void SetBox(Control& box, const std::string& text) = 0;
    virtual void Paste(const std::string& text) = 0;

    // At the upper left corner of the control. A menu item's click opens the menus on its way first; an item of a popup that is open
    // is clicked in the popup, which closes.
    virtual void Click(Control& control) = 0;
    virtual void DoubleClick(Control& control) = 0;
    virtual void RightClick(Control& control) = 0;  // press and release; a popup that it opens stays open when the call returns

    virtual void Choose(ComboBox& box, int item) = 0;        // `item` from 0, within the list; raises Click even if the item shows already
    virtual void PressTab(TabControl& tabs, int tab) = 0;    // `tab` from 0
    virtual void Slide(RangeControl& range, int value) = 0;  // straight to the value, kept within the ends
    virtual void Spin(UpDown& arrows, bool up) = 0;

    // x, y: in the scale of a picture, else in twips of the control or window. A move bears the button that is held.
    virtual void MouseDown(Control& control, MouseButton button, double x, double y) = 0;
    virtual void MouseUp(Control& control, MouseButton button, double x, double y) = 0;
    virtual void MouseMove(Control& control, double x, double y) = 0;
    virtual void MouseDownOnWindow(Window& window, MouseButton button, double x, double y) = 0;  // on its background
    virtual void MouseUpOnWindow(Window& window, MouseButton button, double x, double y) = 0;
    virtual void MouseMoveOverWindow(Window& window, double x, double y) = 0;

    virtual void Resize(Window& window, int width, int height) = 0;  // in twips; to the same size is a resize too
    virtual void Close(Window& window) = 0;                          // by its frame

    // A PNG of a window (`control` nullptr) or of one of its controls, as a user sees it. false: these hands have no windows to show.
    virtual bool SaveImage(Window& window, Control* control, const std::string& path) = 0;
};

// platform/qt offers this function, declared in platform/qt/qt_hands.h. It makes the application object and binds the views, before
// the program starts; `argc` and `argv` outlive the hands. The services are the scripted ones of platform/headless and are in place
// already; the hands may put their own popups in (services.popups) but nothing else. `has_ended` tells whether the program has ended.
//
//     std::unique_ptr<Hands> MakeQtHands(int& argc, char** argv, std::function<bool()> has_ended);
