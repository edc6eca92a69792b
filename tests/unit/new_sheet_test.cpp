#include "files/new_sheet.h"

#include "files/save_sheet.h"
#include "platform/user.h"
#include "unit/diagram_test.h"
#include "unit/open_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"
#include "windows/next_window.h"

namespace {
class NewSheetTest : public OpenTest {
protected:
    NewSheetTest() {
        EXPECT_TRUE(Open(DataSheet(2)));
        KeyNumber(1);
        Played();
    }
};

TEST_F(NewSheetTest, AYesWipesTheSession) {
    AnswerNext(Answer::Yes);
    ClickControl(frmMain.mnuNew);
    EXPECT_EQ(LastMessage().title, "Caution!");
    EXPECT_EQ(LastMessage().text, "This action will abort current data. Do you proceed?");
    EXPECT_EQ(LastMessage().buttons, Buttons::YesNo);
    EXPECT_EQ(Played(), (Texts{"WaveError", "WaveOpening"}));
    EXPECT_EQ(SheetPath, "");
    EXPECT_TRUE(SaveAsPending);
    EXPECT_EQ(SampleCount, 1);
    EXPECT_EQ(MaxSerial, 1);
    EXPECT_EQ(frmMain.Label4.Caption(), "1/1");
    EXPECT_EQ(frmMain.Text1[1].Text(), "---");
    EXPECT_EQ(frmMain.Text2[1].Text(), "0");
    EXPECT_EQ(frmMain.Text3[0].Text(), "0");
    EXPECT_EQ(HistoryLog.size(), 2u);
    EXPECT_TRUE(SheetClean);
    EXPECT_FALSE(frmMain.ProgressBar1.Visible());
    EXPECT_TRUE(frmMain.SSTab1.Visible());
}

TEST_F(NewSheetTest, TheBarRunsOnceFromEndToEnd) {
    const BarWatch bar;
    AnswerNext(Answer::Yes);
    NewSheet();
    ASSERT_EQ(bar.seen.size(), 100u);
    EXPECT_EQ(bar.seen.front(), "1 of 100");
    EXPECT_EQ(bar.seen.back(), "100 of 100");
}

TEST_F(NewSheetTest, RowsOfAnOddFileAreForgotten) {
    RowOfSlot[0] = 3;  // of a row whose key index is 0
    AnswerNext(Answer::Yes);
    NewSheet();
    EXPECT_EQ(RowOfSlot[0], 0);
}

TEST_F(NewSheetTest, ANoChangesNothing) {
    AnswerNext(Answer::No);
    ClickControl(frmMain.mnuNew);
    EXPECT_EQ(Played(), Texts{"WaveError"});
    EXPECT_EQ(SheetPath, kPath);
    EXPECT_EQ(Counts[1][2], 4);
    EXPECT_TRUE(frmMain.SSTab1.Visible());
}

TEST_F(NewSheetTest, ItAsksEvenWhenNothingHasChanged) {
    SheetClean = true;
    AnswerNext(Answer::No);
    NewSheet();
    EXPECT_EQ(MessageCount(), 1u);
}

TEST_F(NewSheetTest, AnEmptyTotalOrSilenceGivesNoSound) {
    frmMain.Text3[0].SetText("0");
    AnswerNext(Answer::No);
    NewSheet();
    EXPECT_EQ(Played(), Texts{});
    frmMain.Text3[0].SetText("5");
    SoundOn = false;
    AnswerNext(Answer::No);
    NewSheet();
    EXPECT_EQ(Played(), Texts{});
}

TEST_F(NewSheetTest, AnOpenDiagramGoesWithItsSheet) {
    frmDiagram.Show();
    DiagramOpen = true;
    AnswerNext(Answer::Yes);
    NewSheet();
    EXPECT_FALSE(DiagramOpen);
    EXPECT_FALSE(frmDiagram.IsLoaded());
}

TEST_F(NewSheetTest, TheFirstNameGoesToTheFirstColumn) {
    AnswerNext(Answer::Yes);
    NewSheet();
    KeyNumber(2, 3);
    NextSample("7");
    EXPECT_EQ(SampleCount, 1);
    EXPECT_EQ(SampleTable[kSampleName][1], "7");
}

// The window that makes a sheet of a template.
class FirstSampleTest : public OpenTest {
protected:
    FirstSampleTest() { EXPECT_TRUE(Open(TemplateFile())); }
    void Name(const std::string& name) {
        ClickControl(frmSiteName.Text1);
        InsertText(frmSiteName.Text1, name);
    }
};

TEST_F(FirstSampleTest, TheWindowOffersTheParametersOfTheTemplate) {
    EXPECT_EQ(frmSiteName.Text2.Text(), "Created: 14/11/2026 (10:11:12)\r\nNote: ");
    for (int p = 1; p <= kParams; ++p) {
        EXPECT_EQ(frmSiteName.Label3[p].Caption(), "Info " + std::to_string(p));
        EXPECT_EQ(frmSiteName.Text3[p].Text(), "---");
    }
    EXPECT_FALSE(frmMain.Enabled());
}

TEST_F(FirstSampleTest, OkBeginsTheSheet) {
    Name("12.5");
    EXPECT_EQ(SampleTable[kSampleName][1], "12.5") << "as it is typed";
    ClickControl(frmSiteName.Text3[2]);
    InsertText(frmSiteName.Text3[2], "14 m");
    frmSiteName.Text2.SetText("Note: sand");
    ClickControl(frmSiteName.Command1);
    EXPECT_FALSE(frmSiteName.IsLoaded());
    EXPECT_TRUE(frmMain.Enabled());
    EXPECT_EQ(frmMain.Focus(), &frmMain.Text99);
    EXPECT_EQ(frmMain.Title(), "Marlbrook 2.7 - [mere]");
    EXPECT_EQ(SheetHeader[kHeaderPath], "12.5");
    EXPECT_EQ(frmMain.Text1[0].Text(), "12.5");
    EXPECT_EQ(frmMain.Combo2.List(), Texts{"12.5"});
    EXPECT_EQ(frmMain.Combo2.Text(), "12.5");
    EXPECT_EQ(frmMain.Label4.Caption(), "1/1");
    EXPECT_EQ(frmMain.Text4.Text(), "Note: sand");
    EXPECT_EQ(SampleNotes[1], "Note: sand");
    EXPECT_EQ(frmMain.Label10[2].Caption(), "Info 2:");
    EXPECT_EQ(ParamValues[2][1], "14 m");
    EXPECT_EQ(ParamValues[1][1], "---");
    EXPECT_EQ(LastLines(2), (Texts{"(New sample: 12.5)", "(New sample: 12.5)"}));
    EXPECT_FALSE(SampleNamesAreText);
    EXPECT_FALSE(frmMain.Command5[0].Enabled()) << "until the first count";
    EXPECT_EQ(frmMain.Text3[0].Text(), "0");
}

TEST_F(FirstSampleTest, AnEmptyNameBecomesANumber) {
    ClickControl(frmSiteName.Command1);
    EXPECT_EQ(SampleTable[kSampleName][1], "1: ---");
    EXPECT_EQ(HistoryLog.back(), "(New sample: 1: ---)");
    EXPECT_TRUE(SampleNamesAreText);
}

TEST_F(FirstSampleTest, AValueLeftEmptyBecomesDashesAgain) {
    ClickControl(frmSiteName.Text3[1]);
    EXPECT_EQ(frmSiteName.Text3[1].Text(), "");
    ClickControl(frmSiteName.Text3[2]);
    EXPECT_EQ(frmSiteName.Text3[1].Text(), "---");
}

TEST_F(FirstSampleTest, OkIsTheOnlyWayOut) {
    ClickControl(frmSiteName.Command3);
    EXPECT_TRUE(frmSiteName.Visible());
    CloseWindow(frmSiteName);
    EXPECT_TRUE(frmSiteName.Visible());
}

TEST_F(FirstSampleTest, ItsColumnIsEmptyWhateverAnEarlierSheetHeld) {
    ClickControl(frmSiteName.Command1);
    AnswerNext(Answer::Yes);
    ASSERT_TRUE(Open(DataSheet(4)));
    ASSERT_TRUE(Open(TemplateFile()));
    ClickControl(frmSiteName.Command1);
    for (int slot = 1; slot <= kSlots; ++slot) {
        EXPECT_EQ(Counts[slot][1], 0);
        EXPECT_FALSE(frmMain.Text2[slot].Bold());
    }
}

TEST_F(FirstSampleTest, ASaveWritesTheSheetOverTheTemplate) {
    Name("1");
    ClickControl(frmSiteName.Command1);
    KeyNumber(5, 2);
    SaveSheet(kSave);
    EXPECT_FALSE(TemplateOpened);
    EXPECT_EQ(FileLine(kPath, 2), "\"Key index\",\"Trees\",\"Herbs\",\"Sample name\",\"1\"");
    EXPECT_EQ(FileLine(kPath, 7), "5,1,0,\"Taxon 5\",2");
}

TEST_F(FirstSampleTest, AResetBeforeTheFirstSaveEmptiesTheCounts) {
    ClickControl(frmSiteName.Command1);
    KeyNumber(5, 2);
    AnswerNext(Answer::Yes);
    ClickControl(frmMain.Command2[0]);
    EXPECT_EQ(Counts[5][1], 0);
    EXPECT_EQ(frmMain.Text1[5].Text(), "Taxon 5");
}
}  // namespace
