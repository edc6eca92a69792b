#include "windows/information_windows.h"

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
constexpr Style kToRead{.back = kFormColour, .enabled = false};
constexpr int kSentences = 1;  // a size group
}  // namespace

AboutProgramWindow::AboutProgramWindow() : Window("frmAboutMB1", "Marlbrook 2.7", 6900, 4000) {
    Lay({
        {Picture1, "Picture1", nullptr, {240, 280, 2000, 2000}, "", kDrawing, "A pollen grain"},
        {Label1, "Label1", nullptr, {2600, 260, 4060, 480}, "Marlbrook 2.7", kProgramTitle},
        {Label2, "Label2", nullptr, {2600, 940, 4060, 280}, "Produced by:", {.fore = kDarkRed}},
        {Label3[0], {"Label3", 0}, nullptr, {2600, 1260, 4060, 280}, "The Marlbrook maintainers,", kCredit},
        {Label3[1], {"Label3", 1}, nullptr, {2600, 1560, 4060, 280}, "for everyone who counts under a microscope", kCredit},
        {Label4, "Label4", nullptr, {2600, 1980, 4060, 280}, "www.marlbrook.example"},
        {Label5, "Label5", nullptr, {240, 2440, 6420, 280}, "Key settings, sounds and back-ups lie in"},
        {Text1, "Text1", nullptr, {240, 2740, 6420, 500}, "", kToRead, "Folder of key settings, sounds and back-ups"},
        {Command1, "Command1", nullptr, {5380, 3400, 1280, 420}, "OK"},
    });
    for (Label* line : {&Label2, &Label3[0], &Label3[1], &Label4, &Label5}) line->size_group = kSentences;
    Picture1.image = "logo";
    Text1.multiline = true;
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
    for (Label* line : {&Label1[1], &Label1[2]}) line->size_group = kSentences;
    Picture1.image = "pad";
    FirstFocus(Command1);
    confirm = dismiss = &Command1;
    KeepDesign();
}

NoteWindow frmNote;

namespace {
constexpr Style kTitle{.points = 11, .bold = true};
constexpr const char* kTexts[kNotes] = {
    "Marlbrook accepts assignments of any keys for Shift-1 and \r\nShift-2. However, combinations of more than two functional keys\r\n"
    "are sometimes refused by (or may have special meaning for)\r\nWindows.  \r\n",
    "This may potentially prevents Marlbrook from counting or \r\nreverse counting of taxa No. 91 to 135 (i.e. [Shift-1] + [Shift-2] + \r\n"
    "[Counter key], or [Shift-1] + [Shift-2] + [Undo] + [Counter key]). \r\n",
    "This problem is the most likely to be avoided by assigning \r\nnon-functional keys to Shift-1 and Shift-2. However, it cannot be \r\n"
    "generalized because the problem types are specific to your \r\nhardware and the version of your Windows. \r\n",
    "For safety, Marlbrook strongly recommends you to check the \r\nfunction of count and reverse count for all taxa, before use and \r\n"
    "every time after changing key settings. \r\n",
};
}  // namespace

NoteWindow::NoteWindow() : Window("frmNote", "Message from Marlbrook", 6800, 5140) {
    Lay({
        {Label1, "Label1", nullptr, {240, 140, 6320, 320}, "Useful information:", kTitle},
        {Text1[0], {"Text1", 0}, nullptr, {240, 560, 6320, 920}, kTexts[0], kToRead, "Note 1"},
        {Text1[1], {"Text1", 1}, nullptr, {240, 1620, 6320, 740}, kTexts[1], kToRead, "Note 2"},
        {Text1[2], {"Text1", 2}, nullptr, {240, 2500, 6320, 920}, kTexts[2], kToRead, "Note 3"},
        {Text1[3], {"Text1", 3}, nullptr, {240, 3560, 6320, 740}, kTexts[3], kToRead, "Note 4"},
        {Command1, "Command1", nullptr, {5280, 4520, 1280, 420}, "OK"},
    });
    for (TextBox& note : Text1) note.multiline = true;
    FirstFocus(Command1);
    confirm = dismiss = &Command1;
    KeepDesign();
}
