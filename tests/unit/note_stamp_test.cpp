// The last line of a note tells when the sheet was saved last.
#include "files/save_sheet.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
class NoteStampTest : public SheetTest {
protected:
    NoteStampTest() {
        Begin("10");
        SheetPath = "/sheets/Mere.csv";
    }
    std::string SavedNote(const std::string& note) {
        frmMain.Text4.SetText(note);
        SaveSheet(kSave);
        return frmMain.Text4.Text();
    }
    static constexpr const char* kStamp = "Last saved: 14/11/2026 (10:11:12)";
};

TEST_F(NoteStampTest, TheFirstSaveAddsALine) {
    EXPECT_EQ(SavedNote("some sand"), std::string("some sand\r\n") + kStamp);
    EXPECT_EQ(SampleNotes[1], frmMain.Text4.Text());
    EXPECT_EQ(SavedNote(""), std::string("\r\n") + kStamp);
}

TEST_F(NoteStampTest, ALaterSaveTakesItsPlace) {
    SavedNote("some sand");
    services_.clock.time = "11:00:00";
    SaveSheet(kSave);
    EXPECT_EQ(frmMain.Text4.Text(), "some sand\r\nLast saved: 14/11/2026 (11:00:00)");
}

TEST_F(NoteStampTest, ANoteThatIsNothingButAStampIsReplacedWhole) {
    services_.clock.time = "11:00:00";
    EXPECT_EQ(SavedNote(kStamp), "Last saved: 14/11/2026 (11:00:00)");
}

TEST_F(NoteStampTest, WhatWasTypedAfterTheLineGetsALineOfItsOwn) {
    const std::string typed = SavedNote("some sand") + ".";
    EXPECT_EQ(SavedNote(typed), typed + "\r\n" + kStamp);
}

TEST_F(NoteStampTest, ALineIsKnownByItsPlaceAndItsFirstTenCharacters) {
    EXPECT_EQ(SavedNote("old\r\nLast saved as ever by Ann in May, x"),
              std::string("old\r\nLast saved as ever by Ann in May, x\r\n") + kStamp);
    EXPECT_EQ(SavedNote("old\r\nLast saved as ever by Ann in May."), std::string("old\r\n") + kStamp) << "33 characters from the end";
}

TEST_F(NoteStampTest, AShortNoteThatBeginsLikeAStampIsKept) {
    EXPECT_EQ(SavedNote("Last saved by Ann"), std::string("Last saved by Ann\r\n") + kStamp);
}

TEST_F(NoteStampTest, PlacesAreCountedInCharactersNotBytes) {
    const std::string note = "\u00e9\u00e9\u00e9\u00e9 ";
    EXPECT_EQ(SavedNote(note), note + "\r\n" + kStamp);
    SaveSheet(kSave);
    EXPECT_EQ(frmMain.Text4.Text(), note + "\r\n" + kStamp);
}

TEST_F(NoteStampTest, AShortDateIsNotFoundAgain) {
    services_.clock.date = "1/2/2026";
    const std::string once = SavedNote("some sand");
    EXPECT_EQ(SavedNote(once), once + "\r\nLast saved: 1/2/2026 (10:11:12)");
}

TEST_F(NoteStampTest, TheStampIsAnEditOfTheNote) {
    SheetClean = true;
    SaveSheet(kSaveClean);
    EXPECT_FALSE(SheetClean);
}

TEST_F(NoteStampTest, OnlyTheSampleOnShowIsStamped) {
    KeyNumber(1);
    NextSample("20");
    SaveSheet(kSave);
    EXPECT_EQ(SampleNotes[1].find("Last saved"), std::string::npos);
    EXPECT_NE(SampleNotes[2].find("Last saved"), std::string::npos);
}

TEST_F(NoteStampTest, ACopyAndATableStampItToo) {
    AnswerDialog("/sheets/copy.csv");
    SaveSheet(kSaveCopy);
    EXPECT_TRUE(frmMain.Text4.Text().ends_with(kStamp));
    services_.clock.time = "11:00:00";
    AnswerDialog("/sheets/table.csv");
    SaveSheet(kSavePercentAll);
    EXPECT_TRUE(frmMain.Text4.Text().ends_with("Last saved: 14/11/2026 (11:00:00)"));
}
}  // namespace
