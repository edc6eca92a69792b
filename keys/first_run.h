// frmInitial learns what the twelve named keys of this keyboard send: one press in each box, from the first to the last.
#pragma once

void LoadInitialWindow();
void EmptyNamedKey(int key);              // its box gets the focus
void CaptureNamedKey(int key, int code);  // a key goes down in it
void AcceptNamedKeys();                   // OK; raises "File error" if the settings cannot be written
void CloseInitialByFrame();
