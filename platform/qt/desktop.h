#pragma once

// The program on the desktop: its windows, sounds and files, until the user ends it. Returns the exit status of the process.
int RunDesktop(int argc, char** argv);
