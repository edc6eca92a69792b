// What the start does without the files of its installation, and what a second fresh sheet keeps of the first.
#include "platform/user.h"
#include "platform/wave_format.h"
#include "session/start_up.h"
#include "unit/sheet_test.h"
#include "unit/wave_bytes.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr const char* kSettings = "/program/References/KeySetting.csv";
constexpr const char* kNoSettings =
    "Marlbrook could not find reference file(s). Please use installer package to installe Marlbrook in your computer.";
constexpr const char* kNoSounds =
    "Marlbrook could not find sound file(s). Please use installer package to installe Marlbrook in your computer.";

class MissingFilesTest : public SheetTest {
protected:
    void ExpectOneError(const char* text) {
        ASSERT_EQ(MessageCount(), 1u);
        EXPECT_EQ(LastMessage().title, "Error");
        EXPECT_EQ(LastMessage().text, text);
        EXPECT_EQ(LastMessage().icon, Icon::Exclamation);
        EXPECT_EQ(LastMessage().buttons, Buttons::Ok);
    }
};

TEST_F(MissingFilesTest, WithoutSettingsOneMessageAsksForTheKeyboardAndNothingElseIsRead) {
    files_.bytes.erase(kSettings);
    Start();
    ExpectOneError(kNoSettings);
    EXPECT_EQ(Played(), Texts{"Beep"});
    EXPECT_FALSE(KeySettingsLoaded);
    EXPECT_FALSE(SoundOn);
    EXPECT_EQ(WaveKey1.bytes, "");
    EXPECT_EQ(ActiveWindow(), &frmInitial);
    EXPECT_FALSE(frmMain.Visible());
    EXPECT_FALSE(frmNext.Visible());
    EXPECT_EQ(SampleCount, 1) << "the fresh sheet is there all the same";
}

TEST_F(MissingFilesTest, AnyMissingWaveMeansOneMessageAndNoSoundAtAll) {
    for (const std::string wave : {"Key-1", "Key-2", "Key-3", "Opening", "Undo", "Save", "Alarm", "Error"}) {
        const std::string path = "/program/Sound files/" + wave + ".wav";
        const std::string bytes = files_.bytes[path];
        files_.bytes.erase(path);
        services_.messages.shown.clear();
        SoundOn = KeySettingsLoaded = false;
        LoadMainWindow(frmMain);
        ExpectOneError(kNoSounds);
        EXPECT_EQ(Played(), Texts{}) << wave << ": neither a chime nor a beep";
        EXPECT_FALSE(SoundOn) << wave;
        EXPECT_FALSE(KeySettingsLoaded) << wave;
        EXPECT_EQ(KeyboardKnown, 1) << wave;
        EXPECT_EQ(KeySettings[1][kKeyCode].Number(), 81) << wave;
        files_.bytes[path] = bytes;
    }
}

TEST_F(MissingFilesTest, TheLongestWaveIsReadWhole) {
    std::string& wave = files_.bytes["/program/Sound files/Save.wav"];
    wave = SilentWave(kLongestWave * kHighestWaveRate, {.channels = 2, .rate = kHighestWaveRate});
    Start();
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_TRUE(WaveSave.bytes == wave);
}

TEST_F(MissingFilesTest, AWaveThatIsTooLargeIsBrokenAndNotMissing) {
    std::string& wave = files_.bytes["/program/Sound files/Save.wav"];
    wave = SilentWave(100);
    wave.resize(100'000'000);
    Start();
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_TRUE(SoundOn);
    EXPECT_FALSE(IsPlayableWave(WaveSave.bytes));
    EXPECT_LT(WaveSave.bytes.size(), 30'000'000u) << "the memory is not filled with what is not played";
}

TEST_F(MissingFilesTest, AMissingWaveOnAnUnknownKeyboardAsksForTheKeyboardToo) {
    std::string& settings = files_.bytes[kSettings];
    settings.replace(settings.find("\"Down\",40"), 9, "\"Down\",0");
    files_.bytes.erase("/program/Sound files/Save.wav");
    Start();
    ExpectOneError(kNoSounds);
    EXPECT_EQ(ActiveWindow(), &frmInitial);
}

TEST_F(MissingFilesTest, WithoutThePictureItsMenuIsOffAndNothingIsSaid) {
    Start();
    frmMain.mnuFavorite.SetEnabled(true);
    files_.bytes.erase("/program/References/My_favorite.jpg");
    InitialiseSheet();
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_FALSE(frmMain.mnuFavorite.Enabled());
    EXPECT_TRUE(SoundOn);
}

TEST_F(MissingFilesTest, SettingsMissingAtALaterSheetLeaveTheSoundOnButRingNoChime) {
    Begin("10");
    Played();
    files_.bytes.erase(kSettings);
    InitialiseSheet();
    ExpectOneError(kNoSettings);
    EXPECT_EQ(Played(), Texts{"Beep"});
    EXPECT_TRUE(SoundOn);
    EXPECT_FALSE(KeySettingsLoaded);
    EXPECT_EQ(KeyboardKnown, 0);
    EXPECT_TRUE(frmInitial.Visible());
    EXPECT_FALSE(frmMain.Visible());
}

TEST_F(MissingFilesTest, ALaterSheetWithAllFilesAgainSoundsAgain) {
    files_.bytes.erase("/program/Sound files/Save.wav");
    Begin("10");
    files_.bytes["/program/Sound files/Save.wav"] = "Save";
    InitialiseSheet();
    EXPECT_TRUE(SoundOn);
    EXPECT_TRUE(KeySettingsLoaded);
    EXPECT_EQ(Played(), Texts{"WaveOpening"});
    EXPECT_EQ(WaveSave.bytes, "Save");
}

TEST_F(MissingFilesTest, ASecondFreshSheetChimesAgainAndBeginsTheLogAnewButNotTheList) {
    Begin("10");
    KeyNumber(1);
    Played();
    services_.clock.time = "11:00:00";
    InitialiseSheet();
    EXPECT_EQ(Played(), Texts{"WaveOpening"});
    EXPECT_EQ(HistoryLog, (Texts{"14/11/2026 (11:00:00)", "(Start)"}));
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(frmMain.Combo1.List(), (Texts{"(Start)", "(New sample: 10)", "1: ---", "(Start)"}));
}

TEST_F(MissingFilesTest, ASecondFreshSheetIsAsFreshAsTheFirst) {
    Begin("10");
    TaxonTable[1][kTaxonSubtotal1] = 1;
    frmMain.Text1[1].SetText("Pinus");
    KeyNumber(1);
    NextSample("20");
    KeyNumber(1);
    SaveAs("/sheets/Mere.csv");
    ShowSample(1);
    UndoKeyState = 2;
    ShiftLevel = 1;
    ReverseCount = Shift1Down = Shift2Down = SampleNamesAreText = true;
    InitialiseSheet();
    EXPECT_EQ(UndoKeyState, 0);
    EXPECT_EQ(ShiftLevel, 0);
    EXPECT_FALSE(ReverseCount || Shift1Down || Shift2Down || SampleNamesAreText);
    EXPECT_EQ(SampleCount, 1);
    EXPECT_EQ(CurrentSample, 1);
    EXPECT_EQ(SheetPath, "");
    EXPECT_TRUE(SaveAsPending);
    EXPECT_TRUE(SheetClean);
    EXPECT_TRUE(SampleUntouched);
    EXPECT_EQ(frmMain.Text1[0].Text(), "-9999");
    EXPECT_EQ(frmMain.Combo2.Text(), "-9999");
    EXPECT_EQ(frmMain.Combo2.ListCount(), 0);
    EXPECT_EQ(frmMain.Text3[0].Text(), "0");
    EXPECT_EQ(Counts[1][1], 0);
    EXPECT_EQ(TaxonTable[1][kTaxonSubtotal1].Number(), 0);
    EXPECT_EQ(frmMain.Text1[1].Text(), "---");
    EXPECT_EQ(frmMain.Text4.Text(), "---");
    EXPECT_FALSE(frmMain.Text1[1].Bold());
    EXPECT_FALSE(frmMain.Command5[0].Enabled());
    EXPECT_FALSE(frmMain.mnuBar.Enabled()) << "one sample makes no diagram";
    EXPECT_EQ(Counts[1][2], 1) << "columns beyond the first are not wiped";
}

TEST_F(MissingFilesTest, AFreshSheetReads1Of1WhateverTheOneBeforeHeld) {
    Begin("10");
    KeyNumber(1);
    NextSample("20");
    InitialiseSheet();
    EXPECT_EQ(frmMain.Label4.Caption(), "1/1");
}

TEST_F(MissingFilesTest, AFreshSheetInModifyModeLeavesTheTab) {
    Begin("10");
    frmMain.SSTab1.SetTab(2);
    AmendMode = true;
    InitialiseSheet();
    EXPECT_EQ(frmMain.SSTab1.Tab(), 2);
    AmendMode = false;
    InitialiseSheet();
    EXPECT_EQ(frmMain.SSTab1.Tab(), 0);
}
}  // namespace
