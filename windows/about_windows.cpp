#include "windows/about_windows.h"

#include "platform/window_table.h"

AboutProgramWindow frmAboutMB1;
AboutKeypadWindow frmAboutDX1;

namespace {
constexpr Colour kDarkBlue{0, 0, 128};
constexpr Colour kDarkRed{150, 0, 0};
constexpr Colour kDarkGreen{0, 100, 0};
constexpr Style kDrawing{.back = kFormColour, .tab_stop = false};
constexpr Style kProgramTitle{.points = 18, .bold = true, .fore = kDarkBlue};
constexpr Style kCredit{.points = 10, .fore = kDarkGreen};
constexpr Style kKeypadTitle{.points = 13, .bold = true};
constexpr Style kSentence{.points = 10};
}  // namespace

AboutProgramWindow::AboutProgramWindow() : Window("frmAboutMB1", "Marlbrook 2.7", 6900, 3160) {
    Lay({
        {Picture1, "Picture1", nullptr, {240, 280, 2000, 2000}, "", kDrawing, "A pollen grain"},
        {Label1, "Label1", nullptr, {2600, 260, 4060, 480}, "Marlbrook 2.7", kProgramTitle},
        {Label2, "Label2", nullptr, {2600, 940, 4060, 280}, "Produced by:", {.fore = kDarkRed}},
        {Label3[0], {"Label3", 0}, nullptr, {2600, 1260, 4060, 280}, "The Marlbrook maintainers,", kCredit},
        {Label3[1], {"Label3", 1}, nullptr, {2600, 1560, 4060, 280}, "for everyone who counts under a microscope", kCredit},
        {Label4, "Label4", nullptr, {2600, 1980, 4060, 280}, "www.marlbrook.example"},
        {Command1, "Command1", nullptr, {5380, 2560, 1280, 420}, "OK"},
    });
    Picture1.image = "logo";
    FirstFocus(Command1);
    confirm = dismiss = &Command1;
    KeepDesign();
}

AboutKeypadWindow::AboutKeypadWindow() : Window("frmAboutDX1", "Ergodex DX-1 input system", 7600, 3360) {
    Lay({
        {Picture1, "Picture1", nullptr, {240, 240, 3400, 2880}, "", kDrawing, "A keypad with three blocks of keys"},
        {Label1[0], {"Label1", 0}, nullptr, {3880, 640, 3480, 340}, "Marlbrook 2.7", kKeypadTitle},
        {Label1[1], {"Label1", 1}, nullptr, {3880, 1040, 3480, 340}, "is designed to use Ergodex DX-1", kSentence},
        {Label1[2], {"Label1", 2}, nullptr, {3880, 1440, 3480, 340}, "as input device. ", kSentence},
        {Command1, "Command1", nullptr, {6080, 2700, 1280, 420}, "OK"},
    });
    Picture1.image = "pad";
    FirstFocus(Command1);
    confirm = dismiss = &Command1;
    KeepDesign();
}
