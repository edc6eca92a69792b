// OK in frmKeyCode: no key may serve twice; then the settings are in force and in their file.
#pragma once

// Two equal definitions, codes, key numbers or functional keys give an error sound and a message, show the boxes in red, and nothing is
// stored. A functional key may also be a counter key. A key number outside 1..45 is stored, for only its box refuses it; its cell stays
// where it is. Raises "File error" if the file cannot be written, or "Overflow" for a functional code past 16 bits; the program then ends.
void AcceptKeySettings();

void CheckDouble();  // the walk over the 45 keys that OK takes, without its consequences
