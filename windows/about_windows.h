// frmAboutMB1 tells of the program, frmAboutDX1 of the keypad that it was made for.
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
