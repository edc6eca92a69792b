// frmNote: what to know before one chooses shift keys.
#pragma once
#include "platform/controls.h"
#include "platform/window.h"

constexpr int kNotes = 4;

struct NoteWindow : Window {
    NoteWindow();

    Label Label1;
    TextBox Text1[kNotes];  // to be read only: disabled, in the colour of the window
    Button Command1;
    Button& OkButton = Command1;
};

extern NoteWindow frmNote;
