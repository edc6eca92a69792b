// A slot number written to the hidden field counts one in the slot's cell.
#include "session/totals.h"

#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
class CountChannelTest : public SheetTest {
protected:
    CountChannelTest() { Begin("10"); }
};

TEST_F(CountChannelTest, ANumberOfTwoOrThreeDigitsCountsItsSlot) {
    for (const char* slot : {"01", "09", "10", "99", "100", "135"}) frmMain.Text0.SetText(slot);
    for (const int slot : {1, 9, 10, 99, 100, 135}) EXPECT_EQ(Counts[slot][1], 1) << slot;
    EXPECT_EQ(AllTotal, 6);
    EXPECT_EQ(frmMain.Text0.Text(), "");
}

TEST_F(CountChannelTest, ATextOfOneCharacterIsNoSlot) {
    frmMain.Text0.SetText("7");
    EXPECT_EQ(Counts[7][1], 0);
    EXPECT_EQ(frmMain.Text0.Text(), "7") << "nothing at all is done";
}

TEST_F(CountChannelTest, ANumberPastTheLastSlotCountsNothing) {
    for (const char* slot : {"00", "136"}) frmMain.Text0.SetText(slot);
    EXPECT_EQ(AllTotal, 0);
    EXPECT_EQ(frmMain.Text0.Text(), "");
}

TEST_F(CountChannelTest, ANumberWithAMinusIsTheSameSlot) {
    frmMain.Text0.SetText("-07");
    EXPECT_EQ(Counts[7][1], 1);
}

TEST_F(CountChannelTest, AReverseCountTakesOneOff) {
    ReverseCount = true;
    frmMain.Text0.SetText("07");
    EXPECT_EQ(frmMain.Text2[7].Text(), "-1");
}

TEST_F(CountChannelTest, ACellThatIsNoNumberGoesOnFromItsLeadingNumber) {
    PutInCell(7, "12 cf.");
    frmMain.Text0.SetText("07");
    EXPECT_EQ(frmMain.Text2[7].Text(), "13");
}

TEST_F(CountChannelTest, TheTotalsAreSummedAnewAndAllCellsReachTheArray) {
    TaxonTable[7][kTaxonSubtotal1] = 1;
    PutInCell(135, "30");
    frmMain.Text0.SetText("07");
    EXPECT_EQ(frmMain.Text3[0].Text(), "31");
    EXPECT_EQ(frmMain.Text3[1].Text(), "1");
    EXPECT_EQ(Counts[135][1], 30);
}
}  // namespace
