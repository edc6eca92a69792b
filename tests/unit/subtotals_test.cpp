#include "taxa/dialogs.h"

#include "platform/control.h"
#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"
#include "windows/subtotal_window.h"

namespace {
class SubtotalsTest : public SheetTest {
protected:
    SubtotalsTest() { Begin("10"); }
    void Open() { ClickControl(frmMain.mnuSubtotal); }
};

TEST_F(SubtotalsTest, AnEmptySlotIsCalledByItsNumber) {
    frmMain.Text1[5].SetText("Pinus");
    TaxonTable[6][kTaxonName] = "";
    Open();
    EXPECT_EQ(frmSubtotal.Check1[4].Caption(), "4: ---");
    EXPECT_EQ(frmSubtotal.Check1[5].Caption(), "Pinus");
    EXPECT_EQ(frmSubtotal.Check1[6].Caption(), "6: ---");
}

TEST_F(SubtotalsTest, TheBoxesFollowTheKeyNumbersInAllThreeBanks) {
    KeySettings[1][kKeyNumber] = 2;
    KeySettings[2][kKeyNumber] = "1";
    KeySettings[3][kKeyNumber] = 200;
    Open();
    for (const int bank : {0, 45, 90}) {
        EXPECT_EQ(frmSubtotal.Check1[2 + bank].Left(), frmSubtotal.Command4[1 + bank].Left()) << bank;
        EXPECT_EQ(frmSubtotal.Check1[1 + bank].Left(), frmSubtotal.Command4[2 + bank].Left()) << bank;
        EXPECT_EQ(frmSubtotal.Check1[3 + bank].Left(), frmSubtotal.Command4[3 + bank].Left()) << "no key has 200";
    }
    EXPECT_EQ(frmMain.Text1[46].Left(), KeyLeft[1]) << "unlike the main window";
}

TEST_F(SubtotalsTest, ATaxonCanBeInBothSubtotalsOrInNone) {
    KeyNumber(5, 3);
    Open();
    ClickControl(frmSubtotal.Check1[5]);
    ClickControl(frmSubtotal.Option1[2]);
    EXPECT_EQ(frmSubtotal.Check1[5].Value(), 0) << "the boxes show the other subtotal now";
    ClickControl(frmSubtotal.Check1[5]);
    EXPECT_EQ(frmMain.Text3[1].Text(), "3");
    EXPECT_EQ(frmMain.Text3[2].Text(), "3");
    ClickControl(frmSubtotal.Check1[5]);
    ClickControl(frmSubtotal.Option1[1]);
    ClickControl(frmSubtotal.Check1[5]);
    EXPECT_EQ(frmMain.Text3[1].Text(), "0");
    EXPECT_EQ(frmMain.Text3[2].Text(), "0");
    EXPECT_FALSE(frmSubtotal.Filling);
}

TEST_F(SubtotalsTest, AllTaxaAtOnceCanBeSavedToo) {
    Open();
    frmMain.mnuSave.SetEnabled(false);
    SetAllFlags(1);
    EXPECT_TRUE(frmMain.mnuSave.Enabled());
}

TEST_F(SubtotalsTest, CancelBringsBackEvenAFlagThatIsNoneOfOurs) {
    TaxonTable[7][kTaxonSubtotal1] = 300;
    TaxonTable[8][kTaxonSubtotal2] = -1;
    Open();
    EXPECT_EQ(frmSubtotal.Check1[7].Value(), 0);
    SetAllFlags(1);
    EXPECT_TRUE(TaxonTable[7][kTaxonSubtotal1] == 1);
    CancelSubtotals();
    EXPECT_TRUE(TaxonTable[7][kTaxonSubtotal1] == 300);
    EXPECT_TRUE(TaxonTable[8][kTaxonSubtotal2] == -1);
}

TEST_F(SubtotalsTest, ANameShowsEverywhereAtOnceAndSurvivesCancel) {
    Open();
    ClickControl(frmSubtotal.Text1[2]);
    frmSubtotal.Text1[2].Enter("Herbs", 5);
    for (int look = 0; look < 2; ++look) {
        EXPECT_TRUE(SheetHeader[kHeaderSubtotal2] == "Herbs");
        EXPECT_EQ(frmMain.Label2[2].Caption(), "Herbs:");
        EXPECT_EQ(frmMain.mnuPercentSub2.Caption(), "% by Herbs");
        EXPECT_EQ(frmMain.mnuPercentSub1.Caption(), "% by Subtotal-1");
        EXPECT_EQ(frmMain.mnuPercentAll.Caption(), "% by All total");
        CancelSubtotals();
    }
}

TEST_F(SubtotalsTest, ASubtotalRenamedToNothingIsSpokenByItsNumber) {
    Open();
    ClickControl(frmSubtotal.Text1[1]);
    EnterText(frmSubtotal.Text1[1], "", 0);
    ASSERT_EQ(frmMain.Label2[1].Caption(), ":");
    EXPECT_EQ(SpokenName(frmMain.Text3[1]), "Subtotal-1");
    EXPECT_EQ(SpokenName(frmMain.Option1[1]), "Set alarm: Subtotal-1");
}

TEST_F(SubtotalsTest, OpeningAloneMakesNothingToSave) {
    TaxonTable[7][kTaxonSubtotal1] = 1;
    SheetClean = true;
    Open();
    ClickControl(frmSubtotal.Option1[2]);
    ClickControl(frmSubtotal.Option1[1]);
    ClickControl(frmSubtotal.Command1);
    EXPECT_FALSE(frmMain.Command5[0].Enabled());
    EXPECT_FALSE(frmMain.mnuSave.Enabled());
    EXPECT_TRUE(SheetClean);
}

TEST_F(SubtotalsTest, InModifyModeSavingWaitsForItsEnd) {
    ClickControl(frmMain.Command3[0]);
    Open();
    ClickControl(frmSubtotal.Check1[5]);
    EXPECT_FALSE(frmMain.Command5[0].Enabled());
    ClickControl(frmSubtotal.Command1);
    EXPECT_TRUE(AmendMode);
    ClickControl(frmMain.Command3[1]);
    EXPECT_TRUE(frmMain.Command5[0].Enabled());
}

TEST_F(SubtotalsTest, SelectAllTakesEmptySlotsTooAndMovesNoTotalByThem) {
    KeyNumber(5, 2);
    Open();
    ClickControl(frmSubtotal.Command2[1]);
    for (int slot = 1; slot <= kSlots; ++slot)
        ASSERT_TRUE(TaxonTable[slot][kTaxonSubtotal1] == 1 && TaxonTable[slot][kTaxonSubtotal2] == 0) << slot;
    EXPECT_EQ(frmMain.Text3[1].Text(), "2");
    ClickControl(frmSubtotal.Command2[0]);
    EXPECT_EQ(frmMain.Text3[1].Text(), "0");
}
}  // namespace
