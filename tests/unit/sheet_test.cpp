#include "unit/sheet_test.h"

#include <algorithm>
#include <utility>

#include "files/save_sheet.h"
#include "platform/user.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

void SheetTest::TearDown() {
    EXPECT_EQ(services_.messages.unanswered, "");
    EXPECT_EQ(services_.dialogs.unanswered, "");
}

int SheetTest::CodeOf(int key) const {
    return static_cast<int>(KeySettings[key][kKeyCode].Number());
}

void SheetTest::NextSample(const std::string& name) {
    EXPECT_TRUE(frmMain.Command5[1].Enabled()) << "a sample without a count cannot be followed";
    ClickControl(frmMain.Command5[1]);
    ClickControl(frmNext.Text1);
    InsertText(frmNext.Text1, name);
    ClickControl(frmNext.Command1);
}

void SheetTest::ShowSample(int sample) {
    ChooseItem(frmMain.Combo2, sample - 1);
}

void SheetTest::SaveAs(const std::string& path) {
    AnswerDialog(path);
    SaveSheet(kSaveAs);
}

Texts SheetTest::Played() {
    return std::exchange(services_.sounds.played, {});
}

Texts SheetTest::LastLines(std::size_t count) const {
    count = std::min(count, HistoryLog.size());
    return {HistoryLog.end() - static_cast<std::ptrdiff_t>(count), HistoryLog.end()};
}

std::string SheetTest::FileLine(const std::string& path, std::size_t line) const {
    const auto file = files_.bytes.find(path);
    if (file == files_.bytes.end()) return "no file " + path;
    std::size_t begin = 0;
    for (; line > 1; --line) {
        begin = file->second.find("\r\n", begin);
        if (begin == std::string::npos) return "no such line";
        begin += 2;
    }
    return file->second.substr(begin, file->second.find("\r\n", begin) - begin);
}

void PutInCell(int slot, const std::string& text) {
    const bool enabled = std::exchange(frmMain.KeysEnabled, false);
    frmMain.Text2[slot].SetText(text);
    frmMain.KeysEnabled = enabled;
}
