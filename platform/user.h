// What a user does, told to the windows. The headless platform calls it from a script, a toolkit from its widgets, so both raise the
// same events in the same order. What a user could not reach (CanReach, platform/window.h) is passed over in silence.
#pragma once
#include <functional>

#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/window.h"

// Runs one event to its end: every event of a platform runs through here. A failure that no procedure has caught goes to the host, which
// shows its word and ends the program.
void RunEvent(const std::function<void()>& event);

// Brings a window to the front, as a press in it does. A disabled one stays where it is.
void BringToFront(Window& window);

// Opens a popup menu at the pointer; its items can be reached until one is clicked, or a menu of the bar, or another window comes up.
void OpenPopup(MenuItem& menu);

// Where menus are seen to open: one opens, and an item of an open one is clicked.
void OpenMenu(MenuItem& menu);
void ClickOpenMenuItem(MenuItem& item);

// In the active window: the window's own handler first, if it previews keys, then that of the control with the focus.
void PressKey(int code);
void ReleaseKey(int code);

// Enter (13) or Esc (27) in the active window, once PressKey has left it unused: clicks the button that it stands for. Enter is for the
// button in focus, else for Window::confirm; Esc is for Window::dismiss. A box that takes keys keeps both for itself, one of several lines
// keeps Enter. false: no button was there to click.
bool PressAnswer(int code);

// A button goes down on a control, moves over it, comes up. Press moves the focus first, if the kind takes it.
void PressMouse(Control& control, Mouse mouse);
void MoveMouse(Control& control, Mouse mouse);
void ReleaseMouse(Control& control, Mouse mouse);  // reaches the control that was pressed even if it has been disabled meanwhile
void MoveMouseOverWindow(Window& window, Mouse mouse);
void PressMouseOnWindow(Window& window, Mouse mouse);

void ClickControl(Control& control);       // a press and release of the left button there, and what the kind does at a click
void FinishClick(Control& control);        // only what the kind does at a click, after its press and release
void FinishDoubleClick(Control& control);  // the double click itself, after the events of its clicks

// Text is put in at the caret of a text box or combo box, in place of what is selected: one change.
void InsertText(Control& box, const std::string& text);
void DeleteBackward(Control& box);  // a line break goes whole
void DeleteForward(Control& box);
void EnterText(Control& box, const std::string& text, int caret);  // the whole text as it stands after an edit

void ChooseItem(ComboBox& box, int item);
void PressTab(TabControl& tabs, int tab);
void SlideTo(RangeControl& range, int value);
void Spin(UpDown& arrows, bool up);
void ResizeWindow(Window& window, int width, int height);
void DropFile(Window& window, const std::string& path);  // nothing if the window takes no input
void CloseWindow(Window& window);                        // by its frame
