// Two shift keys choose the bank: none is bank 0, one is bank 1, both are bank 2.
#include <utility>
#include <vector>

#include "platform/user.h"
#include "session/key_dispatch.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
class ShiftLevelsTest : public SheetTest {
protected:
    ShiftLevelsTest() {
        Begin("10");
        Played();
    }
};

struct Step {
    char key;   // '1', '2': a shift key goes down; 'a', 'b': the same comes up
    int level;  // after it
};

TEST_F(ShiftLevelsTest, OneShiftKeyIsLevel1AndBothAreLevel2WhicheverCameFirst) {
    const std::vector<std::vector<Step>> cases = {
        {{'1', 1}, {'2', 2}, {'a', 1}, {'b', 0}},
        {{'1', 1}, {'2', 2}, {'b', 1}, {'a', 0}},
        {{'2', 1}, {'1', 2}, {'a', 1}, {'b', 0}},
        {{'2', 1}, {'1', 2}, {'b', 1}, {'a', 0}},
        {{'1', 1}, {'1', 1}, {'1', 1}, {'a', 0}},  // repeats of one held key
        {{'2', 1}, {'2', 1}, {'2', 1}, {'b', 0}},
        {{'1', 1}, {'2', 2}, {'2', 2}, {'1', 2}, {'a', 1}, {'b', 0}},  // repeats while both are held only meet the clamp
        {{'1', 1}, {'2', 2}, {'a', 1}, {'2', 1}, {'b', 0}},
        {{'a', 0}, {'b', 0}, {'1', 1}, {'a', 0}},  // releases that no press went before
    };
    for (std::size_t i = 0; i < cases.size(); ++i) {
        for (const Step& step : cases[i]) {
            const int code = step.key == '1' || step.key == 'a' ? kShift1 : kShift2;
            if (step.key < 'a')
                PressKey(code);
            else
                ReleaseKey(code);
            EXPECT_EQ(ShiftLevel, step.level) << "case " << i << ", key " << step.key;
        }
        EXPECT_FALSE(Shift1Down || Shift2Down) << "case " << i;
    }
}

TEST_F(ShiftLevelsTest, TheBankOfAKeyFollowsTheLevelAndSoDoesItsSound) {
    KeyNumber(7);
    PressKey(kShift2);
    KeyNumber(7);
    PressKey(kShift1);
    KeyNumber(7);
    ReleaseKey(kShift2);
    KeyNumber(7);
    ReleaseKey(kShift1);
    EXPECT_EQ(Counts[7][1], 1);
    EXPECT_EQ(Counts[52][1], 2);
    EXPECT_EQ(Counts[97][1], 1);
    EXPECT_EQ(Played(), (Texts{"WaveKey1", "WaveKey2", "WaveKey3", "WaveKey2"}));
}

TEST_F(ShiftLevelsTest, TheLastKeyWithBothShiftsHeldCountsTheLastSlot) {
    PressKey(kShift1);
    PressKey(kShift2);
    KeyNumber(45);
    EXPECT_EQ(Counts[135][1], 1);
    EXPECT_EQ(LastLines(1), Texts{"135: ---"});
}

TEST_F(ShiftLevelsTest, TheTabInFrontFollowsTheLevel) {
    PressKey(kShift1);
    EXPECT_EQ(frmMain.SSTab1.Tab(), 1);
    PressKey(kShift2);
    EXPECT_EQ(frmMain.SSTab1.Tab(), 2);
    ReleaseKey(kShift1);
    EXPECT_EQ(frmMain.SSTab1.Tab(), 1);
    ReleaseKey(kShift2);
    EXPECT_EQ(frmMain.SSTab1.Tab(), 0);
}

TEST_F(ShiftLevelsTest, AnyReleaseBringsTheTabBackUnlessBothShiftsAreHeld) {
    frmMain.SSTab1.SetTab(2);
    ReleaseKey(27);
    EXPECT_EQ(frmMain.SSTab1.Tab(), 0);
    PressKey(kShift1);
    PressKey(kShift2);
    frmMain.SSTab1.SetTab(0);
    ReleaseKey(27);
    EXPECT_EQ(frmMain.SSTab1.Tab(), 0) << "with both held the tab stays as it is";
}

TEST_F(ShiftLevelsTest, InModifyModeTheLevelMovesAndTheTabStays) {
    AmendMode = true;
    PressKey(kShift1);
    PressKey(kShift2);
    EXPECT_EQ(ShiftLevel, 2);
    EXPECT_EQ(frmMain.SSTab1.Tab(), 0);
    ReleaseKey(kShift1);
    EXPECT_EQ(ShiftLevel, 1);
    EXPECT_EQ(frmMain.SSTab1.Tab(), 0);
}

TEST_F(ShiftLevelsTest, AReleaseInAnotherWindowLeavesTheLevelUp) {
    KeyNumber(1);
    PressKey(kShift1);
    ClickControl(frmMain.Command5[1]);
    ReleaseKey(kShift1);
    ClickControl(frmNext.Command3);
    EXPECT_EQ(ShiftLevel, 1);
    KeyNumber(1);
    EXPECT_EQ(Counts[46][1], 1);
}
}  // namespace
