// Screen readers: what they find in the windows.
#pragma once

// From here on readers find the program's windows, controls, tabs, lists and menus as they are meant. Before the first window is made.
void OpenToReaders();
