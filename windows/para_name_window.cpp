#include "windows/para_name_window.h"

#include "platform/window_table.h"
#include "sheet/sizes.h"

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
