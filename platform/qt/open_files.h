// How many files the system lets the program have open at a time. Windows, sounds, sheets and their copies all take some; where they run
// out in the middle of a session, a save fails, or the desktop's connection breaks and the program ends.
#pragma once
#include <string>

// Raises the limit if it is low and the system allows more. What is wrong where that is not enough, in two sentences; else empty.
std::string LackOfOpenFiles();

// Tells it to whoever starts the program: on standard error and, where there are files enough for a window, in a message.
void TellLackOfOpenFiles(const std::string& lack, char** argv);  // argv: of the program
