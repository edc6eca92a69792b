#include "windows/about_windows.h"

AboutProgramWindow frmAboutMB1;
AboutKeypadWindow frmAboutDX1;

namespace {
constexpr Colour kDarkBlue{0, 0, 128};
constexpr Colour kDarkRed{150, 0, 0};
constexpr Colour kDarkGreen{0, 100, 0};

void ShowDrawing(PictureBox& picture, const char* image) {
    picture.SetBackColor(kFormColour);
    picture.image = image;
    picture.tab_stop = false;
}

void Write(Label& label, const char* caption, double points, Colour colour) {
    label.SetCaption(caption);
    label.SetFontSize(points);
    label.SetForeColor(colour);
}
}  // namespace

AboutProgramWindow::AboutProgramWindow() : Window("frmAboutMB1", "Marlbrook 2.7", 6900, 3160) {
    Add(Picture1, "Picture1", -1, nullptr, {240, 280, 2000, 2000});
    ShowDrawing(Picture1, "logo");
    Picture1.accessible_name = "A pollen grain";
    Add(Label1, "Label1", -1, nullptr, {2600, 260, 4060, 480});
    Write(Label1, "Marlbrook 2.7", 18, kDarkBlue);
    Label1.SetBold(true);
    Add(Label2, "Label2", -1, nullptr, {2600, 940, 4060, 280});
    Write(Label2, "Produced by:", 9, kDarkRed);
    Add(Label3[0], "Label3", 0, nullptr, {2600, 1260, 4060, 280});
    Write(Label3[0], "The Marlbrook maintainers,", 10, kDarkGreen);
    Add(Label3[1], "Label3", 1, nullptr, {2600, 1560, 4060, 280});
    Write(Label3[1], "for everyone who counts under a microscope", 10, kDarkGreen);
    Add(Label4, "Label4", -1, nullptr, {2600, 1980, 4060, 280});
    Write(Label4, "www.marlbrook.example", 9, kBlack);
    Add(Command1, "Command1", -1, nullptr, {5380, 2560, 1280, 420});
    Command1.SetCaption("OK");
    FirstFocus(Command1);
    confirm = dismiss = &Command1;
    KeepDesign();
}

AboutKeypadWindow::AboutKeypadWindow() : Window("frmAboutDX1", "Ergodex DX-1 input system", 7600, 3360) {
    static constexpr const char* kSentence[3] = {"Marlbrook 2.7", "is designed to use Ergodex DX-1", "as input device. "};
    Add(Picture1, "Picture1", -1, nullptr, {240, 240, 3400, 2880});
    ShowDrawing(Picture1, "pad");
    Picture1.accessible_name = "A keypad with three blocks of keys";
    for (int i = 0; i < 3; ++i) {
        Add(Label1[i], "Label1", i, nullptr, {3880, 640 + 400 * i, 3480, 340});
        Write(Label1[i], kSentence[i], i == 0 ? 13 : 10, kBlack);
    }
    Label1[0].SetBold(true);
    Add(Command1, "Command1", -1, nullptr, {6080, 2700, 1280, 420});
    Command1.SetCaption("OK");
    FirstFocus(Command1);
    confirm = dismiss = &Command1;
    KeepDesign();
}
