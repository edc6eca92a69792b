// Opens files that lie in memory, as from the button of the start face.
#pragma once
#include <string>

#include "files/open_sheet.h"
#include "unit/sheet_file.h"
#include "unit/sheet_test.h"

class OpenTest : public SheetTest {
protected:
    static constexpr const char* kPath = "/sheets/mere.csv";

    OpenTest() {
        Start();
        Played();
    }

    // True if the sheet came to be open; the history alone tells.
    bool Open(const std::string& bytes, const std::string& path = kPath) {
        files_.bytes[path] = bytes;
        return OpenAgain(path);
    }
    bool Open(const Rows& rows) { return Open(Joined(rows)); }
    bool OpenAgain(const std::string& path = kPath) {
        const std::size_t lines = HistoryLog.size();
        AnswerDialog(path);
        OpenSheet();
        return HistoryLog.size() == lines + 1 && HistoryLog.back() == "(Open) " + path;
    }
    bool BackedUp() const { return files_.bytes.count("/program/References/Back up files/Master_back_up.csv") > 0; }
};
