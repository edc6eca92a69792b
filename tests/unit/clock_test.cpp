// The clock of the computer may jump: someone sets it, it is set by the network, summer begins, a night ends a sleep. It only labels what
// the program does.
#include <array>
#include <map>
#include <regex>

#include "files/save_sheet.h"
#include "session/history.h"
#include "unit/sheet_test.h"

namespace {
constexpr std::array<const char*, 7> kDays = {"15/11/2026", "01/01/2038", "14/11/2026", "01/01/1970",
                                              "29/02/2024", "31/12/2026", "28/02/2100"};
constexpr std::array<const char*, 3> kTimes = {"23:59:59", "00:00:00", "12:00:00"};

// A session of seven samples, with all keys of the pad, undo, saves, and alarms at hundreds.
class Session : public SheetTest {
public:
    explicit Session(bool clock_jumps) {
        Begin("10");
        SaveAs("/sheets/Mere.csv");
        for (std::size_t act = 1; act <= 900; ++act) {
            if (clock_jumps) {
                services_.clock.date = kDays[act % kDays.size()];
                services_.clock.time = kTimes[act % kTimes.size()];
            }
            KeyNumber(static_cast<int>(act % 45) + 1);
            if (act % 7 == 0) Key(kUndo);
            if (act % 50 == 0) SaveSheet(kSave);
            if (act % 130 == 0) NextSample(std::to_string(act));
        }
    }

    const std::string& Saved() { return files_.bytes["/sheets/Mere.csv"]; }

    // Each file, and the history, with the times masked.
    std::map<std::string, std::string> Written() const {
        static const std::regex time(R"(\d\d/\d\d/\d{4}[ _]\(\d\d:\d\d:\d\d\)|\(\d\d:\d\d:\d\d\))");
        std::map<std::string, std::string> written;
        for (const auto& [path, content] : files_.bytes) written[path] = std::regex_replace(content, time, "TIME");
        for (const std::string& line : HistoryLog) written["history"] += std::regex_replace(line, time, "TIME") + "\n";
        return written;
    }

private:
    void TestBody() override {}
};

// Midnight comes after so many looks at it.
class ClockAtMidnight : public Clock {
public:
    explicit ClockAtMidnight(int looks) : looks_(looks) {}
    std::string DateText() override { return looks_-- > 0 ? "14/11/2026" : "15/11/2026"; }
    std::string TimeText() override { return looks_-- > 0 ? "23:59:59" : "00:00:00"; }

private:
    int looks_;
};

TEST(ClockTest, WhateverItTellsTheSameIsCountedBackedUpAndSaved) {
    const auto steady = Session(false).Written();
    EXPECT_TRUE(steady.contains("/program/References/Back up files/Auto_back_up_(0).csv"));
    Session jumping(true);
    EXPECT_NE(jumping.Saved().find("29/02/2024"), std::string::npos);
    EXPECT_EQ(jumping.Written(), steady);
}

class StampTest : public SheetTest {};

TEST_F(StampTest, ItIsOfOneMomentThoughMidnightComesWhileItIsTaken) {
    for (int looks = 0; looks < 5; ++looks) {
        ClockAtMidnight clock(looks);
        services.clock = &clock;
        const std::string stamp = NoteStamp();
        EXPECT_TRUE(stamp == "14/11/2026 (23:59:59)" || stamp == "15/11/2026 (00:00:00)") << stamp << " after " << looks << " looks";
    }
    services.clock = &services_.clock;
}
}  // namespace
