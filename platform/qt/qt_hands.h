// The hands of a script on the real windows: each action becomes key and mouse events on the widgets, and goes the way of a user's own.
#pragma once
#include <functional>
#include <memory>

#include "platform/hands.h"

// Makes the application object and binds the views, before the program starts; `argc` and `argv` outlive the hands. All services are in
// place already, but popups, which open for real. `has_ended` tells whether the program has ended.
std::unique_ptr<Hands> MakeQtHands(int& argc, char** argv, std::function<bool()> has_ended);
