// frmSiteName: names the first sample of a sheet that is made from a template. It is left by OK alone.
#pragma once
#include "platform/controls.h"
#include "platform/window.h"
#include "sheet/sizes.h"

struct SiteNameWindow : Window {
    SiteNameWindow();

    Frame Frame1;
    Label Label1, Label2;
    TextBox Text1;              // name
    TextBox Text2;              // note
    Label Label3[kParams + 1];  // [0] unused, so below
    TextBox Text3[kParams + 1];
    Button Command1;  // OK
    Button Command3;  // Cancel, which does nothing

private:
    void LayParam(int p);
};

extern SiteNameWindow frmSiteName;
