#include "session/modify_mode.h"

#include "platform/user.h"
#include "unit/open_test.h"
#include "windows/main_window.h"

namespace {
constexpr Colour kRed{200, 100, 100};

void Modify() {
    ClickControl(frmMain.Command3[0]);
}

void Resume() {
    ClickControl(frmMain.Command3[1]);
}

class ModifyModeTest : public SheetTest {
protected:
    ModifyModeTest() {
        Begin("10");
        KeyNumber(1);
    }
};

TEST_F(ModifyModeTest, TheKeyAreaIsRedInItAndHasTheColourOfTheFormAgainAfterwards) {
    for (Control* ground : std::initializer_list<Control*>{&frmMain.Picture1, &frmMain.SSTab1}) {
        Modify();
        EXPECT_EQ(ground->BackColor(), kRed) << ground->name;
        Resume();
        EXPECT_EQ(ground->BackColor(), frmMain.BackColor()) << ground->name;
    }
}

TEST_F(ModifyModeTest, TheTotalsAreOffInItAndComeBackWithTheSampleName) {
    Modify();
    for (const TextBox& total : frmMain.Text3) EXPECT_FALSE(total.Enabled()) << total.index;
    frmMain.Text1[0].SetEnabled(false);
    Resume();
    for (const TextBox& total : frmMain.Text3) EXPECT_TRUE(total.Enabled()) << total.index;
    EXPECT_TRUE(frmMain.Text1[0].Enabled());
}

TEST_F(ModifyModeTest, TheChosenSlotNumberIsNoLongerBoldAfterIt) {
    Modify();
    ClickControl(frmMain.Label1[7]);
    ASSERT_TRUE(frmMain.Label1[7].Bold());
    Resume();
    EXPECT_FALSE(frmMain.Label1[7].Bold());
    Modify();
    EXPECT_FALSE(frmMain.Label1[7].Bold());
}

TEST_F(ModifyModeTest, ResumeBringsTheFirstBankToTheFront) {
    Modify();
    PressTab(frmMain.SSTab1, 2);
    ASSERT_EQ(frmMain.SSTab1.Tab(), 2);
    Resume();
    EXPECT_EQ(frmMain.SSTab1.Tab(), 0);
}

TEST_F(ModifyModeTest, ANameThatWasEditedInItIsItalicAfterIt) {
    Modify();
    frmMain.Text1[5].SetText("Alnus");
    EXPECT_FALSE(frmMain.Text1[5].Italic());
    Resume();
    EXPECT_TRUE(frmMain.Text1[5].Italic());
}

TEST_F(ModifyModeTest, AnyNumberBut0LeavesIt) {
    for (const std::int16_t mode : {1, -1, 2, 99, 32767, -32768}) {
        AmendingOnOff(0);
        ASSERT_TRUE(AmendMode);
        AmendingOnOff(mode);
        EXPECT_FALSE(AmendMode) << mode;
        EXPECT_EQ(LastLines(2), (Texts{"(Modify)", "(Resume)"})) << mode;
    }
}

TEST_F(ModifyModeTest, AfterAVisitToACountedSheetResetAndNextSampleAreOnButNotInTheMenu) {
    Modify();
    Resume();
    ASSERT_FALSE(SheetClean);
    EXPECT_TRUE(frmMain.Command2[0].Enabled());
    EXPECT_TRUE(frmMain.Command5[1].Enabled());
    EXPECT_FALSE(frmMain.mnuNext.Enabled());
    EXPECT_TRUE(frmMain.Command5[0].Enabled());
}

TEST_F(ModifyModeTest, ASaveInItOffersNextSampleAndSaveCopyAgain) {
    SheetPath = "/sheets/Mere.csv";
    Modify();
    const std::initializer_list<Control*> commands{&frmMain.Command5[1], &frmMain.mnuNext, &frmMain.mnuSaveCopy};
    for (const Control* command : commands) ASSERT_FALSE(command->Enabled()) << command->name;
    Key(kSaveKey);
    for (const Control* command : commands) EXPECT_TRUE(command->Enabled()) << command->name;
    EXPECT_TRUE(AmendMode);
}

TEST_F(ModifyModeTest, ASampleThatIsAddedAfterASaveInItIsAddedInIt) {
    SheetPath = "/sheets/Mere.csv";
    Modify();
    Key(kSaveKey);
    NextSample("20");
    EXPECT_EQ(SampleCount, 2);
    EXPECT_EQ(CurrentSample, 2);
    EXPECT_EQ(frmMain.Combo2.Text(), "20");
    EXPECT_TRUE(AmendMode);
    EXPECT_EQ(frmMain.Picture1.BackColor(), kRed);
    KeyNumber(1);
    EXPECT_EQ(Counts[1][2], 0) << "keys do not count yet";
    Resume();
    KeyNumber(1);
    EXPECT_EQ(Counts[1][2], 1);
    EXPECT_EQ(Counts[1][1], 1);
}

class ModifyOpenedSheetTest : public OpenTest {
protected:
    ModifyOpenedSheetTest() { EXPECT_TRUE(Open(DataSheet(2))); }
};

TEST_F(ModifyOpenedSheetTest, AVisitAloneOffersSavingAndNeitherResetNorNextSample) {
    ASSERT_TRUE(SheetClean);
    ASSERT_TRUE(frmMain.Command5[1].Enabled() && frmMain.mnuNext.Enabled());
    ASSERT_FALSE(frmMain.Command5[0].Enabled());
    Modify();
    Resume();
    EXPECT_TRUE(SheetClean);
    EXPECT_TRUE(frmMain.Command5[0].Enabled());
    EXPECT_TRUE(frmMain.mnuSave.Enabled());
    EXPECT_FALSE(frmMain.Command2[0].Enabled());
    EXPECT_FALSE(frmMain.Command5[1].Enabled());
    EXPECT_FALSE(frmMain.mnuNext.Enabled());
}

TEST_F(ModifyOpenedSheetTest, AnotherSampleInItTakesTheFocusToItsNoteWhichCountsAsAnEdit) {
    Rows rows = DataSheet(2);
    for (std::size_t row = kParamRow; row < kNoteRow; ++row) rows[row][4] = rows[row][5];  // so that the note alone is an edit
    ASSERT_TRUE(Open(rows));
    Modify();
    frmMain.Text5[1].SetFocus();
    ASSERT_TRUE(SheetClean);
    ShowSample(1);
    EXPECT_EQ(CurrentSample, 1);
    EXPECT_EQ(frmMain.Text4.Text(), "Note 1");
    EXPECT_EQ(frmMain.Focus(), &frmMain.Text4);
    EXPECT_FALSE(SheetClean);
    EXPECT_EQ(SampleNotes[2], "Note 2");
}

TEST_F(ModifyOpenedSheetTest, AnotherSampleWhileCountingTakesTheFocusBackToTheCounter) {
    frmMain.Text5[1].SetFocus();
    frmMain.Combo2.Choose(0);  // without a press of the mouse, which would do it too
    EXPECT_EQ(CurrentSample, 1);
    EXPECT_EQ(frmMain.Focus(), &frmMain.Text99);
}
}  // namespace
