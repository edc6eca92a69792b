// The undo key, held, turns a counter key into a subtraction; pressed and released alone it takes the last count back.
#include "platform/user.h"
#include "session/key_dispatch.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
class ReverseCountTest : public SheetTest {
protected:
    ReverseCountTest() { Begin("10"); }
};

TEST_F(ReverseCountTest, ACounterKeyUnderTheHeldUndoKeySubtractsAndItsReleaseUndoesNothing) {
    KeyNumber(1, 2);
    Played();
    PressKey(kUndo);
    KeyNumber(1);
    ReleaseKey(kUndo);
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(UndoList[0][kUndoSlot], -1);
    EXPECT_EQ(LastLines(2), (Texts{"1: ---", "(Amend) 1: ---"}));
    EXPECT_EQ(Played(), Texts{"WaveUndo"});
    EXPECT_EQ(UndoKeyState, 0);
}

TEST_F(ReverseCountTest, AReverseCountAtZeroShowsMinusOne) {
    PressKey(kUndo);
    KeyNumber(3);
    EXPECT_EQ(frmMain.Text2[3].Text(), "-1");
    EXPECT_EQ(Counts[3][1], -1);
    EXPECT_EQ(frmMain.Text3[0].Text(), "-1");
    EXPECT_TRUE(frmMain.Text2[3].Bold());
}

TEST_F(ReverseCountTest, AllKeysUnderTheHeldUndoKeySubtractInTheirBanks) {
    PressKey(kUndo);
    KeyNumber(1);
    KeyNumber(2);
    EXPECT_EQ(UndoKeyState, 3);
    PressKey(kShift1);
    PressKey(kShift2);
    KeyNumber(1);
    EXPECT_EQ(Counts[1][1], -1);
    EXPECT_EQ(Counts[2][1], -1);
    EXPECT_EQ(Counts[91][1], -1);
    EXPECT_EQ(UndoList[0][kUndoSlot], -91);
}

TEST_F(ReverseCountTest, AfterTheUndoKeyKeysCountUpAgain) {
    PressKey(kUndo);
    KeyNumber(1);
    ReleaseKey(kUndo);
    KeyNumber(1, 2);
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_FALSE(ReverseCount);
    EXPECT_EQ(LastLines(1), Texts{"1: ---"});
}

TEST_F(ReverseCountTest, TheUndoKeyAloneUndoesAtItsReleaseHoweverLongItWasHeld) {
    KeyNumber(1, 2);
    for (int press = 0; press < 5; ++press) PressKey(kUndo);
    EXPECT_EQ(Counts[1][1], 2);
    EXPECT_EQ(UndoKeyState, 1);
    ReleaseKey(kUndo);
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(UndoKeyState, 0);
}

TEST_F(ReverseCountTest, AnyReleaseUnderThePureUndoKeyUndoes) {
    KeyNumber(1, 3);
    PressKey(kShift1);
    PressKey(kUndo);
    ReleaseKey(kShift1);
    EXPECT_EQ(Counts[1][1], 2);
    ReleaseKey(27);
    EXPECT_EQ(Counts[1][1], 1);
    ReleaseKey(kUndo);
    EXPECT_EQ(Counts[1][1], 0);
}

TEST_F(ReverseCountTest, AShiftKeyUnderTheUndoKeyIsNoSubtraction) {
    PressKey(kUndo);
    PressKey(kShift1);
    EXPECT_EQ(UndoKeyState, 1);
    EXPECT_FALSE(ReverseCount);
}

TEST_F(ReverseCountTest, ThePanelsOfThePadAreGoneWhileTheUndoKeyIsDown) {
    PressKey(kUndo);
    for (const Frame& panel : frmMain.Frame3) EXPECT_FALSE(panel.Visible());
    KeyNumber(1);
    for (const Frame& panel : frmMain.Frame3) EXPECT_FALSE(panel.Visible());
    ReleaseKey(kUndo);
    for (const Frame& panel : frmMain.Frame3) EXPECT_TRUE(panel.Visible());
}

TEST_F(ReverseCountTest, TheUndoKeyAloneMarksNothingChanged) {
    SheetClean = true;
    frmMain.mnuNew.SetEnabled(false);
    frmMain.Command5[0].SetEnabled(false);
    Key(kUndo);
    EXPECT_TRUE(SheetClean);
    EXPECT_FALSE(frmMain.mnuNew.Enabled());
    EXPECT_FALSE(frmMain.Command5[0].Enabled());
}

TEST_F(ReverseCountTest, InModifyModeTheUndoKeyUndoesNothingAndThePanelsStayAway) {
    KeyNumber(1);
    AmendMode = true;
    for (Frame& panel : frmMain.Frame3) panel.SetVisible(false);
    Key(kUndo);
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(UndoKeyState, 0);
    for (const Frame& panel : frmMain.Frame3) EXPECT_FALSE(panel.Visible());
}

TEST_F(ReverseCountTest, AnUndoKeyThatWentDownInModifyModeUndoesNothingAtAKeyThatComesUp) {
    KeyNumber(1);
    AmendMode = true;
    PressKey(kUndo);
    ReleaseKey(27);
    EXPECT_EQ(Counts[1][1], 1);
}
}  // namespace
