// frmSiteName: names the first sample of a sheet that is made from a template. It is left by OK alone.
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
