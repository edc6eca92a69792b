// Message boxes over the active window.
#pragma once
#include "platform/services.h"

class QtMessageBoxes : public MessageBoxes {
public:
    Answer Show(const Message& message) override;
};

// A box that is no part of the program's own talk: a failure, a second program on the same folder.
void ShowPlainMessage(const std::string& text);
