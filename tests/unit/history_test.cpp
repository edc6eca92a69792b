#include "session/history.h"

#include "platform/failure.h"
#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
class HistoryTest : public SheetTest {
protected:
    HistoryTest() { Begin("10"); }
};

TEST_F(HistoryTest, ItBeginsWithAStampThatTheListDoesNotShow) {
    EXPECT_EQ(HistoryLog[0], "14/11/2026 (10:11:12)");
    EXPECT_EQ(HistoryLog[1], "(Start)");
    EXPECT_EQ(frmMain.Combo1.List().front(), "(Start)");
}

TEST_F(HistoryTest, ALineGoesIntoTheListItsBoxAndTheLog) {
    const int lines = HistoryCount;
    const int items = frmMain.Combo1.ListCount();
    frmMain.mnuSaveHistory.SetEnabled(false);
    AddHistoryLine("(Test)");
    EXPECT_EQ(frmMain.Combo1.ListCount(), items + 1);
    EXPECT_EQ(frmMain.Combo1.List().back(), "(Test)");
    EXPECT_EQ(frmMain.Combo1.Text(), "(Test)");
    EXPECT_EQ(HistoryCount, lines + 1);
    EXPECT_EQ(HistoryLog[HistoryCount], "(Test)");
    EXPECT_TRUE(frmMain.mnuSaveHistory.Enabled());
}

TEST_F(HistoryTest, TwoEqualLinesAreTwoLines) {
    const int lines = HistoryCount;
    KeyNumber(1, 2);
    EXPECT_EQ(HistoryCount, lines + 2);
    EXPECT_EQ(LastLines(2), (Texts{"1: ---", "1: ---"}));
}

TEST_F(HistoryTest, ALineIsFirstInTheListThenInTheBoxThenInTheLog) {
    std::size_t items = 0;
    std::size_t logged = 0;
    frmMain.Combo1.Change.Calls([&] {
        items = frmMain.Combo1.List().size();
        logged = HistoryLog.size();
    });
    const std::size_t items_before = frmMain.Combo1.List().size();
    const std::size_t logged_before = HistoryLog.size();
    AddHistoryLine("(Test)");
    EXPECT_EQ(items, items_before + 1);
    EXPECT_EQ(logged, logged_before);
    frmMain.Combo1.Change.Calls({});
}

TEST_F(HistoryTest, ANewSampleStandsTwiceInTheLogAndOnceInTheList) {
    EXPECT_EQ(LastLines(2), (Texts{"(New sample: 10)", "(New sample: 10)"}));
    EXPECT_EQ(frmMain.Combo1.List(), (Texts{"(Start)", "(New sample: 10)"}));
}

TEST_F(HistoryTest, ALineShowsTheNameAsItStandsAtThatMoment) {
    KeyNumber(1);
    frmMain.Text1[1].SetText("Pinus");
    KeyNumber(1);
    EXPECT_EQ(LastLines(2), (Texts{"1: ---", "1: Pinus"}));
}

TEST_F(HistoryTest, Line32767IsTheLastThatItHolds) {
    HistoryCount = 32766;
    AddHistoryLine("(Test)");
    EXPECT_EQ(HistoryCount, 32767);
    const std::size_t size = HistoryLog.size();
    EXPECT_THROW(AddHistoryLine("(Test)"), Failure);
    EXPECT_EQ(HistoryLog.size(), size);
    EXPECT_EQ(HistoryCount, 32767);
}

TEST_F(HistoryTest, TheKeyThatFillsItEndsTheProgram) {
    HistoryCount = 32767;
    RunEvent([this] { KeyNumber(1); });
    EXPECT_EQ(services_.host.failure, "Overflow");
    EXPECT_TRUE(services_.host.ended);
}
}  // namespace
