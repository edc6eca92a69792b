// A key press becomes a count. The main window takes every key first: KeyDown decides whether it counts, CountKeyPress finds its slot
// and writes it to the hidden field Text0, whose change applies the count. All is told by key, colour and sound, since the analyst
// must not look away from the eyepiece. Auto-repeat counts: a key that is held sends further presses.
#pragma once

void DispatchKeyDown(int code);  // virtual-key number
void DispatchKeyUp(int code);
void CountKeyPress(int code);
