#include "windows/name_windows.h"

#include <string>

#include "platform/window_table.h"

SiteNameWindow frmSiteName;

namespace {
constexpr int kBoxLeft = 2900;
constexpr int kBoxWidth = 3860;
}  // namespace

SiteNameWindow::SiteNameWindow() : Window("frmSiteName", "New data sheet", 7200, 4940) {
    Lay({
        {Frame1, "Frame1", nullptr, {120, 120, 6960, 4060}, " Create a new data file"},
        {Label1, "Label1", &Frame1, {200, 350, 2600, 280}, "Name of the first sample: "},
        {Text1, "Text1", &Frame1, {kBoxLeft, 320, kBoxWidth, 330}, "", kPlain, "", &Label1},
        {Label2, "Label2", &Frame1, {200, 760, 2600, 280}, "Note: "},
        {Text2, "Text2", &Frame1, {kBoxLeft, 730, kBoxWidth, 900}, "", kPlain, "", &Label2},
    });
    Text2.multiline = true;
    for (int p = 1; p <= kParams; ++p) LayParam(p);
    Lay({
        {Command1, "Command1", nullptr, {4420, 4370, 1280, 420}, "OK"},
        {Command3, "Command3", nullptr, {5800, 4370, 1280, 420}, "Cancel"},
    });
    FirstFocus(Text1);
    confirm = &Command1;
    KeepDesign();
}

void SiteNameWindow::LayParam(int p) {
    const int top = 1720 + 375 * (p - 1);
    const std::string name = "Additional info " + std::to_string(p);
    Lay({
        {Label3[p], {"Label3", p}, &Frame1, {200, top + 20, 2600, 280}, kEmpty},
        {Text3[p], {"Text3", p}, &Frame1, {kBoxLeft, top, kBoxWidth, 320}, kEmpty, kPlain, name, &Label3[p]},
    });
}

ParaNameWindow frmParaName;

ParaNameWindow::ParaNameWindow() : Window("frmParaName", "Parameter name", 5400, 1860) {
    Lay({
        {Label1, "Label1", nullptr, {240, 240, 1200, 280}, "Old name:"},
        {Label2, "Label2", nullptr, {1500, 240, 3660, 280}},
        {Label3, "Label3", nullptr, {240, 690, 1200, 280}, "New name: "},
        {Text1, "Text1", nullptr, {1500, 660, 3660, 330}, "", kPlain, "", &Label3},
        {Command1, "Command1", nullptr, {2500, 1260, 1280, 400}, "OK"},
        {Command2, "Command2", nullptr, {3880, 1260, 1280, 400}, "Cancel"},
        {Slider1, "Slider1", nullptr, {}, "", kHidden},
        {Label4, "Label4", nullptr, {}, "", kHidden},
    });
    Slider1.SetRange(1, kParams);
    FirstFocus(Text1);
    confirm = &Command1;
    dismiss = &Command2;
    KeepDesign();
}
