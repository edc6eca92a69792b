#include "session/key_dispatch.h"

#include <cstdint>

#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr Colour kCounted{255, 255, 110};
constexpr int kEscape = 27;  // in no row of the key settings that counts, shifts or undoes

class KeyDispatchTest : public SheetTest {
protected:
    KeyDispatchTest() {
        Begin("10");
        Played();
    }
};

TEST_F(KeyDispatchTest, AKeyThatShiftsAndCountsLeavesItsCellWhite) {
    KeySettings[5][kKeyCode] = kShift1;
    for (const bool counted_before : {false, true}) {
        if (counted_before) KeyNumber(1);
        for (TextBox* box : frmMain.Cell(50)) box->SetBackColor(kCounted);
        PressKey(kShift1);
        for (const TextBox* box : frmMain.Cell(50)) EXPECT_EQ(box->BackColor(), counted_before ? kWhite : kCounted) << counted_before;
        ReleaseKey(kShift1);
    }
}

TEST_F(KeyDispatchTest, TheFirstAndTheLastCounterKeyCountTheirSlots) {
    KeyNumber(1, 2);
    KeyNumber(45);
    EXPECT_EQ(Counts[1][1], 2);
    EXPECT_EQ(Counts[45][1], 1);
    EXPECT_EQ(AllTotal, 3);
    EXPECT_EQ(frmMain.Text2[45].Text(), "1");
    EXPECT_EQ(frmMain.Text3[0].Text(), "3");
}

TEST_F(KeyDispatchTest, EveryCounterKeyCountsItsOwnSlotAndNoOther) {
    for (int key = 1; key <= kKeys; ++key) KeyNumber(key, key);
    for (int slot = 1; slot <= kSlots; ++slot) EXPECT_EQ(Counts[slot][1], slot <= kKeys ? slot : 0) << "slot " << slot;
}

TEST_F(KeyDispatchTest, AKeyThatIsHeldCountsAtEveryRepeat) {
    for (int press = 0; press < 4; ++press) PressKey(CodeOf(1));
    ReleaseKey(CodeOf(1));
    EXPECT_EQ(Counts[1][1], 4);
}

TEST_F(KeyDispatchTest, OfTwoKeysThatAreDownAtOnceEachCounts) {
    PressKey(CodeOf(1));
    PressKey(CodeOf(2));
    ReleaseKey(CodeOf(1));
    PressKey(CodeOf(3));
    ReleaseKey(CodeOf(2));
    ReleaseKey(CodeOf(3));
    for (int slot = 1; slot <= 4; ++slot) EXPECT_EQ(Counts[slot][1], slot <= 3 ? 1 : 0) << "slot " << slot;
}

TEST_F(KeyDispatchTest, AKeyThatTheSettingsDoNotKnowDoesNothing) {
    KeyNumber(1);
    Played();
    SampleUntouched = true;
    for (const int code : {kEscape, 222, 97}) Key(code);
    EXPECT_TRUE(SampleUntouched);
    EXPECT_TRUE(frmMain.mnuNext.Enabled());
    EXPECT_EQ(UndoList[0][kUndoSlot], 1);
    EXPECT_EQ(Played(), Texts{});
    EXPECT_EQ(frmMain.Text3[0].Text(), "1");
}

TEST_F(KeyDispatchTest, AnyKeyGivesTheMainWindowBack) {
    frmMain.SetEnabled(false);
    DispatchKeyDown(kEscape);
    EXPECT_TRUE(frmMain.Enabled());
}

TEST_F(KeyDispatchTest, AKeyCountsOnlyWhileTheMainWindowIsActive) {
    KeyNumber(1);
    ClickControl(frmMain.Command5[1]);
    KeyNumber(1);
    EXPECT_EQ(Counts[1][1], 1);
}

TEST_F(KeyDispatchTest, ACodeThatWasReadAsATextCountsAsItsNumber) {
    KeySettings[1][kKeyCode] = "81";
    Key(81);
    EXPECT_EQ(Counts[1][1], 1);
}

TEST_F(KeyDispatchTest, OfTwoCounterKeysWithOneCodeTheLastCounts) {
    KeySettings[7][kKeyCode] = CodeOf(3);
    Key(CodeOf(3));
    EXPECT_EQ(Counts[3][1], 0);
    EXPECT_EQ(Counts[7][1], 1);
}

TEST_F(KeyDispatchTest, TheSlotIsTheKeyIndexInTheRowOfTheKey) {
    TaxonTable[3][kTaxonKey] = 12;
    KeyNumber(3);
    EXPECT_EQ(Counts[3][1], 0);
    EXPECT_EQ(Counts[12][1], 1);
    PressKey(kShift1);
    KeyNumber(3);
    ReleaseKey(kShift1);
    EXPECT_EQ(Counts[57][1], 1);
}

TEST_F(KeyDispatchTest, ACountedKeyMarksTheSheetChanged) {
    SheetClean = true;
    KeyNumber(1);
    EXPECT_FALSE(SheetClean);
    EXPECT_FALSE(SampleUntouched);
    for (const Control* command :
         std::initializer_list<const Control*>{&frmMain.Command2[0], &frmMain.mnuReset, &frmMain.Command5[0], &frmMain.mnuSave,
                                               &frmMain.mnuSaveHistory, &frmMain.mnuNew, &frmMain.mnuUndo})
        EXPECT_TRUE(command->Enabled()) << command->name;
}

TEST_F(KeyDispatchTest, AShiftKeyAloneLeavesSaveOffAndSwitchesNextSampleOffInTheMenu) {
    KeyNumber(1);
    frmMain.Command5[0].SetEnabled(false);
    frmMain.mnuUndo.SetEnabled(false);
    SheetClean = true;
    const int lines = HistoryCount;
    Key(kShift1);
    EXPECT_EQ(HistoryCount, lines);
    EXPECT_FALSE(frmMain.Command5[0].Enabled());
    EXPECT_FALSE(frmMain.mnuNext.Enabled());
    EXPECT_TRUE(frmMain.Command5[1].Enabled());
    EXPECT_FALSE(SheetClean) << "a shift key is a key of the pad all the same";
    EXPECT_TRUE(frmMain.mnuUndo.Enabled());
    EXPECT_EQ(UndoList[1][kUndoSlot], 0) << "and it pushes nothing";
    KeyNumber(1);
    EXPECT_TRUE(frmMain.mnuNext.Enabled()) << "the total has moved";
}

TEST_F(KeyDispatchTest, ACountIsLoggedAsNumberAndName) {
    frmMain.Text1[12].SetText("Pinus");
    KeyNumber(12);
    EXPECT_EQ(LastLines(1), Texts{"12: Pinus"});
    EXPECT_EQ(frmMain.Combo1.Text(), "12: Pinus");
    EXPECT_EQ(frmMain.Combo1.List().back(), "12: Pinus");
}

TEST_F(KeyDispatchTest, TheSlotCountedLastIsHighlightedAlone) {
    KeyNumber(2);
    EXPECT_EQ(frmMain.Text1[2].BackColor(), kCounted);
    EXPECT_EQ(frmMain.Text2[2].BackColor(), kCounted);
    KeyNumber(3);
    EXPECT_EQ(frmMain.Text1[2].BackColor(), kWhite);
    EXPECT_EQ(frmMain.Text2[2].BackColor(), kWhite);
    EXPECT_EQ(frmMain.Text2[3].BackColor(), kCounted);
    EXPECT_EQ(LastSlot, 3);
    EXPECT_TRUE(frmMain.Text1[2].Bold());
    EXPECT_TRUE(frmMain.Text2[3].Bold());
    EXPECT_FALSE(frmMain.Text2[4].Bold());
}

TEST_F(KeyDispatchTest, TheNewestCountStandsFirstInTheUndoList) {
    for (int i = 0; i <= kUndoDepth; ++i) {
        UndoList[i][kUndoSample] = static_cast<std::int16_t>(i % 7 + 1);
        UndoList[i][kUndoSlot] = static_cast<std::int16_t>(i % kSlots + 1);
    }
    KeyNumber(44);
    EXPECT_EQ(UndoList[0][kUndoSample], 1);
    EXPECT_EQ(UndoList[0][kUndoSlot], 44);
    for (int i = 0; i < kUndoDepth; ++i) {
        ASSERT_EQ(UndoList[i + 1][kUndoSample], i % 7 + 1) << i;
        ASSERT_EQ(UndoList[i + 1][kUndoSlot], i % kSlots + 1) << i;
    }
}

TEST_F(KeyDispatchTest, AKnownKeyWithoutASlotPushesSlot0AndChangesNothingToSee) {
    KeyNumber(1);
    KeySettings[48][kKeyCode] = 200;  // the second box of Shift-1, with a code of its own
    Key(200);
    EXPECT_EQ(UndoList[0][kUndoSlot], 0);
    EXPECT_EQ(UndoList[1][kUndoSlot], 1);
    EXPECT_EQ(frmMain.Text3[0].Text(), "1");
    EXPECT_EQ(LastLines(1), Texts{"1: ---"});
    EXPECT_EQ(frmMain.Text2[1].BackColor(), kCounted);
}

TEST_F(KeyDispatchTest, TheCellsLeadAndTheArrayFollowsAtTheNextKey) {
    PutInCell(9, "17");
    KeyNumber(1);
    EXPECT_EQ(Counts[9][1], 17);
    EXPECT_EQ(AllTotal, 18);
}

TEST_F(KeyDispatchTest, AKeystrokeLeavesNothingInTheHiddenFields) {
    KeyNumber(1);
    EXPECT_EQ(frmMain.Text0.Text(), "");
    EXPECT_EQ(frmMain.Text99.Text(), "");
}

TEST_F(KeyDispatchTest, KeyCode0NeverCountsAndNeverSounds) {
    KeySettings[5][kKeyCode] = 0;
    Key(0);
    EXPECT_EQ(Counts[5][1], 0);
    EXPECT_EQ(Played(), Texts{});
    EXPECT_EQ(LastLines(1), Texts{"(New sample: 10)"});
    EXPECT_TRUE(frmMain.Command5[0].Enabled()) << "the steps before the count are done all the same";
}

TEST_F(KeyDispatchTest, WithoutSoundAKeyCountsSilently) {
    SoundOn = false;
    KeyNumber(1);
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(Played(), Texts{});
}

TEST_F(KeyDispatchTest, InModifyModeKeysNeitherCountNorLog) {
    AmendMode = true;
    SheetClean = true;
    frmMain.Command5[0].SetEnabled(false);
    KeyNumber(1);
    EXPECT_EQ(Counts[1][1], 0);
    EXPECT_EQ(LastLines(1), Texts{"(New sample: 10)"});
    EXPECT_EQ(Played(), Texts{});
    EXPECT_TRUE(SheetClean);
    EXPECT_FALSE(frmMain.Command5[0].Enabled());
}

TEST_F(KeyDispatchTest, WhileThePercentButtonIsHeldKeysAreIgnored) {
    KeyNumber(1, 3);
    Played();
    PressMouse(frmMain.Command6, {MouseButton::Left, 0, 0});
    KeyNumber(1);
    PressKey(kShift1);
    PressKey(kUndo);
    EXPECT_EQ(ShiftLevel, 0);
    EXPECT_EQ(UndoKeyState, 0);
    ReleaseMouse(frmMain.Command6, {MouseButton::Left, 0, 0});
    EXPECT_EQ(Counts[1][1], 3);
    EXPECT_EQ(Played(), Texts{});
}

TEST_F(KeyDispatchTest, TheSaveKeyIsServedFirstAndCountsNothing) {
    SaveAs("/sheets/Mere.csv");
    KeySettings[50][kKeyCode] = CodeOf(1);
    Played();
    KeyNumber(1);
    EXPECT_EQ(Played(), Texts{"WaveSave"});
    EXPECT_EQ(Counts[1][1], 0);
    EXPECT_EQ(LastLines(1), Texts{"(Save)"});
}

TEST_F(KeyDispatchTest, TheSaveKeyIsServedWhileThePercentButtonIsHeld) {
    SaveAs("/sheets/Mere.csv");
    frmMain.KeysEnabled = false;
    Played();
    Key(kSaveKey);
    EXPECT_EQ(Played(), Texts{"WaveSave"});
}

TEST_F(KeyDispatchTest, ASaveByKeyGivesTheFocusBackOnlyIfSomethingWasCounted) {
    SaveAs("/sheets/Mere.csv");
    for (const bool clean : {true, false}) {
        frmMain.Command6.SetFocus();
        SheetClean = clean;
        Key(kSaveKey);
        EXPECT_EQ(frmMain.Focus(), clean ? static_cast<Control*>(&frmMain.Command6) : &frmMain.Text99) << clean;
    }
}
}  // namespace
