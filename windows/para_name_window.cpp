#include "windows/para_name_window.h"

#include "sheet/sizes.h"

ParaNameWindow frmParaName;

ParaNameWindow::ParaNameWindow() : Window("frmParaName", "Parameter name", 5400, 1860) {
    Add(Label1, "Label1", -1, nullptr, {240, 240, 1200, 280});
    Label1.SetCaption("Old name:");
    Add(Label2, "Label2", -1, nullptr, {1500, 240, 3660, 280});
    Add(Label3, "Label3", -1, nullptr, {240, 690, 1200, 280});
    Label3.SetCaption("New name: ");
    Add(Text1, "Text1", -1, nullptr, {1500, 660, 3660, 330});
    Text1.named_by = &Label3;
    Add(Command1, "Command1", -1, nullptr, {2500, 1260, 1280, 400});
    Command1.SetCaption("OK");
    Add(Command2, "Command2", -1, nullptr, {3880, 1260, 1280, 400});
    Command2.SetCaption("Cancel");
    Add(Slider1, "Slider1", -1, nullptr, {0, 0, 0, 0});
    Slider1.SetRange(1, kParams);
    Slider1.SetVisible(false);
    Add(Label4, "Label4", -1, nullptr, {0, 0, 0, 0});
    Label4.SetVisible(false);
    FirstFocus(Text1);
    confirm = &Command1;
    dismiss = &Command2;
    KeepDesign();
}
