// Windows that ask for names. frmSiteName names the first sample of a sheet that is made from a template; it is left by OK alone.
// frmParaName gives one field of the Additional info another name.
#pragma once
#include "platform/controls.h"
#include "platform/window.h"
#include "sheet/sizes.h"

struct SiteNameWindow : Window {
    SiteNameWindow();

    Frame Frame1;
    Label Label1, Label2;
    TextBox Text1;
    TextBox& SampleName = Text1;
    TextBox Text2;
    TextBox& SampleNote = Text2;
    Label Label3[kParams + 1];  // [0] unused, so below
    Label (&ParamNames)[kParams + 1] = Label3;
    TextBox Text3[kParams + 1];
    TextBox (&ParamBoxes)[kParams + 1] = Text3;
    Button Command1;
    Button& OkButton = Command1;
    Button Command3;
    Button& CancelButton = Command3;  // does nothing

private:
    void LayParam(int p);
};

extern SiteNameWindow frmSiteName;

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
