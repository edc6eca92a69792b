#include "windows/next_window.h"

#include <string>

NextWindow frmNext;

namespace {
constexpr Colour kQuiet{90, 98, 106};
constexpr int kBoxLeft = 2900;
}  // namespace

NextWindow::NextWindow() : Window("frmNext", "Marlbrook 2.7", kNextWidth, kStartFaceHeight) {
    PlaceStartFace();
    PlaceSampleFace();
    FirstFocus(Command4);
    confirm = &Command1;
    dismiss = &Command3;
    KeepDesign();
}

void NextWindow::PlaceStartFace() {
    Add(Frame2, "Frame2", -1, nullptr, {0, 0, kNextWidth, kStartFaceHeight});
    Frame2.SetBorder(false);
    Frame2.accessible_name = "Start";
    Add(Picture1, "Picture1", -1, &Frame2, {240, 280, 2000, 2000});
    Picture1.SetBackColor(kFormColour);
    Picture1.image = "logo";
    Picture1.accessible_name = "A pollen grain";
    Picture1.tab_stop = false;
    Add(Label5[0], "Label5", 0, &Frame2, {2600, 220, 4300, 460});
    Label5[0].SetCaption("Marlbrook 2.7");
    Label5[0].SetFontSize(16);
    Label5[0].SetBold(true);
    Add(Label5[1], "Label5", 1, &Frame2, {2600, 700, 4300, 280});
    Label5[1].SetCaption("Counting under the microscope, by key and by ear");
    Label5[1].SetForeColor(kQuiet);
    Add(Command4, "Command4", -1, &Frame2, {2600, 1160, 4300, 520});
    Command4.SetCaption("Create new data file");
    Add(Command2, "Command2", -1, &Frame2, {2600, 1800, 4300, 520});
    Command2.SetCaption("Open data file or template");
}

void NextWindow::PlaceSampleFace() {
    Add(Frame1, "Frame1", -1, nullptr, {120, kStartFaceHeight, kNextWidth - 240, kSampleFaceHeight});
    Frame1.SetCaption(" Create new data file");
    Frame1.SetVisible(false);
    Add(Label1, "Label1", -1, &Frame1, {200, 350, 2600, 280});
    Label1.SetCaption("Name of the first sample: ");
    Add(Text1, "Text1", -1, &Frame1, {kBoxLeft, 320, 3860, 330});
    Text1.named_by = &Label1;
    Add(Label2, "Label2", -1, &Frame1, {200, 760, 2600, 280});
    Label2.SetCaption("Note: ");
    Add(Text2, "Text2", -1, &Frame1, {kBoxLeft, 730, 3860, 900});
    Text2.multiline = true;
    Text2.named_by = &Label2;
    for (int p = 1; p <= kParams; ++p) {
        const std::string number = std::to_string(p);
        const int top = 1720 + 375 * (p - 1);
        Add(Label3[p], "Label3", p, &Frame1, {200, top + 20, 2600, 280});
        Label3[p].SetCaption("Additional info-" + number + ":");
        Add(Text3[p], "Text3", p, &Frame1, {kBoxLeft, top, 2760, 320});
        Text3[p].SetText(kEmpty);
        Text3[p].named_by = &Label3[p];
        Add(Command5[p], "Command5", p, &Frame1, {5760, top, 1000, 320});
        Command5[p].SetCaption("Rename");
        Command5[p].named_by = &Label3[p];
    }
    Add(Command1, "Command1", -1, nullptr, {5800, kStartFaceHeight + kSampleFaceHeight + 150, 1280, 420});
    Command1.SetCaption("OK");
    Add(Command3, "Command3", -1, nullptr, {4420, kStartFaceHeight + kSampleFaceHeight + 150, 1280, 420});
    Command3.SetCaption("Cancel");
}
