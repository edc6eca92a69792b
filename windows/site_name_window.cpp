#include "windows/site_name_window.h"

#include <string>

SiteNameWindow frmSiteName;

namespace {
constexpr int kBoxLeft = 2900;
constexpr int kBoxWidth = 3860;
}  // namespace

SiteNameWindow::SiteNameWindow() : Window("frmSiteName", "New data sheet", 7200, 4940) {
    Add(Frame1, "Frame1", -1, nullptr, {120, 120, 6960, 4060});
    Frame1.SetCaption(" Create a new data file");
    Add(Label1, "Label1", -1, &Frame1, {200, 350, 2600, 280});
    Label1.SetCaption("Name of the first sample: ");
    Add(Text1, "Text1", -1, &Frame1, {kBoxLeft, 320, kBoxWidth, 330});
    Text1.named_by = &Label1;
    Add(Label2, "Label2", -1, &Frame1, {200, 760, 2600, 280});
    Label2.SetCaption("Note: ");
    Add(Text2, "Text2", -1, &Frame1, {kBoxLeft, 730, kBoxWidth, 900});
    Text2.multiline = true;
    Text2.named_by = &Label2;
    for (int p = 1; p <= kParams; ++p) {
        const int top = 1720 + 375 * (p - 1);
        Add(Label3[p], "Label3", p, &Frame1, {200, top + 20, 2600, 280});
        Label3[p].SetCaption(kEmpty);
        Add(Text3[p], "Text3", p, &Frame1, {kBoxLeft, top, kBoxWidth, 320});
        Text3[p].SetText(kEmpty);
        Text3[p].accessible_name = "Additional info " + std::to_string(p);
        Text3[p].named_by = &Label3[p];
    }
    Add(Command1, "Command1", -1, nullptr, {4420, 4370, 1280, 420});
    Command1.SetCaption("OK");
    Add(Command3, "Command3", -1, nullptr, {5800, 4370, 1280, 420});
    Command3.SetCaption("Cancel");
    FirstFocus(Text1);
    confirm = &Command1;
    KeepDesign();
}
