// frmParaName: another name for one field of the Additional info.
#pragma once
#include "platform/controls.h"
#include "platform/window.h"

struct ParaNameWindow : Window {
    ParaNameWindow();

    Label Label1, Label2;  // old name
    Label Label3;
    TextBox Text1;    // new name
    Button Command1;  // OK
    Button Command2;  // Cancel

    Slider Slider1;  // not for the user: the field, 1..6
    Label Label4;    // not for the user: the window that asked, "frmMain" or "frmNext"
};

extern ParaNameWindow frmParaName;
