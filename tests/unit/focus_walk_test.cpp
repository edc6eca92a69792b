// Tab: where it leads, and what is marked there.
#include "platform/focus_walk.h"

#include <set>

#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/information_windows.h"
#include "windows/main_window.h"

namespace {
class FocusWalkTest : public SheetTest {
protected:
    FocusWalkTest() {
        Begin("10");
        ClickControl(frmMain.Command3[0]);  // Modify mode
    }
    void Step() { WalkFocus(frmMain, false); }
    void StepBack() { WalkFocus(frmMain, true); }
    Control* Focus() { return frmMain.Focus(); }
};

// The pad stands as the keys do, in rows of nine: F1 to F9 above, Z to the full stop below.
constexpr int kAsRead[kKeys] = {28, 29, 30, 34, 35, 36, 40, 41, 42, 31, 32, 33, 37, 38, 39, 43, 44, 45, 1,  2,  3,  10, 11,
                                12, 19, 20, 21, 4,  5,  6,  13, 14, 15, 22, 23, 24, 7,  8,  9,  16, 17, 18, 25, 26, 27};

TEST_F(FocusWalkTest, TabGoesThroughTheNamesOfABankAsTheyAreReadAndRoundAgain) {
    for (int bank = 0; bank < 3; ++bank) {
        PressTab(frmMain.SSTab1, bank);
        ClickControl(frmMain.Text1[bank * kKeys + kAsRead[0]]);
        for (int step = 1; step <= kKeys; ++step) {
            Step();
            ASSERT_EQ(Focus(), &frmMain.Text1[bank * kKeys + kAsRead[step % kKeys]]) << "bank " << bank << ", step " << step;
        }
    }
}

TEST_F(FocusWalkTest, TabGoesThroughTheCountsAlike) {
    ClickControl(frmMain.Text2[kAsRead[0]]);
    for (int step = 1; step <= kKeys; ++step) {
        Step();
        ASSERT_EQ(Focus(), &frmMain.Text2[kAsRead[step % kKeys]]) << step;
    }
}

TEST_F(FocusWalkTest, ACountRefusedAfterAStepIsTheOneThatStoodThere) {
    ClickControl(frmMain.Text2[1]);
    EnterText(frmMain.Text2[1], "7", 1);
    ClickControl(frmMain.Text2[1]);
    Step();
    EnterText(frmMain.Text2[2], "x", 1);
    EXPECT_EQ(LastMessage().text, "Please input digit(s).");
    EXPECT_EQ(frmMain.Text2[2].Text(), "0");
    EXPECT_EQ(Counts[2][1], 0);
}

TEST_F(FocusWalkTest, ACountRefusedAfterAnotherWindowIsTheOneThatWasPressed) {
    ClickControl(frmMain.Text2[1]);
    EnterText(frmMain.Text2[1], "7", 1);
    ClickControl(frmMain.mnuAboutMB1);
    CloseWindow(frmAboutMB1);
    EnterText(frmMain.Text2[1], "x", 1);
    EXPECT_EQ(frmMain.Text2[1].Text(), "0");
}

TEST_F(FocusWalkTest, ShiftTabGoesBack) {
    ClickControl(frmMain.Text1[2]);
    StepBack();
    EXPECT_EQ(Focus(), &frmMain.Text1[1]);
    StepBack();
    EXPECT_EQ(Focus(), &frmMain.Text1[45]);
    ClickControl(frmMain.Text1[28]);
    StepBack();
    EXPECT_EQ(Focus(), &frmMain.Text1[27]) << "from the first to the last";
}

TEST_F(FocusWalkTest, CellsThatHaveMovedAreReadWhereTheyAre) {
    frmMain.Text1[1].SetPlace(frmMain.Text1[30].Left() + 1, frmMain.Text1[30].Top());
    ClickControl(frmMain.Text1[30]);
    Step();
    EXPECT_EQ(Focus(), &frmMain.Text1[1]);
}

TEST_F(FocusWalkTest, WhatStandsWhereAStepEndsIsTypedOver) {
    ClickControl(frmMain.Text1[1]);
    Step();
    InsertText(frmMain.Text1[2], "P");
    InsertText(frmMain.Text1[2], "i");
    EXPECT_EQ(TaxonTable[2][kTaxonName], "Pi");
    StepBack();
    Step();
    InsertText(frmMain.Text1[2], "Betula");
    EXPECT_EQ(TaxonTable[2][kTaxonName], "Betula");
    ClickControl(frmMain.Text2[1]);
    Step();
    InsertText(frmMain.Text2[2], "5");
    EXPECT_EQ(Counts[2][1], 5);
}

TEST_F(FocusWalkTest, ABoxThatIsLeftIsMarkedNoMore) {
    ClickControl(frmMain.Text1[1]);
    Step();
    ClickControl(frmMain.Text1[1]);
    ClickControl(frmMain.Text1[2]);
    InsertText(frmMain.Text1[2], "P");
    EXPECT_EQ(TaxonTable[2][kTaxonName], "P---");
}

TEST_F(FocusWalkTest, ANoteIsNotMarked) {
    ClickControl(frmMain.Text4);
    Step();
    StepBack();
    ASSERT_EQ(Focus(), &frmMain.Text4);
    EXPECT_EQ(frmMain.Text4.SelLength(), 0);
}

TEST_F(FocusWalkTest, NoStepLeadsIntoAListWhereALetterWouldRenameTheSample) {
    ClickControl(frmMain.Text4);
    StepBack();
    EXPECT_NE(Focus(), &frmMain.Combo2);
    ClickControl(frmMain.Text4);
    std::set<Control*> met;
    for (Step(); met.insert(Focus()).second; Step()) EXPECT_NE(Focus()->kind(), Kind::ComboBox) << Focus()->name;
    EXPECT_GT(met.size(), 5u);
}

TEST_F(FocusWalkTest, OutsideTheGridNoStepLeadsIntoIt) {
    ClickControl(frmMain.Text4);
    std::set<Control*> met;
    for (Step(); met.insert(Focus()).second; Step()) EXPECT_NE(Focus()->container, &frmMain.SSTab1) << Focus()->name;
    EXPECT_TRUE(met.contains(&frmMain.Text4));
    EXPECT_GT(met.size(), 5u);
}
}  // namespace
