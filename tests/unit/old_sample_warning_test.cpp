// A counting key on a sample that is not the latest asks once before it counts.
#include "platform/user.h"
#include "session/key_dispatch.h"
#include "session/undo.h"
#include "unit/open_test.h"
#include "windows/main_window.h"

namespace {
class OldSampleWarningTest : public SheetTest {
protected:
    OldSampleWarningTest() {
        Begin("10");
        KeyNumber(1);
        NextSample("20");
        KeyNumber(1);
        ShowSample(1);
        Played();
    }
};

TEST_F(OldSampleWarningTest, TheQuestionHasTheseWords) {
    AnswerNext(Answer::No);
    KeyNumber(1);
    EXPECT_EQ(LastMessage().title, "Warning!!");
    EXPECT_EQ(LastMessage().text, "The datasheet that you are trying to modify is not the latest one. Do you continue?");
    EXPECT_EQ(LastMessage().buttons, Buttons::YesNo);
}

TEST_F(OldSampleWarningTest, NoLosesTheKeyAndAsksAgainAtTheNext) {
    for (int press = 0; press < 2; ++press) {
        AnswerNext(Answer::No);
        KeyNumber(1);
    }
    EXPECT_EQ(MessageCount(), 2u);
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(Played(), (Texts{"WaveError", "WaveError"}));
    EXPECT_EQ(UndoList[0][kUndoSample], 2) << "nothing was pushed";
    EXPECT_EQ(LastLines(1), Texts{"(Change sample: 10)"});
    EXPECT_TRUE(WarnOldSample);
}

TEST_F(OldSampleWarningTest, YesCountsThisKeyAndTheFollowingOnes) {
    AnswerNext(Answer::Yes);
    KeyNumber(1, 3);
    EXPECT_EQ(MessageCount(), 1u);
    EXPECT_EQ(Counts[1][1], 4);
    EXPECT_EQ(Played(), (Texts{"WaveError", "WaveKey1", "WaveKey1", "WaveKey1"}));
    EXPECT_FALSE(WarnOldSample);
}

TEST_F(OldSampleWarningTest, WithoutSoundTheSystemBeeps) {
    SoundOn = false;
    AnswerNext(Answer::Yes);
    KeyNumber(1);
    EXPECT_EQ(Played(), Texts{"Beep"});
}

TEST_F(OldSampleWarningTest, AfterYesTheKeyCountsInItsBankAndTheShiftsAreTakenAsUp) {
    PressKey(kShift1);
    PressKey(kShift2);
    AnswerNext(Answer::Yes);
    KeyNumber(1);
    EXPECT_EQ(Counts[91][1], 1);
    EXPECT_EQ(Played(), (Texts{"WaveError", "WaveKey3"}));
    EXPECT_EQ(ShiftLevel, 0);
    EXPECT_FALSE(Shift1Down || Shift2Down);
    EXPECT_EQ(frmMain.SSTab1.Tab(), 0);
}

TEST_F(OldSampleWarningTest, AfterNoTheShiftsStayAsTheyWere) {
    PressKey(kShift1);
    AnswerNext(Answer::No);
    KeyNumber(1);
    EXPECT_EQ(ShiftLevel, 1);
    EXPECT_TRUE(Shift1Down);
}

TEST_F(OldSampleWarningTest, NeitherAShiftKeyNorTheUndoKeyIsAskedAbout) {
    Key(kShift1);
    Key(kShift2);
    Key(kUndo);
    EXPECT_EQ(MessageCount(), 0u);
}

TEST_F(OldSampleWarningTest, TheLatestSampleIsTheOneWithTheHighestSerialWhereverItStands) {
    NextSample("15");  // serial 3, in the middle
    ASSERT_EQ(CurrentSample, 2);
    WarnOldSample = true;
    KeyNumber(1);
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(Counts[1][2], 1);
    ShowSample(3);  // serial 2, at the end
    AnswerNext(Answer::No);
    KeyNumber(1);
    EXPECT_EQ(MessageCount(), 1u);
}

TEST_F(OldSampleWarningTest, ColumnsThatWereDroppedOutsideMisleadIt) {
    SampleTable[kSampleSerial][1] = 2;
    SampleTable[kSampleSerial][2] = 3;
    ShowSample(1);
    KeyNumber(1);
    EXPECT_EQ(MessageCount(), 0u) << "the serial is the number of samples";
    ShowSample(2);
    AnswerNext(Answer::No);
    KeyNumber(1);
    EXPECT_EQ(MessageCount(), 1u);
}

TEST_F(OldSampleWarningTest, AnUndoThatGoesBackToAnOlderSampleBringsNoQuestion) {
    ShowSample(2);
    KeyNumber(1);
    Undo();
    Undo();
    Undo();
    ASSERT_EQ(CurrentSample, 1);
    KeyNumber(1);
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(Counts[1][1], 1);
}

TEST_F(OldSampleWarningTest, AReverseCountIsAskedAboutToo) {
    PressKey(kUndo);
    AnswerNext(Answer::No);
    KeyNumber(1);
    EXPECT_EQ(MessageCount(), 1u);
    EXPECT_EQ(Counts[1][1], 1);
}

TEST_F(OldSampleWarningTest, NoComesAfterTheKeyHasMarkedTheSheetChanged) {
    SaveAs("/sheets/mere.csv");
    SheetClean = true;  // as it is after an open
    ASSERT_FALSE(frmMain.Command5[0].Enabled());
    ASSERT_TRUE(frmMain.mnuNext.Enabled());
    AnswerNext(Answer::No);
    KeyNumber(1);
    EXPECT_TRUE(frmMain.Command5[0].Enabled());
    EXPECT_FALSE(frmMain.mnuNext.Enabled());
    EXPECT_FALSE(SheetClean);
    EXPECT_EQ(Counts[1][1], 1);
}

TEST_F(OldSampleWarningTest, AReverseCountThatIsLostStillKeepsTheUndoKeyFromUndoing) {
    PressKey(kUndo);
    AnswerNext(Answer::No);
    KeyNumber(1);
    EXPECT_EQ(UndoKeyState, 2);
    ReleaseKey(kUndo);
    EXPECT_EQ(UndoKeyState, 0);
    EXPECT_EQ(CurrentSample, 1);
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(Counts[1][2], 1);
    EXPECT_EQ(LastLines(1), Texts{"(Change sample: 10)"});
}

class WarningAfterOpenTest : public OpenTest {};

TEST_F(WarningAfterOpenTest, OnceAKeyHasCountedNoQuestionComesOnTheSheetOpenedNext) {
    ASSERT_TRUE(Open(DataSheet(2)));
    KeyNumber(1);
    ClickControl(frmMain.Command5[0]);
    Rows rows = DataSheet(2);
    std::swap(rows[0][4], rows[0][5]);  // its last column is the older sample
    AnswerNext(Answer::Yes);
    ASSERT_TRUE(Open(Joined(rows), "/sheets/other.csv"));
    const std::size_t asked = MessageCount();
    ASSERT_EQ(SampleTable[kSampleSerial][CurrentSample].Number(), 1);
    KeyNumber(1);
    EXPECT_EQ(MessageCount(), asked);
}
}  // namespace
