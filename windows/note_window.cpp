#include "windows/note_window.h"

#include <string>

NoteWindow frmNote;

namespace {
constexpr int kWidth = 6800;
constexpr int kTops[kNotes] = {560, 1620, 2500, 3560};
constexpr int kHeights[kNotes] = {920, 740, 920, 740};
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

NoteWindow::NoteWindow() : Window("frmNote", "Message from Marlbrook", kWidth, 5140) {
    Add(Label1, "Label1", -1, nullptr, {240, 140, kWidth - 480, 320});
    Label1.SetCaption("Useful information:");
    Label1.SetFontSize(11);
    Label1.SetBold(true);
    for (int i = 0; i < kNotes; ++i) {
        Add(Text1[i], "Text1", i, nullptr, {240, kTops[i], kWidth - 480, kHeights[i]});
        Text1[i].SetText(kTexts[i]);
        Text1[i].multiline = true;
        Text1[i].SetEnabled(false);
        Text1[i].SetBackColor(kFormColour);
        Text1[i].accessible_name = "Note " + std::to_string(i + 1);
    }
    Add(Command1, "Command1", -1, nullptr, {kWidth - 240 - 1280, 4520, 1280, 420});
    Command1.SetCaption("OK");
    FirstFocus(Command1);
    confirm = dismiss = &Command1;
    KeepDesign();
}
