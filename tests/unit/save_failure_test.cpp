// A save that fails: one message whatever the cause, and nothing of the session is lost.
#include "files/save_sheet.h"
#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
constexpr const char* kPath = "/sheets/Mere.csv";

class SaveFailureTest : public SheetTest {
protected:
    SaveFailureTest() {
        Begin("10");
        KeyNumber(1);
        SaveAs(kPath);
        KeyNumber(1);
        Played();
    }
    void ExpectTheMessage() {
        ASSERT_EQ(MessageCount(), 1u);
        EXPECT_EQ(LastMessage().title, "Error");
        EXPECT_EQ(LastMessage().text, "The file is being used by another software. Please close the file and try again.");
        EXPECT_EQ(LastMessage().icon, Icon::Exclamation);
        EXPECT_EQ(LastMessage().buttons, Buttons::Ok);
        EXPECT_EQ(Played(), Texts{"Beep"});
    }
};

TEST_F(SaveFailureTest, ALockedFileKeepsItsBytesAndTheSheetItsChangedMark) {
    const std::string before = files_.bytes[kPath];
    files_.locked.insert(kPath);
    SaveSheet(kSave);
    ExpectTheMessage();
    EXPECT_EQ(SaveOutcome, 2);
    EXPECT_EQ(files_.bytes[kPath], before);
    EXPECT_TRUE(frmMain.Command5[0].Enabled());
    EXPECT_EQ(SheetPath, kPath);
    EXPECT_EQ(LastLines(2), (Texts{"(Save)", "1: ---"}));
    EXPECT_EQ(Counts[1][1], 2);
}

TEST_F(SaveFailureTest, WhenTheFileIsFreeAgainTheNextSaveGoesThrough) {
    files_.locked.insert(kPath);
    SaveSheet(kSave);
    files_.locked.clear();
    SaveSheet(kSave);
    EXPECT_EQ(FileLine(kPath, 3), "1,0,0,\"---\",2");
    EXPECT_FALSE(frmMain.Command5[0].Enabled());
    EXPECT_EQ(LastLines(1), Texts{"(Save)"});
}

// Whoever closes the program then is asked to save.
TEST_F(SaveFailureTest, ADiskThatDoesNotEvenTakeTheHeaderLeavesTheSaveButtonAsItWas) {
    SaveSheet(kSave);
    const std::string whole = files_.bytes[kPath];
    const std::size_t header = whole.find("\r\n", whole.find("\r\n") + 2) + 2;
    for (const bool was_changed : {true, false})
        for (std::size_t room = 0; room <= header; ++room) {
            frmMain.Command5[0].SetEnabled(was_changed);
            files_.room[kPath] = room;
            SaveSheet(kSave);
            ASSERT_EQ(SaveOutcome, 2);
            ASSERT_EQ(frmMain.Command5[0].Enabled(), was_changed && room < header) << room << " bytes";
        }
}

TEST_F(SaveFailureTest, ADiskThatIsFullAfterTheHeaderLeavesACutFileAndTheSaveButtonOff) {
    files_.room[kPath] = 1000;
    SaveSheet(kSave);
    ExpectTheMessage();
    EXPECT_EQ(files_.bytes[kPath].size(), 1000u);
    EXPECT_FALSE(frmMain.Command5[0].Enabled());
    EXPECT_EQ(LastLines(1), Texts{"1: ---"});
    EXPECT_EQ(MousePointer, kPointerDefault);
    EXPECT_FALSE(frmMain.ProgressBar1.Visible());
}

TEST_F(SaveFailureTest, AFullDiskLosesNothingWhereverItStrikes) {
    SaveSheet(kSave);
    const std::string whole = files_.bytes[kPath];
    for (std::size_t room = 0; room < whole.size(); ++room) {
        SaveOutcome = 0;
        files_.room[kPath] = room;
        SaveSheet(kSave);
        ASSERT_EQ(SaveOutcome, 2) << room << " bytes";
        ASSERT_EQ(files_.bytes[kPath], whole.substr(0, room));
        files_.room.clear();
        SaveSheet(kSave);
        ASSERT_EQ(files_.bytes[kPath], whole) << "after a failure at " << room;
    }
}

TEST_F(SaveFailureTest, ADiskWithJustEnoughRoomTakesTheSheet) {
    SaveSheet(kSave);
    files_.room[kPath] = files_.bytes[kPath].size();
    SaveSheet(kSave);
    EXPECT_EQ(SaveOutcome, 0);
    EXPECT_EQ(MessageCount(), 0u);
}

TEST_F(SaveFailureTest, AFileThatCannotBeOpenedDoesNotBecomeTheSheets) {
    SheetPath = "";
    SaveAsPending = true;
    files_.locked.insert("/sheets/held.csv");
    SaveAs("/sheets/held.csv");
    ExpectTheMessage();
    EXPECT_EQ(SheetPath, "");
    EXPECT_TRUE(SaveAsPending);
}

TEST_F(SaveFailureTest, AFileThatFillsItsDiskHasBecomeTheSheets) {
    SheetPath = "";
    SaveAsPending = true;
    files_.room["/sheets/full.csv"] = 1000;
    SaveAs("/sheets/full.csv");
    ExpectTheMessage();
    EXPECT_EQ(SheetPath, "/sheets/full.csv");
    EXPECT_FALSE(SaveAsPending);
    EXPECT_EQ(frmMain.Title(), "Marlbrook 2.7 - [full]");
}

TEST_F(SaveFailureTest, TheMessageComesWithoutSoundToo) {
    SoundOn = false;
    files_.locked.insert(kPath);
    SaveSheet(kSave);
    ExpectTheMessage();
}
}  // namespace
