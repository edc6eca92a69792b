#include "session/undo.h"

#include "platform/user.h"
#include "session/start_up.h"
#include "session/totals.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
constexpr Colour kUndone{255, 255, 135};

class UndoTest : public SheetTest {
protected:
    UndoTest() {
        Begin("10");
        Played();
    }
};

TEST_F(UndoTest, TheNewestCountIsTakenBackAndLogged) {
    frmMain.Text1[2].SetText("Pinus");
    KeyNumber(2, 2);
    Played();
    Undo();
    EXPECT_EQ(Counts[2][1], 1);
    EXPECT_EQ(frmMain.Text2[2].Text(), "1");
    EXPECT_EQ(frmMain.Text3[0].Text(), "1");
    EXPECT_EQ(LastLines(1), Texts{"(Undo) 2: Pinus"});
    EXPECT_EQ(Played(), Texts{"WaveUndo"});
}

TEST_F(UndoTest, AReverseCountIsGivenBackAsUndoAmend) {
    KeyNumber(2);
    PressKey(kUndo);
    KeyNumber(2);
    ReleaseKey(kUndo);
    Undo();
    EXPECT_EQ(Counts[2][1], 1);
    EXPECT_EQ(LastLines(1), Texts{"(Undo-amend) 2: ---"});
}

TEST_F(UndoTest, TheUndoneSlotTakesAPalerHighlight) {
    KeyNumber(2);
    KeyNumber(3);
    Undo();
    Undo();
    EXPECT_EQ(frmMain.Text1[3].BackColor(), kWhite);
    EXPECT_EQ(frmMain.Text1[2].BackColor(), kUndone);
    EXPECT_EQ(frmMain.Text2[2].BackColor(), kUndone);
    EXPECT_EQ(LastSlot, 2);
}

TEST_F(UndoTest, TheEntryIsPoppedAndTheLastPlaceEmpties) {
    for (int i = 0; i <= kUndoDepth; ++i) {
        UndoList[i][kUndoSample] = 1;
        UndoList[i][kUndoSlot] = static_cast<std::int16_t>(i % kSlots + 1);
    }
    Undo();
    for (int i = 0; i < kUndoDepth; ++i) ASSERT_EQ(UndoList[i][kUndoSlot], (i + 1) % kSlots + 1) << i;
    EXPECT_EQ(UndoList[kUndoDepth][kUndoSample], 0);
    EXPECT_EQ(UndoList[kUndoDepth][kUndoSlot], 0);
}

TEST_F(UndoTest, ACountOfAnotherSampleBringsThatSampleBack) {
    KeyNumber(1);
    NextSample("20");
    KeyNumber(1);
    KeyNumber(2);
    ShowSample(1);
    Undo();
    EXPECT_EQ(CurrentSample, 2);
    EXPECT_EQ(Counts[2][2], 0);
    EXPECT_EQ(Counts[1][2], 1);
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(frmMain.Text2[1].Text(), "1");
    EXPECT_EQ(frmMain.Text1[0].Text(), "20");
    EXPECT_EQ(frmMain.Combo2.Text(), "20");
    EXPECT_EQ(frmMain.Label4.Caption(), "2/2");
    EXPECT_EQ(frmMain.Text3[0].Text(), "1");
    EXPECT_EQ(LastLines(2), (Texts{"(Change sample: 20)", "(Undo) 2: ---"}));
}

TEST_F(UndoTest, GoingToAnotherSampleRenamesNothing) {
    KeyNumber(1);
    NextSample("20");
    ShowSample(2);
    Undo();
    EXPECT_EQ(CurrentSample, 1);
    EXPECT_EQ(SampleTable[kSampleName][1].Text(), "10");
    EXPECT_EQ(SampleTable[kSampleName][2].Text(), "20");
    EXPECT_EQ(Counts[1][1], 0);
}

TEST_F(UndoTest, NoteAndAdditionalInfoOfTheSampleBroughtBackAreOnShow) {
    frmMain.Text4.SetText("sand");
    frmMain.Text5[1].SetText("14 m");
    KeyNumber(1);
    NextSample("20");
    frmMain.Text4.SetText("clay");
    Undo();
    EXPECT_EQ(frmMain.Text4.Text(), "sand");
    EXPECT_EQ(frmMain.Text5[1].Text(), "14 m");
    SaveAs("/sheets/Mere.csv");
    EXPECT_EQ(SampleNotes[1], "sand\r\nLast saved: 14/11/2026 (10:11:12)");
    EXPECT_EQ(SampleNotes[2], "clay");
}

TEST_F(UndoTest, SamplesOfOneNameAreToldApartByTheirSerial) {
    KeyNumber(1);
    NextSample("20");
    SampleTable[kSampleName][1] = "20";
    Undo();
    EXPECT_EQ(CurrentSample, 1);
    EXPECT_EQ(frmMain.Label4.Caption(), "1/2");
}

TEST_F(UndoTest, ItSoundsTheAlarmOneAboveAHundredAndAt1) {
    struct {
        int total;
        const char* wave;
    } cases[] = {{1, "WaveAlarm"}, {2, "WaveUndo"}, {100, "WaveUndo"}, {101, "WaveAlarm"}, {102, "WaveUndo"}, {201, "WaveAlarm"}};
    for (const auto& each : cases) {
        UndoList[0][kUndoSample] = UndoList[0][kUndoSlot] = 1;
        PutInCell(1, std::to_string(each.total));
        RecountTotals(1);
        AlarmArmed = false;  // which it does not look at
        Played();
        Undo();
        EXPECT_EQ(Played(), Texts{each.wave}) << each.total;
        EXPECT_TRUE(AlarmArmed) << each.total;
    }
    EXPECT_EQ(files_.bytes.count("/program/References/Back up files/Master_back_up.csv"), 0u) << "an undo backs nothing up";
}

TEST_F(UndoTest, OnlyTheChosenTotalSoundsTheAlarm) {
    KeyNumber(1, 2);
    PutInCell(1, "101");
    RecountTotals(1);
    ClickControl(frmMain.Option1[2]);
    Played();
    Undo();
    EXPECT_EQ(Played(), Texts{"WaveUndo"});
}

TEST_F(UndoTest, ItIsSilentWithoutSound) {
    KeyNumber(1, 2);
    SoundOn = false;
    Played();
    Undo();
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(Played(), Texts{});
}

TEST_F(UndoTest, WithNothingToUndoItOnlyRecountsAndArmsTheAlarm) {
    KeyNumber(1);
    UndoList[0][kUndoSlot] = 0;
    frmMain.mnuUndo.SetEnabled(true);
    AlarmArmed = false;
    PutInCell(1, "5");
    Played();
    Undo();
    EXPECT_EQ(frmMain.Text2[1].Text(), "5");
    EXPECT_EQ(frmMain.Text3[0].Text(), "5");
    EXPECT_EQ(Played(), Texts{});
    EXPECT_EQ(LastLines(1), Texts{"1: ---"});
    EXPECT_FALSE(frmMain.mnuUndo.Enabled());
    EXPECT_TRUE(AlarmArmed);
}

TEST_F(UndoTest, AnEntryWithoutASlotIsNotPopped) {
    KeyNumber(1);
    KeySettings[48][kKeyCode] = 200;
    Key(200);
    Undo();
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(UndoList[0][kUndoSlot], 0);
    EXPECT_EQ(UndoList[1][kUndoSlot], 1);
}

TEST_F(UndoTest, TheMenuOffersItWhileThereIsSomethingToUndo) {
    KeyNumber(1, 2);
    ClickControl(frmMain.mnuUndo);
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_TRUE(frmMain.mnuUndo.Enabled());
    ClickControl(frmMain.mnuUndo);
    EXPECT_FALSE(frmMain.mnuUndo.Enabled());
}

TEST_F(UndoTest, Of1002CountsTheFirstCanNoLongerBeUndone) {
    KeyNumber(1, 1002);
    for (int i = 0; i < 1010; ++i) Undo();
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(frmMain.Text3[0].Text(), "1");
}

TEST_F(UndoTest, ASaveDoesNotEndWhatCanBeUndone) {
    KeyNumber(1);
    SaveAs("/sheets/Mere.csv");
    Undo();
    EXPECT_EQ(Counts[1][1], 0);
}

TEST_F(UndoTest, AFreshSheetKeepsTheListAndOnlySwitchesTheMenuOff) {
    KeyNumber(3);
    InitialiseSheet();
    EXPECT_EQ(UndoList[0][kUndoSlot], 3);
    EXPECT_FALSE(frmMain.mnuUndo.Enabled());
    Undo();
    EXPECT_EQ(Counts[3][1], -1);
}
}  // namespace
