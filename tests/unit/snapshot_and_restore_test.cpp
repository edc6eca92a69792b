// The state that Reset and Quit go back to.
#include "platform/user.h"
#include "session/leaving.h"
#include "session/saved_state.h"
#include "session/undo.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
constexpr const char* kQuestion = "This action will abort all inputs after last saving. Do you proceed?";

class SnapshotAndRestoreTest : public SheetTest {
protected:
    SnapshotAndRestoreTest() { Begin("10"); }
};

TEST_F(SnapshotAndRestoreTest, RestoreBringsBackCountsNamesFlagsAndAdditionalInfo) {
    frmMain.Text1[1].SetText("Pinus");
    TaxonTable[1][kTaxonSubtotal1] = 1;
    frmMain.Label10[1].SetCaption("Depth:");
    frmMain.Text5[1].SetText("14 m");
    KeyNumber(1, 3);
    SnapshotSheet();
    KeyNumber(1);
    KeyNumber(2, 2);
    frmMain.Text1[1].SetText("Abies");
    TaxonTable[1][kTaxonKey] = 2;
    TaxonTable[1][kTaxonSubtotal1] = 0;
    TaxonTable[1][kTaxonSubtotal2] = 1;
    frmMain.Label10[1].SetCaption("Width:");
    frmMain.Text5[1].SetText("16 m");
    RestoreSheet();
    EXPECT_EQ(Counts[1][1], 3);
    EXPECT_EQ(Counts[2][1], 0);
    EXPECT_EQ(frmMain.Text2[1].Text(), "3");
    EXPECT_EQ(frmMain.Text2[2].Text(), "0");
    EXPECT_EQ(frmMain.Text1[1].Text(), "Pinus");
    EXPECT_EQ(TaxonTable[1][kTaxonName].Text(), "Pinus");
    EXPECT_TRUE(TaxonTable[1][kTaxonKey] == 1 && TaxonTable[1][kTaxonSubtotal1] == 1 && TaxonTable[1][kTaxonSubtotal2] == 0);
    EXPECT_EQ(frmMain.Label10[1].Caption(), "Depth:");
    EXPECT_EQ(frmMain.Text5[1].Text(), "14 m");
    EXPECT_EQ(ParamValues[1][1].Text(), "14 m");
    EXPECT_EQ(frmMain.Text3[0].Text(), "3");
    EXPECT_EQ(frmMain.Text3[1].Text(), "3");
    EXPECT_TRUE(frmMain.Text1[1].Bold());
    EXPECT_FALSE(frmMain.Text1[2].Bold());
}

TEST_F(SnapshotAndRestoreTest, RestoreReachesTheLastTaxon) {
    Counts[kSlots][1] = 7;
    SnapshotSheet();
    Counts[kSlots][1] = 9;
    RestoreSheet();
    EXPECT_EQ(Counts[kSlots][1], 7);
    EXPECT_EQ(frmMain.Text2[kSlots].Text(), "7");
}

TEST_F(SnapshotAndRestoreTest, RestoreReachesTheSamplesThatAreNotOnShow) {
    KeyNumber(1);
    NextSample("20");
    KeyNumber(2);
    SnapshotSheet();
    KeyNumber(2);
    Counts[1][1] = 50;
    RestoreSheet();
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(Counts[2][2], 1);
    EXPECT_EQ(CurrentSample, 2);
}

TEST_F(SnapshotAndRestoreTest, SamplesAddedSinceTheSnapshotKeepTheirCounts) {
    KeyNumber(1);
    SnapshotSheet();
    SampleCount = 2;
    CurrentSample = 2;
    frmMain.Text2[1].SetText("8");
    frmMain.Text2[2].SetText("5");
    ParamValues[1][2] = "deep";
    RestoreSheet();
    EXPECT_EQ(Counts[1][2], 8);
    EXPECT_EQ(Counts[2][2], 5);
    EXPECT_EQ(frmMain.Text2[1].Text(), "8");
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(SampleCount, 2);
}

TEST_F(SnapshotAndRestoreTest, AnEmptyValueOfAdditionalInfoComesBackAsDashes) {
    ParamValues[2][1] = "";
    SnapshotSheet();
    frmMain.Text5[2].SetText("deep");
    RestoreSheet();
    EXPECT_EQ(frmMain.Text5[2].Text(), "---");
}

TEST_F(SnapshotAndRestoreTest, WithoutASampleThereIsNothingToKeep) {
    KeyNumber(1, 3);
    SampleCount = 0;
    SnapshotSheet();
    ASSERT_EQ(CountsAtOpen.size(), 2u);
    EXPECT_EQ(CountsAtOpen[1][1], 0);
}

TEST_F(SnapshotAndRestoreTest, TheSnapshotIsAsWideAsTheSheet) {
    KeyNumber(1);
    NextSample("20");
    KeyNumber(1, 2);
    SnapshotSheet();
    ASSERT_EQ(CountsAtOpen.size(), 3u);
    EXPECT_EQ(CountsAtOpen[2][1], 2);
    EXPECT_EQ(TaxonTableAtOpen[135][kTaxonKey].Number(), 135);
    EXPECT_EQ(ParamValuesAtOpen[6][0].Text(), "Additional info-6:");
    EXPECT_EQ(ParamValuesAtOpen[6][2].Text(), "---");
}

TEST_F(SnapshotAndRestoreTest, ResetBeforeTheFirstSaveEmptiesTheSheetAndLeavesEveryKeyWorking) {
    KeyNumber(1, 2);
    frmMain.Text1[1].SetText("Pinus");
    AnswerNext(Answer::Yes);
    AbortCount();
    EXPECT_EQ(frmMain.Text3[0].Text(), "0");
    EXPECT_EQ(frmMain.Text1[1].Text(), "---");
    EXPECT_EQ(frmMain.Label10[1].Caption(), "Additional info-1:");
    for (int key = 1; key <= kKeys; ++key) KeyNumber(key);
    for (int slot = 1; slot <= kKeys; ++slot) EXPECT_EQ(Counts[slot][1], 1) << slot;
}

TEST_F(SnapshotAndRestoreTest, ResetAsksInTheseWordsAndLogsItsLine) {
    KeyNumber(1);
    SnapshotSheet();
    KeyNumber(1);
    Played();
    AnswerNext(Answer::Yes);
    ClickControl(frmMain.Command2[0]);
    EXPECT_EQ(LastMessage().title, "Caution!");
    EXPECT_EQ(LastMessage().text, kQuestion);
    EXPECT_EQ(LastMessage().buttons, Buttons::YesNo);
    EXPECT_EQ(Played(), Texts{"WaveError"});
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(LastLines(1), Texts{"(Reset)"});
    EXPECT_FALSE(frmMain.Command2[0].Enabled());
    EXPECT_EQ(frmMain.Focus(), &frmMain.Text99);
    EXPECT_EQ(CurrentSample, 1);
}

TEST_F(SnapshotAndRestoreTest, NoLeavesEverythingAndTheButtonOn) {
    KeyNumber(1);
    AnswerNext(Answer::No);
    ClickControl(frmMain.mnuReset);
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(UndoList[0][kUndoSlot], 1);
    EXPECT_EQ(LastLines(1), Texts{"1: ---"});
    EXPECT_TRUE(frmMain.Command2[0].Enabled());
}

TEST_F(SnapshotAndRestoreTest, WithATotalOf0NothingIsAskedAndNothingReset) {
    KeyNumber(1);
    Key(kUndo);
    frmMain.Text1[1].SetText("Pinus");
    Played();
    AbortCount();
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(Played(), Texts{"WaveError"});
    EXPECT_EQ(frmMain.Text1[1].Text(), "Pinus");
    EXPECT_TRUE(frmMain.Command2[0].Enabled());
}

TEST_F(SnapshotAndRestoreTest, ANegativeTotalIsSomethingToReset) {
    frmMain.Text2[1].SetText("-1");
    AllTotal = -1;
    AnswerNext(Answer::Yes);
    AbortCount();
    EXPECT_EQ(Counts[1][1], 0);
}

TEST_F(SnapshotAndRestoreTest, ResetForgetsTheNewest101CountsAndNoMore) {
    KeyNumber(1);
    for (int i = 0; i <= kUndoDepth; ++i) {
        UndoList[i][kUndoSample] = 1;
        UndoList[i][kUndoSlot] = 7;
    }
    AnswerNext(Answer::Yes);
    AbortCount();
    for (int i = 0; i <= kUndoDepth; ++i) {
        ASSERT_EQ(UndoList[i][kUndoSlot], i <= 100 ? 0 : 7) << i;
        ASSERT_EQ(UndoList[i][kUndoSample], 1) << i;
    }
}

TEST_F(SnapshotAndRestoreTest, AfterAResetUndoBeginsWithTheKeysPressedSince) {
    KeyNumber(1, 2);
    AnswerNext(Answer::Yes);
    AbortCount();
    Undo();
    EXPECT_EQ(Counts[1][1], 0);
    KeyNumber(1);
    Undo();
    EXPECT_EQ(Counts[1][1], 0);
    EXPECT_EQ(LastLines(1), Texts{"(Undo) 1: ---"});
}

TEST_F(SnapshotAndRestoreTest, InModifyModeResetLeavesTheFocusAlone) {
    AmendMode = true;
    frmMain.Text4.SetEnabled(true);
    frmMain.Text4.SetFocus();
    AbortCount();
    EXPECT_EQ(frmMain.Focus(), &frmMain.Text4);
}

TEST_F(SnapshotAndRestoreTest, AResetAfterAnUndoIntoASampleOfTheSheetBeforeLeavesItsCounts) {
    KeyNumber(1);
    NextSample("20");
    KeyNumber(2, 3);
    ShowSample(1);  // else the new sheet empties the cells, and with them the counts, of sample 2
    AnswerNext(Answer::Yes);
    ClickControl(frmMain.mnuNew);
    KeyNumber(1);
    frmMain.Text1[1].SetText("Pinus");
    Key(kUndo);
    Key(kUndo);
    ASSERT_EQ(SampleCount, 1);
    ASSERT_EQ(CurrentSample, 2);
    AnswerNext(Answer::Yes);
    ClickControl(frmMain.Command2[0]);
    EXPECT_EQ(LastLines(1), Texts{"(Reset)"});
    EXPECT_EQ(frmMain.Text2[2].Text(), "2");
    EXPECT_EQ(Counts[2][2], 2);
    EXPECT_EQ(frmMain.Text3[0].Text(), "2");
    EXPECT_EQ(frmMain.Text1[1].Text(), "---") << "names are those of the snapshot";
    EXPECT_EQ(frmMain.Text5[1].Text(), "---");
    EXPECT_EQ(CurrentSample, 2);
}
}  // namespace
