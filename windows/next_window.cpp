#include "windows/next_window.h"

#include <string>

#include "platform/window_table.h"

NextWindow frmNext;

namespace {
constexpr Style kTitle{.points = 16, .bold = true};
constexpr Style kQuiet{.fore = {90, 98, 106}};
constexpr Style kDrawing{.back = kFormColour, .tab_stop = false};
constexpr Colour kWarning{176, 48, 32};
constexpr int kLine = 280;  // the heights of one and two lines of text
constexpr int kTwoLines = 440;
constexpr int kBoxLeft = 2900;
constexpr int kOkRowTop = kStartFaceHeight + kSampleFaceHeight + 150;
}  // namespace

NextWindow::NextWindow() : Window("frmNext", "Marlbrook 2.7", kNextWidth, kStartFaceHeight) {
    Lay({
        {Frame2, "Frame2", nullptr, {0, 0, kNextWidth, kStartFaceHeight}, "", kPlain, "Start"},
        {Picture1, "Picture1", &Frame2, {240, 280, 2000, 2000}, "", kDrawing, "A pollen grain"},
        {Label5[0], {"Label5", 0}, &Frame2, {2600, 220, 3300, 460}, "Marlbrook 2.7", kTitle},
        {Label5[1], {"Label5", 1}, &Frame2, {2600, 700, 4300, kLine}, "Counting under the microscope, by key and by ear", kQuiet},
        {Command4, "Command4", &Frame2, {2600, 1160, 4300, 520}, "Create new data file"},
        {Command2, "Command2", &Frame2, {2600, 1800, 4300, 520}, "Open data file or template"},
        {Command6, "Command6", &Frame2, {6000, 260, 900, 360}, "Manual", kHidden},

        {Frame1, "Frame1", nullptr, {120, kStartFaceHeight, kNextWidth - 240, kSampleFaceHeight}, " Create new data file", kHidden},
        {Label1, "Label1", &Frame1, {200, 350, 2600, 280}, "Name of the first sample: "},
        {Text1, "Text1", &Frame1, {kBoxLeft, 320, 3860, 330}, "", kPlain, "", &Label1},
        {Label2, "Label2", &Frame1, {200, 760, 2600, 280}, "Note: "},
        {Text2, "Text2", &Frame1, {kBoxLeft, 730, 3860, 900}, "", kPlain, "", &Label2},
    });
    Frame2.SetBorder(false);
    Picture1.image = "logo";
    Text2.multiline = true;
    for (int p = 1; p <= kParams; ++p) LayParam(p);
    Lay({
        {Command1, "Command1", nullptr, {5800, kOkRowTop, 1280, 420}, "OK"},
        {Command3, "Command3", nullptr, {4420, kOkRowTop, 1280, 420}, "Cancel"},
    });
    FirstFocus(Command4);
    confirm = &Command1;
    dismiss = &Command3;
    KeepDesign();
}

void NextWindow::LayParam(int p) {
    const int top = 1720 + 375 * (p - 1);
    const std::string caption = "Additional info-" + std::to_string(p) + ":";
    Lay({
        {Label3[p], {"Label3", p}, &Frame1, {200, top + 20, 2600, 280}, caption},
        {Text3[p], {"Text3", p}, &Frame1, {kBoxLeft, top, 2760, 320}, kEmpty, kPlain, "", &Label3[p]},
        {Command5[p], {"Command5", p}, &Frame1, {5760, top, 1000, 320}, "Rename", kPlain, "", &Label3[p]},
    });
}

void NextWindow::TellOnStartFace(StartNews news, const std::string& text) {
    if (news < told_) return;
    told_ = news;
    StartLine.SetHeight(kTwoLines);
    StartLine.SetCaption(text);
    StartLine.SetForeColor(kWarning);
}
