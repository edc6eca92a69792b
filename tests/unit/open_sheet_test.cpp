// A sheet that can be read to its end takes the place of the one before.
#include "files/open_sheet.h"

#include "diagram/diversity_curve.h"
#include "files/next_sample.h"
#include "files/save_sheet.h"
#include "platform/failure.h"
#include "platform/user.h"
#include "session/modify_mode.h"
#include "taxa/edit_boxes.h"
#include "unit/open_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"
#include "windows/next_window.h"

namespace {
class OpenSheetTest : public OpenTest {};

TEST_F(OpenSheetTest, TheSheetStandsAtItsLastSample) {
    ASSERT_TRUE(Open(DataSheet(3)));
    EXPECT_EQ(SheetPath, kPath);
    EXPECT_EQ(frmMain.Title(), "Marlbrook 2.7.5 - [mere]");
    EXPECT_EQ(SampleCount, 3);
    EXPECT_EQ(CurrentSample, 3);
    EXPECT_EQ(frmMain.Label4.Caption(), "3/3");
    EXPECT_EQ(frmMain.Combo2.Text(), "30");
    EXPECT_EQ(frmMain.Combo2.List(), (Texts{"10", "20", "30"}));
    EXPECT_EQ(frmMain.Text1[0].Text(), "30");
    EXPECT_EQ(frmMain.Text1[135].Text(), "Taxon 135");
    EXPECT_EQ(frmMain.Text2[135].Text(), "38");
    EXPECT_EQ(frmMain.Text4.Text(), "Note 3");
    EXPECT_EQ(frmMain.Label10[6].Caption(), "Info 6:");
    EXPECT_EQ(frmMain.Text5[6].Text(), "6/3");
    EXPECT_EQ(frmMain.Text99.Text(), "3");
    EXPECT_EQ(frmMain.Text3[0].Text(), std::to_string(AllTotal));
}

TEST_F(OpenSheetTest, ASampleWithoutAGrainBeginsACurveOfItsOwn) {
    Rows rows = DataSheet(1);
    for (int row = 0; row < kSlots; ++row) rows[kTaxonRow + row][4] = "0";
    DiversityCurve = {0, 10, 20, 30};
    ASSERT_TRUE(Open(rows));
    EXPECT_EQ(frmMain.Text3[0].Text(), "0");
    EXPECT_EQ(DiversityCurve, std::vector<std::int16_t>{0});
    EXPECT_TRUE(frmMain.mnuNext.Enabled()) << "no change of a total has enabled it";
}

TEST_F(OpenSheetTest, TheCurveOfTheOldSheetIsGone) {
    Rows rows = DataSheet(1);
    for (int row = 0; row < kSlots; ++row) rows[kTaxonRow + row][4] = row == 0 ? "3" : "0";
    DiversityCurve = {0, 10, 20, 30};
    ASSERT_TRUE(Open(rows));
    EXPECT_EQ(DiversityCurve, (std::vector<std::int16_t>{3, 0, 0, 0}));
}

TEST_F(OpenSheetTest, EveryCellOfTheGridFindsItsPlace) {
    ASSERT_TRUE(Open(DataSheet(2)));
    EXPECT_EQ(SheetHeader[kHeaderPath], "/sheets/mere.csv") << "the back-up writes the path of the session, not that in the file";
    EXPECT_EQ(SheetHeader[kHeaderSubtotal1], "Trees");
    EXPECT_EQ(SheetHeader[kHeaderSubtotal2], "Herbs");
    EXPECT_EQ(SampleTable[kSampleSerial][2], 2);
    EXPECT_EQ(SampleTable[kSampleName][1], "10");
    EXPECT_FALSE(SampleTable[kSampleName][1].IsNumber());
    EXPECT_EQ(SampleNamesRead[2], "20");
    EXPECT_EQ(SerialOfColumn[2], 2);
    EXPECT_EQ(ColumnOfSerial[1], 1);
    for (int slot = 1; slot <= kSlots; ++slot) {
        EXPECT_EQ(KeyIndex[slot], slot);
        EXPECT_EQ(RowOfSlot[slot], slot);
        EXPECT_EQ(TaxonTable[slot][kTaxonSheetRow], slot);
        EXPECT_EQ(TaxonTable[slot][kTaxonKey], slot);
        EXPECT_EQ(TaxonTable[slot][kTaxonSubtotal1], slot % 2);
        EXPECT_EQ(TaxonTable[slot][kTaxonSubtotal2], slot % 3 == 0);
        EXPECT_EQ(TaxonTable[slot][kTaxonName], "Taxon " + std::to_string(slot));
        EXPECT_EQ(Counts[slot][1], (slot + 1) % 100);
        EXPECT_EQ(Counts[slot][2], (slot + 2) % 100);
    }
    EXPECT_EQ(ParamHeader[1][kParamName], "Info 1:") << "the back-up takes the caption";
    EXPECT_EQ(ParamValues[6][1], "6/1");
    EXPECT_EQ(SheetFooter[4], "Note: ");
    EXPECT_EQ(SampleNotes[1], "Note 1");
}

TEST_F(OpenSheetTest, ACountThatIsReadIsNoEditOfItsCell) {
    ASSERT_TRUE(Open(DataSheet(2)));
    int edits = 0;
    frmMain.Text2[7].Change.Calls([&edits] { edits += frmMain.ChangingSample ? 0 : 1; });
    Rows rows = DataSheet(2);
    rows[kTaxonRow + 6][5] = "77";
    EXPECT_TRUE(Open(rows));
    EXPECT_EQ(frmMain.Text2[7].Text(), "77");
    EXPECT_EQ(edits, 0);
    frmMain.Text2[7].Change.Calls([] { StoreCount(7, frmMain.Text2[7]); });
}

TEST_F(OpenSheetTest, InModifyModeACountThatIsReadIsAnEdit) {
    ASSERT_TRUE(Open(DataSheet(2)));
    EnterModifyMode();
    ASSERT_FALSE(frmMain.mnuNew.Enabled());
    ASSERT_TRUE(Open(DataSheet(3)));
    EXPECT_TRUE(frmMain.mnuNew.Enabled());
}

TEST_F(OpenSheetTest, ASortedSheetKeepsItsOrderAndItsKeys) {
    Rows rows = DataSheet(1);
    std::swap(rows[kTaxonRow], rows[kTaxonRow + 134]);
    ASSERT_TRUE(Open(rows));
    EXPECT_EQ(KeyIndex[1], 135);
    EXPECT_EQ(RowOfSlot[135], 1);
    EXPECT_EQ(TaxonTable[135][kTaxonSheetRow], 1);
    EXPECT_EQ(frmMain.Text1[135].Text(), "Taxon 135");
    EXPECT_EQ(RowNames[1], "Taxon 135");
}

TEST_F(OpenSheetTest, TheSubtotalsGiveTheirNamesToLabelsAndMenu) {
    ASSERT_TRUE(Open(DataSheet(1)));
    EXPECT_EQ(frmMain.Label2[1].Caption(), "Trees:");
    EXPECT_EQ(frmMain.mnuPercentSub2.Caption(), "% by Herbs");
    EXPECT_EQ(frmMain.mnuPercentAll.Caption(), "% by All total");
}

TEST_F(OpenSheetTest, TheLargestSerialCountsWhateverItsColumn) {
    Rows rows = DataSheet(3);
    rows[0][4] = "7";
    ASSERT_TRUE(Open(rows));
    EXPECT_EQ(MaxSerial, 7);
    EXPECT_EQ(frmMain.Label4.Caption(), "3/7");
}

TEST_F(OpenSheetTest, ASheetGrowsToTheLastColumnOfTheArrays) {
    ASSERT_TRUE(Open(DataSheet(kColumns)));
    EXPECT_EQ(SampleCount, 255);
    EXPECT_EQ(SampleNotes[255], "Note 255");
    EXPECT_EQ(frmMain.Combo2.ListCount(), 255);
}

TEST_F(OpenSheetTest, ASheetOf255SamplesGrowsNoFurther) {
    ASSERT_TRUE(Open(DataSheet(254)));
    NextSample("2550");
    EXPECT_EQ(SampleCount, 255);
    frmNext.Load();
    frmNext.Text1.SetText("2560");
    EXPECT_THROW(AddSample(), Failure);
    EXPECT_EQ(SampleCount, 255);
    EXPECT_EQ(SampleTable[kSampleName][255], "2550");
    EXPECT_EQ(frmMain.Combo2.ListCount(), 255);
}

TEST_F(OpenSheetTest, TheCommandsAreThoseOfASheetWithNothingToSave) {
    ASSERT_TRUE(Open(DataSheet(2)));
    EXPECT_FALSE(frmMain.Command5[0].Enabled());
    EXPECT_FALSE(frmMain.mnuSave.Enabled());
    EXPECT_TRUE(frmMain.Command5[1].Enabled());
    EXPECT_TRUE(frmMain.mnuNext.Enabled());
    EXPECT_TRUE(frmMain.Enabled());
    EXPECT_TRUE(frmMain.Visible());
    EXPECT_FALSE(frmNext.IsLoaded());
    EXPECT_TRUE(SheetClean);
    EXPECT_FALSE(SampleUntouched);
    EXPECT_FALSE(frmMain.ProgressBar1.Visible());
    EXPECT_EQ(frmMain.ProgressBar1.Value(), 0);
    EXPECT_TRUE(BackedUp());
}

TEST_F(OpenSheetTest, TheBasisGoesBackToAllAndNothingCanBeUndone) {
    ASSERT_TRUE(Open(DataSheet(2)));
    KeyNumber(1, 3);
    ClickControl(frmMain.Option1[1]);
    EXPECT_TRUE(frmMain.Text1[1].Underline());
    AnswerNext(Answer::Yes);
    ASSERT_TRUE(OpenAgain());
    EXPECT_TRUE(frmMain.Option1[0].Value());
    EXPECT_FALSE(frmMain.Option1[1].Value());
    EXPECT_FALSE(frmMain.Text1[1].Underline());
    EXPECT_EQ(UndoList[0][kUndoSample], 1);
    EXPECT_EQ(UndoList[0][kUndoSlot], 0);
    EXPECT_EQ(UndoList[kUndoDepth][kUndoSlot], 0);
}

TEST_F(OpenSheetTest, ANumericNameLeavesTheNamesInOrder) {
    ASSERT_TRUE(Open(DataSheet(2)));
    EXPECT_FALSE(SampleNamesAreText);
    Rows rows = DataSheet(2);
    rows[1][4] = "\"10.50\"";
    ASSERT_TRUE(Open(rows));
    EXPECT_TRUE(SampleNamesAreText);
}

TEST_F(OpenSheetTest, WhatAnEarlierSheetCountedIsGone) {
    ASSERT_TRUE(Open(DataSheet(5)));
    ASSERT_TRUE(Open(TemplateFile()));
    ClickControl(frmSiteName.Command1);
    NextSample("2");
    NextSample("3");
    for (int slot = 1; slot <= kSlots; ++slot)
        for (int sample = 1; sample <= SampleCount; ++sample) ASSERT_EQ(Counts[slot][sample], 0) << slot << ", " << sample;
}

TEST_F(OpenSheetTest, TheResetGoesBackToWhatWasRead) {
    ASSERT_TRUE(Open(DataSheet(2)));
    KeyNumber(3, 4);
    EXPECT_EQ(Counts[3][2], 9);
    AnswerNext(Answer::Yes);
    ClickControl(frmMain.Command2[0]);
    EXPECT_EQ(Counts[3][2], 5);
    EXPECT_EQ(frmMain.Text2[3].Text(), "5");
}

TEST_F(OpenSheetTest, NegativeCountsAndANegativeTotalOpen) {
    Rows rows = DataSheet(1);
    for (std::size_t row = kTaxonRow; row < kTaxonRow + kSlots; ++row) rows[row][4] = "-2";
    ASSERT_TRUE(Open(rows));
    EXPECT_EQ(AllTotal, -270);
    EXPECT_EQ(frmMain.Text2[135].Text(), "-2");
}

TEST_F(OpenSheetTest, ATotalBeyondTheCurveOpens) {
    Rows rows = DataSheet(1);
    rows[kTaxonRow][4] = "2147400000";
    ASSERT_TRUE(Open(rows));
    EXPECT_GT(AllTotal, 2147400000);
}

TEST_F(OpenSheetTest, TheDialogBeginsInTheFolderOfTheSheet) {
    ASSERT_TRUE(Open(Joined(DataSheet(1)), "/lake/mere.csv"));
    EXPECT_EQ(services_.dialogs.asked.back().first_folder, "") << "no sheet had one";
    AnswerDialog("/elsewhere/history.csv");
    ClickControl(frmMain.mnuSaveHistory);
    CancelDialog();
    OpenSheet();
    EXPECT_EQ(services_.dialogs.asked.back().first_folder, "/lake");
}

TEST_F(OpenSheetTest, AFileThatIsChosenAlreadyIsOpenedAsByTheDialog) {
    ASSERT_TRUE(Open(DataSheet(1)));
    KeyNumber(1);
    files_.bytes["/bog/bog.csv"] = Joined(DataSheet(3));
    const std::size_t asked = services_.dialogs.asked.size();
    services_.messages.answers = {Answer::No};
    OpenSheetFile("/bog/bog.csv");
    EXPECT_EQ(SampleCount, 1);
    SheetClean = false;
    services_.messages.answers = {Answer::Yes};
    OpenSheetFile("/bog/bog.csv");
    EXPECT_EQ(SampleCount, 3);
    EXPECT_EQ(HistoryLog.back(), "(Open) /bog/bog.csv");
    EXPECT_EQ(services_.dialogs.asked.size(), asked);
}

TEST_F(OpenSheetTest, AnUnchangedSheetIsGivenUpWithoutAQuestion) {
    ASSERT_TRUE(Open(DataSheet(2)));
    ASSERT_TRUE(Open(DataSheet(1)));
    EXPECT_EQ(MessageCount(), 0u);
}

TEST_F(OpenSheetTest, AChangedSheetIsGivenUpAfterAYes) {
    ASSERT_TRUE(Open(DataSheet(1)));
    KeyNumber(1);
    Played();
    AnswerNext(Answer::Yes);
    ASSERT_TRUE(Open(DataSheet(2)));
    EXPECT_EQ(Played(), (Texts{"WaveError", "WaveError"}));
    EXPECT_EQ(LastMessage().title, "Caution!");
    EXPECT_EQ(LastMessage().text, "This action will abort current data. Do you proceed?");
    EXPECT_EQ(LastMessage().buttons, Buttons::YesNo);
}

TEST_F(OpenSheetTest, TheHistoryGoesOnAndSaveAsStaysUsedUp) {
    ASSERT_TRUE(Open(DataSheet(1)));
    ASSERT_TRUE(SaveAsPending);
    SaveAs("/sheets/other.csv");
    EXPECT_FALSE(SaveAsPending);
    AnswerNext(Answer::Yes);  // the stamp in the note is a change
    ASSERT_TRUE(OpenAgain());
    EXPECT_FALSE(SaveAsPending);
    EXPECT_EQ(LastLines(4), (Texts{"(Start)", "(Open) /sheets/mere.csv", "(Save)", "(Open) /sheets/mere.csv"}));
    EXPECT_EQ(frmMain.Title(), "Marlbrook 2.7 - - [mere]") << "the first 15 characters of the short title end in the hyphen";
}

TEST_F(OpenSheetTest, AnOpenDiagramIsClosedOnceTheFileIsOpen) {
    ASSERT_TRUE(Open(DataSheet(2)));
    frmDiagram.Show();
    DiagramOpen = true;
    EXPECT_FALSE(OpenAgain("/sheets/none.csv"));
    EXPECT_TRUE(DiagramOpen) << "there was no such file";
    EXPECT_FALSE(Open("", "/sheets/empty.csv"));
    EXPECT_FALSE(DiagramOpen);
    EXPECT_FALSE(frmDiagram.IsLoaded());
}

TEST_F(OpenSheetTest, ATemplateAsksForItsFirstSample) {
    ASSERT_TRUE(Open(TemplateFile()));
    EXPECT_TRUE(TemplateOpened);
    EXPECT_TRUE(frmSiteName.Visible());
    EXPECT_EQ(frmSiteName.Label3[1].Caption(), "Info 1");
    EXPECT_EQ(SampleCount, 1);
    EXPECT_EQ(CurrentSample, 1);
    EXPECT_EQ(frmMain.Label4.Caption(), "1/1");
    EXPECT_EQ(SampleTable[kSampleSerial][1], 1);
    EXPECT_EQ(SampleTable[kSampleName][1], "");
    EXPECT_EQ(frmMain.Text2[5].Text(), "0");
    EXPECT_EQ(frmMain.Text1[5].Text(), "Taxon 5");
    EXPECT_EQ(SheetPath, kPath) << "so that Save will write the sheet over the template";
}

TEST_F(OpenSheetTest, AnOlderSheetLeavesTheAdditionalInfoAlone) {
    ASSERT_TRUE(Open(DataSheet(2)));
    ASSERT_TRUE(Open(OlderSheet(2)));
    EXPECT_EQ(FileVersion, 1);
    EXPECT_EQ(SheetHeader[kHeaderSerial], "Serial No.");
    EXPECT_EQ(SampleNotes[2], "Note 2");
    EXPECT_EQ(frmMain.Label10[3].Caption(), "Info 3:");
    EXPECT_EQ(ParamValues[3][1], "3/1");
    EXPECT_EQ(frmMain.Text5[3].Text(), "3/2");
    SaveSheet(kSave);
    EXPECT_TRUE(FileLine(kPath, 1).starts_with("\"/sheets/mere.csv\",\"Last saved (dd/mm/yyyy):\","));
    ASSERT_TRUE(FileLine(kPath, 138).starts_with("\"---\",\"---\",\"---\",\"Info 1\""));
}

TEST_F(OpenSheetTest, AnOlderSheetNeedsNoCellBeforeItsSerials) {
    Rows rows = OlderSheet(1);
    rows[0].erase(rows[0].begin() + 3);
    ASSERT_TRUE(Open(rows));
    EXPECT_EQ(FileVersion, 1);
    EXPECT_EQ(SampleCount, 1);
}

TEST_F(OpenSheetTest, AnOlderSheetWithoutSerialsIsATemplateWithTheAdditionalInfoOfTheSheetBefore) {
    ASSERT_TRUE(Open(DataSheet(2)));
    ASSERT_TRUE(Open(OlderSheet(0)));
    EXPECT_EQ(FileVersion, 1);
    EXPECT_TRUE(TemplateOpened);
    EXPECT_EQ(SampleCount, 1);
    EXPECT_EQ(frmMain.Label4.Caption(), "1/1");
    EXPECT_EQ(frmMain.Text1[135].Text(), "Taxon 135");
    EXPECT_EQ(frmMain.Text2[135].Text(), "0");
    EXPECT_EQ(ActiveWindow(), &frmSiteName);
    EXPECT_EQ(frmSiteName.Label3[3].Caption(), "Info 3");
    InsertText(frmSiteName.Text1, "5");
    ClickControl(frmSiteName.Command1);
    EXPECT_EQ(SampleTable[kSampleName][1], "5");
    EXPECT_EQ(frmMain.Label10[3].Caption(), "Info 3:");
    EXPECT_EQ(ParamValues[3][1], "---");
}

TEST_F(OpenSheetTest, ABackUpOpensLikeASheetAndIsWrittenOverBySave) {
    ASSERT_TRUE(Open(DataSheet(2)));
    const std::string master = "/program/References/Back up files/Master_back_up.csv";
    ASSERT_TRUE(OpenAgain(master));
    EXPECT_EQ(FileVersion, 2);
    EXPECT_EQ(SheetPath, master);
    EXPECT_EQ(Counts[135][2], 37);
    EXPECT_EQ(SampleNotes[2], "Note 2");
    SaveSheet(kSave);
    EXPECT_TRUE(FileLine(master, 1).find("Last saved") != std::string::npos);
}

TEST_F(OpenSheetTest, APercentageTableIsReadAsFarAsItGoes) {
    ASSERT_TRUE(Open(DataSheet(2)));
    AnswerDialog("/sheets/table.csv");
    SavePercentTable(0);
    AnswerNext(Answer::Yes);
    ASSERT_TRUE(OpenAgain("/sheets/table.csv"));
    EXPECT_EQ(Counts[1][1], 0) << "0.03 %";
    EXPECT_EQ(Counts[98][1], 2) << "1.76 %";
    EXPECT_EQ(SheetFooter[4], "Trees") << "there is no row of notes";
    AnswerDialog("/sheets/table.csv");
    ClickControl(frmMain.Option1[1]);
    SavePercentTable(1);
    AnswerNext(Answer::Yes);
    ASSERT_TRUE(OpenAgain("/sheets/table.csv"));
    EXPECT_TRUE(SampleNotes[1].starts_with("100 (n="));
}
}  // namespace
