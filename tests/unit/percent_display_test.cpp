#include "session/pad_cells.h"

#include "diagram/data/percentages.h"
#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
class PercentDisplayTest : public SheetTest {
protected:
    PercentDisplayTest() { Begin("10"); }
    void Count(int slot, int count) { frmMain.Text2[slot].SetText(std::to_string(count)); }
};

TEST_F(PercentDisplayTest, TheCellsShowPercentWhileTheButtonIsHeldAndCountsAfterIt) {
    KeyNumber(1, 2);
    KeyNumber(2);
    frmMain.Command6.SetFocus();
    PressMouse(frmMain.Command6, {MouseButton::Left, 0, 0});
    EXPECT_FALSE(frmMain.KeysEnabled);
    EXPECT_EQ(frmMain.Text2[1].Text(), "66.7");
    EXPECT_EQ(frmMain.Text2[2].Text(), "33.3");
    EXPECT_EQ(frmMain.Text2[3].Text(), "0");
    EXPECT_EQ(frmMain.Text3[0].Text(), "3") << "the totals stay as they are";
    EXPECT_EQ(Counts[1][1], 2);
    ReleaseMouse(frmMain.Command6, {MouseButton::Left, 0, 0});
    EXPECT_EQ(frmMain.Text2[1].Text(), "2");
    EXPECT_EQ(frmMain.Text2[2].Text(), "1");
    EXPECT_EQ(Counts[1][1], 2);
    EXPECT_TRUE(frmMain.KeysEnabled);
    EXPECT_EQ(frmMain.Focus(), &frmMain.Text99);
}

TEST_F(PercentDisplayTest, TheProductIsRoundedAsASingleTiesToEven) {
    struct {
        int count, sum;
        const char* percent;
    } cases[] = {{1, 16, "6.2"}, {3, 16, "18.8"}, {5, 16, "31.2"}, {1, 400, "0.2"}, {3, 400, "0.8"},  // 3 of 400 is a tie as a Single alone
                 {1, 8, "12.5"}, {1, 3, "33.3"},  {2, 3, "66.7"},  {4, 4, "100"},   {-1, 16, "-6.2"}, {1, 30000, "0"}};
    for (const auto& each : cases) {
        Count(1, each.count);
        Count(2, each.sum - each.count);
        ShowPercentages();
        EXPECT_EQ(frmMain.Text2[1].Text(), each.percent) << each.count << " of " << each.sum;
        HidePercentages();
    }
}

TEST_F(PercentDisplayTest, ASlotOutsideTheBasisShowsItsShareOfTheBasisAllTheSame) {
    Count(1, 10);
    Count(2, 25);
    TaxonTable[1][kTaxonSubtotal2] = 1;
    ClickControl(frmMain.Option1[2]);
    ShowPercentages();
    EXPECT_EQ(frmMain.Text2[1].Text(), "100");
    EXPECT_EQ(frmMain.Text2[2].Text(), "250");
}

TEST_F(PercentDisplayTest, WithNothingInTheBasisEveryCellShows0) {
    KeyNumber(1, 3);
    ClickControl(frmMain.Option1[1]);
    ShowPercentages();
    EXPECT_EQ(frmMain.Text2[1].Text(), "0");
    EXPECT_EQ(frmMain.Text3[0].Text(), "3");
    HidePercentages();
    EXPECT_EQ(frmMain.Text2[1].Text(), "3");
}

TEST_F(PercentDisplayTest, TheTotalsTurnIntoPercentOnlyWhereSample136HasASum) {
    TaxonTable[1][kTaxonSubtotal1] = 1;
    KeyNumber(1, 2);
    KeyNumber(2, 4);
    Counts[0][136] = 5;
    ShowPercentages();
    EXPECT_EQ(frmMain.Text3[0].Text(), "100");
    EXPECT_EQ(frmMain.Text3[1].Text(), "33.3");
    EXPECT_EQ(frmMain.Text3[2].Text(), "0");
    HidePercentages();
    EXPECT_EQ(frmMain.Text3[0].Text(), "6");
    EXPECT_EQ(frmMain.Text3[1].Text(), "2");
}

TEST_F(PercentDisplayTest, TotalsInPercentOfASampleWithoutABasisAreADivisionByZero) {
    KeyNumber(1, 2);
    Counts[0][136] = 5;
    ClickControl(frmMain.Option1[1]);
    RunEvent(ShowPercentages);
    EXPECT_EQ(services_.host.failure, "Division by zero");
}

TEST_F(PercentDisplayTest, TheSumOfTheBasisIsKeptForItsSample) {
    KeyNumber(1, 7);
    ShowPercentages();
    EXPECT_EQ(Counts[0][1], 7);
    EXPECT_EQ(SamplePercent[1][1], 1.0F);
}

TEST_F(PercentDisplayTest, CountsBelow0ComeBackAsTheyWere) {
    Count(1, -3);
    Count(2, 5);
    ShowPercentages();
    EXPECT_EQ(frmMain.Text2[1].Text(), "-150");
    HidePercentages();
    EXPECT_EQ(frmMain.Text2[1].Text(), "-3");
}

TEST_F(PercentDisplayTest, ACountPast32767CannotWaitInItsPlace) {
    Count(1, 32767);
    RunEvent(ShowPercentages);
    EXPECT_EQ(services_.host.failure, "");
    HidePercentages();
    EXPECT_EQ(frmMain.Text2[1].Text(), "32767");
    Count(1, 32768);
    RunEvent(ShowPercentages);
    EXPECT_EQ(services_.host.failure, "Overflow");
}
}  // namespace
