// Presses keys and moves the mouse as a user would: through the X server, over a connection of its own.
#pragma once

class XUser {
public:
    XUser();  // on the display of the environment; ends the process with a message if there is none
    ~XUser();
    XUser(const XUser&) = delete;
    XUser& operator=(const XUser&) = delete;

    void Stroke(int key_code);     // X key code: pressed and released at once
    void MoveMouse(int x, int y);  // pixels of the screen
    void PressMouse(bool down);    // the left button

private:
    void* display_;
};

void WaitForServer(void* display);  // until it has carried out all that this connection has asked for
