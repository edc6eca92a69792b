// The sheet that the arrays hold, between memory and the bytes of its file. Nothing but the file format is needed for it.
#pragma once
#include <string>

// As a back-up holds it: all that is read again.
std::string SheetBytes();

// Whether the file of the sheet gives back what the arrays hold, as that of every sheet of the program's own does. Not so for a quotation
// mark inside a text, a parameter's name that ends in two colons, another label in the place of "Serial No.".
bool ComesBackFromItsFile();
