#include "session/totals.h"

#include "platform/failure.h"
#include "unit/program_test.h"
#include "windows/main_window.h"

namespace {
class TotalsTest : public ProgramTest {
protected:
    TotalsTest() { Begin("10"); }
};

TEST_F(TotalsTest, SubtotalCountsASlotThatHasNoName) {
    TaxonTable[7][kTaxonSubtotal1] = 1;
    frmMain.Text2[7].SetText("12");
    RecountTotals(1);
    EXPECT_EQ(frmMain.Text3[1].Text(), "12");
}

TEST_F(TotalsTest, ACellThatIsNoNumberCountsAsItsLeadingNumber) {
    frmMain.KeysEnabled = false;  // so that the cell takes the text as it is
    frmMain.Text2[3].SetText("7 cf.");
    frmMain.Text2[4].SetText("");
    RecountTotals(1);
    EXPECT_EQ(AllTotal, 7);
}

TEST_F(TotalsTest, ANameThatWasWipedOutIsAnEmptySlot) {
    for (const char* blank : {"-", "--", "", " ", "  "}) {
        frmMain.Text1[5].SetText("Pinus");
        frmMain.Text1[5].SetText(blank);
        RecountTotals(1);
        EXPECT_EQ(frmMain.Text1[5].Text(), "---") << '"' << blank << '"';
    }
    frmMain.Text1[5].SetText("   ");
    RecountTotals(1);
    EXPECT_EQ(frmMain.Text1[5].Text(), "   ");
}

TEST_F(TotalsTest, BoldFollowsTheArrayAndNotTheCell) {
    Counts[5][1] = -2;
    RecountTotals(1);
    EXPECT_TRUE(frmMain.Text1[5].Bold());
    EXPECT_TRUE(frmMain.Text2[5].Bold());
    Counts[5][1] = 0;
    RecountTotals(1);
    EXPECT_FALSE(frmMain.Text1[5].Bold());
}

TEST_F(TotalsTest, ATotalBeyond32BitsFailsAndTheBoxesKeepTheirSums) {
    KeyNumber(1);
    frmMain.Text2[2].SetText("2147483647");
    EXPECT_THROW(RecountTotals(1), Failure);
    EXPECT_EQ(frmMain.Text3[0].Text(), "1");
}
}  // namespace
