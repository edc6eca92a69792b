// A counting session with the steps that most tests share, done as a user does them. A question that finds no answer fails the test.
#pragma once
#include <string>
#include <vector>

#include "unit/program_test.h"

using Texts = std::vector<std::string>;

class SheetTest : public ProgramTest {
protected:
    // As the installed key settings have them.
    static constexpr int kShift1 = 186;
    static constexpr int kShift2 = 80;
    static constexpr int kUndo = 8;
    static constexpr int kSaveKey = 187;

    void TearDown() override;

    int CodeOf(int key) const;                 // of counter key 1..45
    void NextSample(const std::string& name);  // by the button, then OK
    void ShowSample(int sample);               // picked from the list of names
    void AnswerDialog(const std::string& path) { services_.dialogs.answers.push_back(path); }
    void CancelDialog() { services_.dialogs.answers.push_back(std::nullopt); }
    void SaveAs(const std::string& path);  // the sheet goes to this file

    Texts Played();                            // since the last look
    Texts LastLines(std::size_t count) const;  // of the history, the newest last
    const Message& LastMessage() const { return services_.messages.shown.back(); }
    std::size_t MessageCount() const { return services_.messages.shown.size(); }
    std::string FileLine(const std::string& path, std::size_t line) const;  // from 1, without its CR LF
};

// Puts a count into a cell without a word from the procedures that watch it; totals and Counts do not follow.
void PutInCell(int slot, const std::string& text);
