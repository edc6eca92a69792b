// frmParaName: another name for one field of the Additional info.
#pragma once
#include "platform/controls.h"
#include "platform/window.h"

struct ParaNameWindow : Window {
    ParaNameWindow();

    Label Label1, Label2;
    Label& OldName = Label2;
    Label Label3;
    TextBox Text1;
    TextBox& NewName = Text1;
    Button Command1;
    Button& OkButton = Command1;
    Button Command2;
    Button& CancelButton = Command2;

    // Not for the user.
    Slider Slider1;
    Slider& Param = Slider1;  // the field, 1..6
    Label Label4;
    Label& Caller = Label4;  // the window that asked, "frmMain" or "frmNext"
};

extern ParaNameWindow frmParaName;
