// Presses keys as a keyboard would: through the X server, over a connection of its own.
#pragma once

class KeySender {
public:
    KeySender();  // to the display of the environment; ends the process with a message if there is none
    ~KeySender();
    KeySender(const KeySender&) = delete;
    KeySender& operator=(const KeySender&) = delete;

    void Stroke(int key_code);  // X key code: pressed and released at once

private:
    void* display_;
};

void WaitForServer(void* display);  // until it has carried out all that this connection has asked for
