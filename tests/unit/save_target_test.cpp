// Where a save goes: the sheet's own file, a file that the user chooses, a copy.
#include "files/save_sheet.h"
#include "platform/user.h"
#include "session/leaving.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
class SaveTargetTest : public SheetTest {
protected:
    SaveTargetTest() {
        Begin("10");
        KeyNumber(1);
    }
    const FileQuestion& LastQuestion() const { return services_.dialogs.asked.back(); }
};

TEST_F(SaveTargetTest, ASheetWithoutAFileAsksForOneAndTakesItOn) {
    EXPECT_EQ(frmMain.Title(), "Marlbrook 2.7.5");
    AnswerDialog("/sheets/Mere.csv");
    ClickControl(frmMain.Command5[0]);
    EXPECT_EQ(SheetPath, "/sheets/Mere.csv");
    EXPECT_EQ(frmMain.Title(), "Marlbrook 2.7 - [Mere]");
    EXPECT_FALSE(SaveAsPending);
    EXPECT_EQ(LastQuestion().filter, "DataFile(*.csv)|*.csv");
    EXPECT_EQ(LastQuestion().kind, FileQuestion::Kind::Save);
    EXPECT_TRUE(LastQuestion().ask_before_overwriting);
}

TEST_F(SaveTargetTest, ASheetWithAFileIsSavedThereWithoutAQuestion) {
    SaveAs("/sheets/Mere.csv");
    KeyNumber(1);
    ClickControl(frmMain.Command5[0]);
    EXPECT_EQ(services_.dialogs.asked.size(), 1u);
    EXPECT_EQ(FileLine("/sheets/Mere.csv", 3), "1,0,0,\"---\",2");
}

TEST_F(SaveTargetTest, ASecondSaveAsWritesItsFileAndLeavesTheSheetWhereItIs) {
    SaveAs("/sheets/Mere.csv");
    KeyNumber(1);
    SaveAs("/sheets/other.csv");
    EXPECT_EQ(SheetPath, "/sheets/Mere.csv");
    EXPECT_EQ(frmMain.Title(), "Marlbrook 2.7 - [Mere]");
    EXPECT_TRUE(FileLine("/sheets/other.csv", 1).starts_with("\"/sheets/Mere.csv\","));
    EXPECT_EQ(FileLine("/sheets/other.csv", 3), "1,0,0,\"---\",2");
    EXPECT_EQ(FileLine("/sheets/Mere.csv", 3), "1,0,0,\"---\",1");
    KeyNumber(1);
    SaveSheet(kSave);
    EXPECT_EQ(FileLine("/sheets/Mere.csv", 3), "1,0,0,\"---\",3");
}

TEST_F(SaveTargetTest, SaveAsTakesASheetToItsFileEvenIfItWasOpenedFromAnother) {
    SheetPath = "/sheets/opened.csv";
    SaveAs("/sheets/Mere.csv");
    EXPECT_EQ(SheetPath, "/sheets/Mere.csv");
    EXPECT_FALSE(SaveAsPending);
}

TEST_F(SaveTargetTest, ACopyIsProposedUnderTheNameWithTheDate) {
    SaveAs("/sheets/Mere.csv");
    services_.clock.date = "03/02/2027";
    AnswerDialog("/sheets/copy.csv");
    ClickControl(frmMain.mnuSaveCopy);
    EXPECT_EQ(LastQuestion().proposed_name, "/sheets/Mere_(03.02.2027).csv");
    EXPECT_EQ(SheetPath, "/sheets/Mere.csv");
    EXPECT_EQ(frmMain.Title(), "Marlbrook 2.7 - [Mere]");
    EXPECT_TRUE(FileLine("/sheets/copy.csv", 1).starts_with("\"/sheets/Mere.csv\","));
}

TEST_F(SaveTargetTest, ACopyOfASheetWithoutAFileIsASaveAs) {
    AnswerDialog("/sheets/Mere.csv");
    SaveSheet(kSaveCopy);
    EXPECT_EQ(LastQuestion().proposed_name, "");
    EXPECT_EQ(SheetPath, "/sheets/Mere.csv");
}

TEST_F(SaveTargetTest, TheDialogKeepsTheNameFromItsLastUse) {
    SaveAs("/sheets/Mere.csv");
    SaveAs("/sheets/other.csv");
    EXPECT_EQ(LastQuestion().proposed_name, "/sheets/Mere.csv");
    CancelDialog();
    SaveSheet(kSavePercentAll);
    EXPECT_EQ(LastQuestion().proposed_name, "/sheets/other.csv");
}

TEST_F(SaveTargetTest, ACopyThatIsCancelledLeavesItsNameInTheDialog) {
    SaveAs("/sheets/Mere.csv");
    CancelDialog();
    ClickControl(frmMain.mnuSaveCopy);
    CancelDialog();
    ClickControl(frmMain.mnuSaveAs);
    EXPECT_EQ(LastQuestion().proposed_name, "/sheets/Mere_(14.11.2026).csv");
}

TEST_F(SaveTargetTest, ACancelledDialogIsSilentAndLeavesEverythingButTheOutcome) {
    Played();
    CancelDialog();
    SaveSheet(kSave);
    EXPECT_EQ(SaveOutcome, 2);
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(Played(), Texts{});
    EXPECT_TRUE(frmMain.Command5[0].Enabled());
    EXPECT_EQ(LastLines(1), Texts{"1: ---"});
    EXPECT_EQ(SheetPath, "");
    EXPECT_TRUE(SaveAsPending);
    EXPECT_EQ(frmMain.Text4.Text(), "Created: 14/11/2026 (10:11:12)\r\nNote: ");
    EXPECT_EQ(MousePointer, kPointerDefault);
    EXPECT_FALSE(frmMain.ProgressBar1.Visible());
}

TEST_F(SaveTargetTest, MenuAndButtonKeepTheSheetAsTheStateThatResetGoesBackTo) {
    SaveAs("/sheets/Mere.csv");
    for (Control* command : std::initializer_list<Control*>{&frmMain.Command5[0], &frmMain.mnuSave}) {
        KeyNumber(1);
        ClickControl(*command);
        EXPECT_EQ(CountsAtOpen[1][1], Counts[1][1]) << command->name;
    }
    KeyNumber(1);
    CheckIfReallyEnd();
    EXPECT_EQ(CountsAtOpen[1][1], 4);
    KeyNumber(1);
    Key(kSaveKey);
    EXPECT_EQ(CountsAtOpen[1][1], 5);
}

TEST_F(SaveTargetTest, TheyKeepItEvenIfTheDialogIsDroppedAndSaveAsKeepsNothing) {
    for (Control* command : std::initializer_list<Control*>{&frmMain.Command5[0], &frmMain.mnuSave}) {
        KeyNumber(1);
        CancelDialog();
        ClickControl(*command);
        EXPECT_EQ(CountsAtOpen[1][1], Counts[1][1]) << command->name;
    }
    KeyNumber(1);
    AnswerDialog("/sheets/Mere.csv");
    ClickControl(frmMain.mnuSaveAs);
    EXPECT_EQ(CountsAtOpen[1][1], 3);
}

TEST_F(SaveTargetTest, APathThatGivesTheWindowNoNameIsAFailedSave) {
    SaveAs("no folder.csv");
    EXPECT_EQ(SaveOutcome, 2);
    EXPECT_EQ(MessageCount(), 1u);
}

TEST_F(SaveTargetTest, OnlyAPlainSaveWhileCountingGivesTheFocusBack) {
    SaveAs("/sheets/Mere.csv");
    for (const std::int16_t mode : {kSave, kSaveClean, kSaveCopy}) {
        frmMain.Command6.SetFocus();
        if (mode == kSaveCopy) AnswerDialog("/sheets/copy.csv");
        SaveSheet(mode);
        EXPECT_EQ(frmMain.Focus() == &frmMain.Text99, mode == kSave) << mode;
    }
    frmMain.Command6.SetFocus();
    AmendMode = true;
    SaveSheet(kSave);
    EXPECT_EQ(frmMain.Focus(), &frmMain.Command6);
}

TEST_F(SaveTargetTest, FromTheMenuASaveOfACleanSheetGivesTheFocusBackToo) {
    SheetPath = "/sheets/Mere.csv";
    SheetClean = true;
    frmMain.Command6.SetFocus();
    ClickControl(frmMain.mnuSave);
    EXPECT_EQ(LastLines(1), Texts{"(Save)"});
    EXPECT_EQ(frmMain.Focus(), &frmMain.Text99);
}

TEST_F(SaveTargetTest, FromTheMenuADroppedDialogGivesTheFocusBackToo) {
    frmMain.Command6.SetFocus();
    CancelDialog();
    ClickControl(frmMain.mnuSave);
    EXPECT_EQ(SaveOutcome, 2);
    EXPECT_EQ(frmMain.Focus(), &frmMain.Text99);
}
}  // namespace
