// The keyboard's layout, asked of the system each time: a user may change it while the program runs.
#pragma once
#include "platform/services.h"

class QtKeyboard : public Keyboard {
public:
    // Nothing on macOS, nor under Wayland where there are several layouts: which one is in use is told to the window in front alone.
    std::map<int, std::string> Characters() override;
};
