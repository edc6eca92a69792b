// Many sheets in one call.
#pragma once
#include <cstddef>
#include <functional>
#include <string>

// Runs job 0 .. count - 1, two at a time, each in a process of its own where the system can part one in two: a sheet fills arrays that all
// of the program shares. Returns the largest status that a job returned. Shows on a terminal how far it has come.
int RunJobs(std::size_t count, const std::function<int(std::size_t)>& job);

// On the standard error, in the place of the bar, and on one line whatever the text quotes.
void TellFault(std::string text);
