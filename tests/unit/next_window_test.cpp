// The faces of frmNext: the start of the program, the first sample, the next sample.
#include "windows/next_window.h"

#include "platform/user.h"
#include "unit/sheet_test.h"
#include "unit/wave_bytes.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"

namespace {
class NextWindowTest : public SheetTest {
protected:
    bool IsShown(const Control& control) const { return control.Visible() && control.Top() < frmNext.Height(); }
};

TEST_F(NextWindowTest, TheStartFaceOffersToCreateAndToOpen) {
    Start();
    EXPECT_TRUE(frmNext.Frame2.Visible());
    EXPECT_TRUE(frmNext.Command4.Visible() && frmNext.Command2.Visible());
    EXPECT_FALSE(frmNext.Frame1.Visible());
    EXPECT_FALSE(frmNext.Command3.Visible());
    EXPECT_FALSE(IsShown(frmNext.Command1));
    EXPECT_EQ(frmNext.Label1.Caption(), "Name of the first sample: ");
    EXPECT_EQ(frmNext.Command4.Caption(), "Create new data file");
    EXPECT_EQ(frmNext.Command2.Caption(), "Open data file or template");
}

TEST_F(NextWindowTest, TheStartFaceLeadsToTheManualWhereItIsInstalled) {
    services_.host.has_manual = true;
    Start();
    ASSERT_TRUE(IsShown(frmNext.Command6));
    ClickControl(frmNext.Command6);
    EXPECT_EQ(services_.host.manuals_shown, 1);
    EXPECT_EQ(ActiveWindow(), &frmNext);
    frmNext.Unload();
    services_.host.has_manual = false;
    frmNext.Load();
    EXPECT_FALSE(frmNext.Command6.Visible());
}

TEST_F(NextWindowTest, OpenStandsInTheMiddleOnceThereIsNothingElseToPress) {
    Start();
    const int create = frmNext.Command4.Top(), open = frmNext.Command2.Top();
    ClickControl(frmNext.Command4);
    EXPECT_EQ(frmNext.Command2.Top(), (create + open) / 2);
}

TEST_F(NextWindowTest, CreateUnfoldsTheFieldsOfTheFirstSample) {
    Start();
    ClickControl(frmNext.Command4);
    EXPECT_TRUE(frmNext.Frame1.Visible());
    EXPECT_FALSE(frmNext.Command4.Visible());
    EXPECT_TRUE(IsShown(frmNext.Command1));
    EXPECT_EQ(frmNext.Focus(), &frmNext.Text1);
    EXPECT_EQ(frmNext.Text2.Text(), "Created: 14/11/2026 (10:11:12)\r\nNote: ");
    for (int p = 1; p <= kParams; ++p) {
        EXPECT_EQ(frmNext.Label3[p].Caption(), "Additional info-" + std::to_string(p) + ":");
        EXPECT_EQ(frmNext.Text3[p].Text(), "---");
        EXPECT_TRUE(frmNext.Command5[p].Visible());
    }
}

TEST_F(NextWindowTest, TheButtonBringsTheSampleFaceWithoutRenaming) {
    Begin("10");
    KeyNumber(1);
    ClickControl(frmMain.Command5[1]);
    EXPECT_EQ(ActiveWindow(), &frmNext);
    EXPECT_FALSE(frmMain.Enabled());
    EXPECT_TRUE(frmNext.Frame1.Visible());
    EXPECT_EQ(frmNext.Frame1.Left(), 0);
    EXPECT_EQ(frmNext.Frame1.Top(), 0);
    EXPECT_FALSE(frmNext.Frame1.Border());
    EXPECT_EQ(frmNext.Label1.Caption(), "Name of the next sample: ");
    EXPECT_TRUE(IsShown(frmNext.Command1) && IsShown(frmNext.Command3));
    EXPECT_FALSE(frmNext.Frame2.Visible() || frmNext.Command4.Visible() || frmNext.Command2.Visible());
    for (int p = 1; p <= kParams; ++p) EXPECT_FALSE(frmNext.Command5[p].Visible());
    EXPECT_EQ(frmNext.Text1.Text(), "");
}

TEST_F(NextWindowTest, TheMenuBringsItWithTheRenameButtons) {
    Begin("10");
    KeyNumber(1);
    ClickControl(frmMain.mnuNext);
    EXPECT_EQ(ActiveWindow(), &frmNext);
    EXPECT_EQ(frmNext.Label1.Caption(), "Name of the next sample: ");
    EXPECT_TRUE(IsShown(frmNext.Command3));
    for (int p = 1; p <= kParams; ++p) EXPECT_TRUE(frmNext.Command5[p].Visible());
}

TEST_F(NextWindowTest, WithMoreThanOneSampleTheNameHasTheFocusAtOnce) {
    Begin("10");
    KeyNumber(1);
    NextSample("20");
    KeyNumber(1);
    ClickControl(frmMain.Command5[1]);
    EXPECT_EQ(frmNext.Focus(), &frmNext.Text1);
}

TEST_F(NextWindowTest, WithMoreThanOneSampleTheNameHasTheFocusAgainAfterARename) {
    Begin("10");
    KeyNumber(1);
    NextSample("20");
    KeyNumber(1);
    ClickControl(frmMain.mnuNext);
    ClickControl(frmNext.Command5[2]);
    ASSERT_EQ(ActiveWindow(), &frmParaName);
    CloseWindow(frmParaName);
    ASSERT_EQ(ActiveWindow(), &frmNext);
    EXPECT_EQ(frmNext.Focus(), &frmNext.Text1);
}

TEST_F(NextWindowTest, AfterOkTheNextWindowIsANewOne) {
    Begin("10");
    KeyNumber(1);
    NextSample("20");
    EXPECT_FALSE(frmNext.IsLoaded());
    KeyNumber(1);
    services_.clock.time = "12:00:00";
    ClickControl(frmMain.Command5[1]);
    EXPECT_EQ(frmNext.Text1.Text(), "");
    EXPECT_EQ(frmNext.Text2.Text(), "Created: 14/11/2026 (12:00:00)\r\nNote: ");
}

TEST_F(NextWindowTest, CancelAndTheFrameGiveTheMainWindowBackAndChangeNothing) {
    Begin("10");
    KeyNumber(1);
    for (const bool by_frame : {false, true}) {
        ClickControl(frmMain.Command5[1]);
        if (by_frame)
            CloseWindow(frmNext);
        else
            ClickControl(frmNext.Command3);
        EXPECT_FALSE(frmNext.Visible()) << by_frame;
        EXPECT_TRUE(frmMain.Enabled()) << by_frame;
        EXPECT_EQ(ActiveWindow(), &frmMain) << by_frame;
        EXPECT_EQ(SampleCount, 1) << by_frame;
    }
}

TEST_F(NextWindowTest, ASecondCancelledWindowStillHasNoRenameButtons) {
    Begin("10");
    KeyNumber(1);
    ClickControl(frmMain.Command5[1]);
    ClickControl(frmNext.Command3);
    ClickControl(frmMain.Command5[1]);
    for (int p = 1; p <= kParams; ++p) EXPECT_FALSE(frmNext.Command5[p].Visible());
    EXPECT_FALSE(frmNext.Frame2.Visible());
}

TEST_F(NextWindowTest, ClosingTheStartFaceLeavesAFreshSheetReadyToCount) {
    Start();
    CloseWindow(frmNext);
    EXPECT_EQ(ActiveWindow(), &frmMain);
    KeyNumber(1);
    EXPECT_EQ(Counts[1][1], 1);
    EXPECT_EQ(SampleTable[kSampleName][1].Text(), "-9999");
}

TEST_F(NextWindowTest, ADoubleClickOnTheNoteIsOk) {
    Start();
    ClickControl(frmNext.Command4);
    InsertText(frmNext.Text1, "10");
    ClickControl(frmNext.Text2);
    FinishDoubleClick(frmNext.Text2);
    EXPECT_FALSE(frmNext.IsLoaded());
    EXPECT_TRUE(frmMain.Enabled());
    EXPECT_EQ(SampleTable[kSampleName][1].Text(), "10");
}

TEST_F(NextWindowTest, AValueFieldIsEmptyWhileItIsEmptyAndDashedWhenItIsLeftSo) {
    Start();
    ClickControl(frmNext.Command4);
    ClickControl(frmNext.Text3[1]);
    EXPECT_EQ(frmNext.Text3[1].Text(), "");
    ClickControl(frmNext.Text3[2]);
    EXPECT_EQ(frmNext.Text3[1].Text(), "---");
    InsertText(frmNext.Text3[2], "deep");
    ClickControl(frmNext.Text3[1]);
    ClickControl(frmNext.Text3[2]);
    EXPECT_EQ(frmNext.Text3[2].Text(), "deep");
}

TEST_F(NextWindowTest, TheNoteGetsItsCaretAtTheEnd) {
    Start();
    ClickControl(frmNext.Command4);
    ClickControl(frmNext.Text2);
    InsertText(frmNext.Text2, "sand");
    EXPECT_EQ(frmNext.Text2.Text(), "Created: 14/11/2026 (10:11:12)\r\nNote: sand");
}

TEST_F(NextWindowTest, ADoubleClickOnTheNoteUnderANameThatIsTakenLeavesTheWindowInFront) {
    Begin("10");
    KeyNumber(1);
    ClickControl(frmMain.Command5[1]);
    InsertText(frmNext.Text1, "10");
    ClickControl(frmNext.Text2);
    FinishDoubleClick(frmNext.Text2);
    EXPECT_EQ(MessageCount(), 1u);
    EXPECT_EQ(LastMessage().text, "The sample name is already used. Choose another name.");
    EXPECT_EQ(ActiveWindow(), &frmNext);
    EXPECT_EQ(frmNext.Text1.Text(), "10");
    EXPECT_FALSE(frmMain.Enabled());
    EXPECT_EQ(SampleCount, 1);
}

TEST_F(NextWindowTest, TheStartFaceSaysThatThereIsNoSoundDevice) {
    const std::string usual = frmNext.Label5[1].Caption();
    Start();
    EXPECT_EQ(frmNext.Label5[1].Caption(), usual);
    frmNext.Unload();
    services_.sounds.has_device = false;
    frmNext.Show();
    EXPECT_EQ(frmNext.Label5[1].Caption(), "No sound device: keys count without a sound");
}

TEST_F(NextWindowTest, TheStartFaceNamesAWaveThatIsNotPlayed) {
    files_.bytes["/program/Sound files/Undo.wav"] = SilentWave(2000, {.bits = 24});
    Start();
    EXPECT_EQ(frmNext.Label5[1].Caption(), "Undo.wav is no wave of the kinds that are played: it stays silent");
    frmNext.Unload();
    services_.sounds.has_device = false;
    frmNext.Show();
    EXPECT_EQ(frmNext.Label5[1].Caption(), "No sound device: keys count without a sound") << "graver";
}

TEST_F(NextWindowTest, WhereNothingSoundsNoWaveIsNamed) {
    files_.bytes["/program/Sound files/Undo.wav"] = "no wave";
    files_.bytes.erase("/program/Sound files/Error.wav");
    const std::string usual = frmNext.Label5[1].Caption();
    Start();
    EXPECT_EQ(frmNext.Label5[1].Caption(), usual);
}

TEST_F(NextWindowTest, WithoutASoundDeviceKeysCountAsEver) {
    services_.sounds.has_device = false;
    Begin("10");
    KeyNumber(1, 100);
    EXPECT_EQ(AllTotal, 100);
    EXPECT_TRUE(SoundOn);
    EXPECT_EQ(Played().back(), "WaveAlarm");
}
}  // namespace
