// Every event of a platform runs through here.
#pragma once
#include <functional>

// Runs one event to its end. A failure that no procedure has caught goes to the host, which shows its word and ends the program.
void RunEvent(const std::function<void()>& event);
