// Windows that only tell something: frmAboutMB1 of the program, frmAboutDX1 of the keypad that it was made for, frmNote what to know before
// one chooses shift keys.
#pragma once
#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/window.h"

struct AboutProgramWindow : Window {
    AboutProgramWindow();

    PictureBox Picture1;
    Label Label1;
    Label& ProgramTitle = Label1;
    Label Label2;
    Label& CreditHead = Label2;
    Label Label3[2];
    Label (&Credits)[2] = Label3;
    Label Label4;  // web address
    Label Label5;
    TextBox Text1;  // the folder of the program's own files, as the system writes it
    TextBox& FolderBox = Text1;
    Button Command1;
    Button& OkButton = Command1;
};

struct AboutKeypadWindow : Window {
    AboutKeypadWindow();

    PictureBox Picture1;
    Label Label1[3];  // one sentence
    Button Command1;
    Button& OkButton = Command1;
};

extern AboutProgramWindow frmAboutMB1;
extern AboutKeypadWindow frmAboutDX1;

constexpr int kNotes = 4;

struct NoteWindow : Window {
    NoteWindow();

    Label Label1;
    TextBox Text1[kNotes];  // to be read only: disabled, in the colour of the window
    Button Command1;
    Button& OkButton = Command1;
};

extern NoteWindow frmNote;
