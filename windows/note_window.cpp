#include "windows/note_window.h"

#include "platform/window_table.h"

NoteWindow frmNote;

namespace {
constexpr Style kTitle{.points = 11, .bold = true};
constexpr Style kToRead{.back = kFormColour, .enabled = false};
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
