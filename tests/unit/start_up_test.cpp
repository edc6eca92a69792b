#include "session/start_up.h"

#include <memory>

#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr const char* kSettings = "/program/References/KeySetting.csv";
constexpr const char* kPicture = "/program/References/My_favorite.jpg";
const Texts kWaves = {"Key-1", "Key-2", "Key-3", "Opening", "Undo", "Save", "Alarm", "Error"};

std::string WavePath(const std::string& wave) {
    return "/program/Sound files/" + wave + ".wav";
}

// Notes which files are read, in order.
class ReadRecorder : public Files {
public:
    explicit ReadRecorder(Files& beneath) : beneath_(beneath) {}
    Texts read;
    std::string ReadHead(const std::string& path, std::size_t most) override {
        read.push_back(path);
        return beneath_.ReadHead(path, most);
    }
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override { return beneath_.OpenForWriting(path); }

private:
    Files& beneath_;
};

class StartUpTest : public SheetTest {
protected:
    ReadRecorder recorder_{files_};
    StartUpTest() { services.files = &recorder_; }
};

TEST_F(StartUpTest, TheStartFaceStandsBeforeTheDisabledMainWindow) {
    Start();
    EXPECT_EQ(ActiveWindow(), &frmNext);
    EXPECT_TRUE(frmMain.Visible());
    EXPECT_FALSE(frmMain.Enabled());
    EXPECT_FALSE(frmInitial.Visible());
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(Played(), Texts{"WaveOpening"});
}

TEST_F(StartUpTest, ItReadsTheSettingsThenTheEightWavesThenThePicture) {
    Start();
    Texts expected = {kSettings};
    for (const std::string& wave : kWaves) expected.push_back(WavePath(wave));
    expected.push_back(kPicture);
    EXPECT_EQ(recorder_.read, expected);
    EXPECT_EQ(WaveKey1.bytes, files_.bytes["/program/Sound files/Key-1.wav"]);
    EXPECT_EQ(WaveError.bytes, files_.bytes["/program/Sound files/Error.wav"]);
}

TEST_F(StartUpTest, TheFreshSheetHasOneSampleWithoutANameAnd135EmptySlots) {
    Start();
    EXPECT_EQ(SampleCount, 1);
    EXPECT_EQ(CurrentSample, 1);
    EXPECT_EQ(SheetPath, "");
    EXPECT_EQ(SampleTable[kSampleSerial][0].Number(), 0);
    EXPECT_EQ(SampleTable[kSampleSerial][1].Number(), 1);
    EXPECT_EQ(SampleTable[kSampleName][0].Text(), "-9999");
    EXPECT_EQ(SampleTable[kSampleName][1].Text(), "-9999");
    EXPECT_EQ(frmMain.Text1[0].Text(), "-9999");
    EXPECT_EQ(frmMain.Combo2.Text(), "-9999");
    EXPECT_EQ(frmMain.Combo2.ListCount(), 0);
    EXPECT_EQ(frmMain.Label4.Caption(), "1/1");
    EXPECT_EQ(SampleNotes[1], "---");
    EXPECT_EQ(frmMain.Text4.Text(), "---");
    for (int slot = 1; slot <= kSlots; ++slot) {
        EXPECT_EQ(frmMain.Text1[slot].Text(), "---");
        EXPECT_EQ(frmMain.Text2[slot].Text(), "0");
        EXPECT_EQ(frmMain.Label1[slot].Caption(), std::to_string(slot));
        EXPECT_FALSE(frmMain.Label1[slot].Visible());
        EXPECT_EQ(TaxonTable[slot][kTaxonSheetRow].Number(), slot);
        EXPECT_EQ(TaxonTable[slot][kTaxonKey].Number(), slot);
        EXPECT_TRUE(TaxonTable[slot][kTaxonSubtotal1] == 0 && TaxonTable[slot][kTaxonSubtotal2] == 0 &&
                    TaxonTable[slot][kTaxonName] == "---")
            << slot;
        EXPECT_EQ(KeyIndex[slot], slot);
        EXPECT_EQ(RowOfSlot[slot], slot);
        EXPECT_EQ(Counts[slot][1], 0);
    }
}

TEST_F(StartUpTest, TheFixedLabelsOfTheFileAreInPlace) {
    Start();
    const Texts header = {"Untitled", "", "", "Serial No.", "", "Key index", "Subtotal-1", "Subtotal-2", "Sample name"};
    for (const int cell : {6, 7, 8, 9, 11, 12, 13, 14}) EXPECT_EQ(SheetHeader[cell].Text(), header[cell - 6]) << cell;
    for (int cell = 1; cell <= 3; ++cell) EXPECT_EQ(SheetFooter[cell].Text(), "---");
    EXPECT_EQ(SheetFooter[4].Text(), "Note: ");
}

TEST_F(StartUpTest, NothingCanBeSavedUndoneResetOrFollowedYet) {
    Start();
    for (const Control* command : std::initializer_list<const Control*>{
             &frmMain.Command2[0], &frmMain.Command3[1], &frmMain.mnuFinishAmend, &frmMain.Command5[0], &frmMain.mnuSave,
             &frmMain.Command5[1], &frmMain.mnuNext, &frmMain.mnuUndo, &frmMain.mnuReset, &frmMain.mnuNew, &frmMain.mnuBar,
             &frmMain.mnuArea, &frmMain.mnuCurve, &frmMain.mnuDot, &frmMain.mnuDotCurve, &frmMain.Text4, &frmMain.mnuSaveHistory})
        EXPECT_FALSE(command->Enabled()) << command->name << command->index;
    EXPECT_TRUE(frmMain.mnuItalic.Checked());
    EXPECT_TRUE(frmMain.mnuSaveCopy.Enabled());
}

TEST_F(StartUpTest, APictureBesideTheProgramIsOfferedForARest) {
    files_.bytes[kPicture] = "\xFF\xD8\xFF\xE0 and so on";
    Start();
    EXPECT_TRUE(frmMain.mnuFavorite.Enabled());
}

TEST_F(StartUpTest, TheSessionBeginsWithTheseFlags) {
    Start();
    EXPECT_TRUE(SoundOn && SheetClean && SampleUntouched && KeySettingsLoaded && AlarmArmed && WarnOldSample && SaveAsPending);
    EXPECT_FALSE(AmendMode || DiagramOpen || SampleNamesAreText || ReverseCount || Shift1Down || Shift2Down);
    EXPECT_TRUE(frmMain.FormLoaded && frmMain.KeysEnabled);
    EXPECT_EQ(BackupSlot, 99);
    EXPECT_EQ(SaveOutcome, 0);
    EXPECT_EQ(ShiftLevel, 0);
    EXPECT_EQ(UndoKeyState, 0);
    EXPECT_EQ(HistoryLog, (Texts{"14/11/2026 (10:11:12)", "(Start)"}));
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(CountsAtOpen.size(), 2u);
}

TEST_F(StartUpTest, TabNeverWalksTheCellsAndNoFieldCanBeRenamed) {
    Start();
    for (int slot = 0; slot <= kSlots; ++slot) EXPECT_FALSE(frmMain.Text1[slot].tab_stop || frmMain.Text2[slot].tab_stop) << slot;
    EXPECT_FALSE(frmMain.Text99.tab_stop);
    for (int p = 1; p <= kParams; ++p) {
        EXPECT_FALSE(frmMain.Command7[p].Visible());
        EXPECT_EQ(frmMain.Text5[p].Text(), "---");
    }
}

TEST_F(StartUpTest, CountAndNumberStandBelowTheNameInEveryBank) {
    Start();
    for (int place = 1; place <= kKeys; ++place)
        for (const int slot : {place, place + 45, place + 90}) {
            EXPECT_EQ(frmMain.Text1[slot].Left(), KeyLeft[place]) << slot;
            EXPECT_EQ(frmMain.Text1[slot].Top(), KeyTop[place]) << slot;
            EXPECT_EQ(frmMain.Text2[slot].Left(), KeyLeft[place]) << slot;
            EXPECT_EQ(frmMain.Text2[slot].Top(), KeyTop[place] + 270) << slot;
            EXPECT_EQ(frmMain.Label1[slot].Left(), KeyLeft[place]) << slot;
            EXPECT_EQ(frmMain.Label1[slot].Top(), KeyTop[place] + 550) << slot;
        }
}

TEST_F(StartUpTest, AnUnknownKeyboardBringsTheFirstRunFormAlone) {
    std::string& settings = files_.bytes[kSettings];
    settings.replace(settings.find("\"Down\",40"), 9, "\"Down\",999");
    Start();
    EXPECT_EQ(ActiveWindow(), &frmInitial);
    EXPECT_FALSE(frmMain.Visible());
    EXPECT_FALSE(frmNext.Visible());
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(Played(), Texts{"WaveOpening"});
    EXPECT_TRUE(KeySettingsLoaded);
    EXPECT_EQ(KeyboardKnown, 1) << "frmNext takes it as known from here on";
}
}  // namespace
