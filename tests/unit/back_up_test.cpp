#include "files/back_up.h"

#include "files/save_sheet.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
const std::string kFolder = "/program/References/Back up files/";
const std::string kMaster = kFolder + "Master_back_up.csv";
std::string Ring(int place) {
    return kFolder + "Auto_back_up_(" + std::to_string(place) + ").csv";
}

class BackUpTest : public SheetTest {
protected:
    BackUpTest() { Begin("10"); }
    std::string CountIn(const std::string& path) const {
        const std::string line = FileLine(path, 3);
        return line.substr(line.rfind(',') + 1);
    }
};

TEST_F(BackUpTest, TheFirstIsTheMasterThenTenTakeTurns) {
    EXPECT_EQ(BackupSlot, 99);
    BackUpSheet();
    EXPECT_EQ(BackupSlot, -1);
    EXPECT_EQ(CountIn(kMaster), "0");
    for (int i = 0; i < 11; ++i) {
        KeyNumber(1);
        BackUpSheet();
        EXPECT_EQ(BackupSlot, i % 10);
    }
    EXPECT_EQ(CountIn(kMaster), "0");
    EXPECT_EQ(CountIn(Ring(0)), "11");
    for (int place = 1; place <= 9; ++place) EXPECT_EQ(CountIn(Ring(place)), std::to_string(place + 1));
}

TEST_F(BackUpTest, ItsRowsAreThoseOfTheSheetUpToTheNotes) {
    KeyNumber(1, 3);
    SheetPath = "/sheets/Mere.csv";
    BackUpSheet();
    std::string expected =
        "\"/sheets/Mere.csv\",\"Backed up (dd/mm/yyyy):\",\"14/11/2026_(10:11:12)\",\"Serial No.\",1\r\n"
        "\"Key index\",\"Subtotal-1\",\"Subtotal-2\",\"Sample name\",\"10\"\r\n"
        "1,0,0,\"---\",3\r\n";
    for (int slot = 2; slot <= 135; ++slot) expected += std::to_string(slot) + ",0,0,\"---\",0\r\n";
    for (int p = 1; p <= 6; ++p) expected += "\"---\",\"---\",\"---\",\"Additional info-" + std::to_string(p) + "\",\"---\"\r\n";
    expected += "\"---\",\"---\",\"---\",\"Note: \",\"Created: 14/11/2026 (10:11:12)\r\nNote: \"\r\n";
    EXPECT_EQ(files_.bytes[kMaster], expected);
}

TEST_F(BackUpTest, ASheetWithoutAFileHasAnEmptyFirstCell) {
    BackUpSheet();
    EXPECT_TRUE(FileLine(kMaster, 1).starts_with("\"\",\"Backed up"));
}

TEST_F(BackUpTest, TheCellsOnTheScreenReachTheBackUp) {
    PutInCell(1, "6");
    frmMain.Combo2.SetText("11");
    BackUpSheet();
    EXPECT_EQ(CountIn(kMaster), "6");
    EXPECT_EQ(Counts[1][1], 6);
    EXPECT_EQ(SampleTable[kSampleName][1].Text(), "11");
}

TEST_F(BackUpTest, ItLeavesNoOtherTraceInTheSession) {
    KeyNumber(1);
    SheetClean = true;
    Played();
    const std::string note = frmMain.Text4.Text();
    const std::int32_t snapshot = CountsAtOpen[1][1];
    BackUpSheet();
    EXPECT_EQ(frmMain.Text4.Text(), note);
    EXPECT_EQ(LastLines(1), Texts{"1: ---"});
    EXPECT_TRUE(frmMain.Command5[0].Enabled());
    EXPECT_TRUE(SheetClean);
    EXPECT_EQ(SheetPath, "");
    EXPECT_EQ(frmMain.Title(), "Marlbrook 2.7.5");
    EXPECT_EQ(Played(), Texts{});
    EXPECT_EQ(CountsAtOpen[1][1], snapshot);
    EXPECT_EQ(SheetHeader[kHeaderSaved].Text(), "Backed up (dd/mm/yyyy):") << "until the next save";
}

TEST_F(BackUpTest, EmptyFieldsAreFilledAsASaveFillsThem) {
    SampleNotes[1] = "";
    ParamValues[1][1] = "";
    BackUpSheet();
    EXPECT_EQ(SampleNotes[1], "---");
    EXPECT_EQ(ParamValues[1][1].Text(), "---");
    EXPECT_EQ(ParamHeader[1][kParamName], "Additional info-1:");
}

TEST_F(BackUpTest, AFailedMasterIsTriedAgain) {
    Played();
    files_.locked.insert(kMaster);
    BackUpSheet();
    EXPECT_EQ(BackupSlot, 99);
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(Played(), Texts{});
    files_.locked.clear();
    BackUpSheet();
    EXPECT_EQ(BackupSlot, -1);
    EXPECT_EQ(files_.bytes.count(Ring(0)), 0u);
}

TEST_F(BackUpTest, AFailedRingFileIsPassedOver) {
    BackUpSheet();
    files_.room[Ring(0)] = 10;
    BackUpSheet();
    EXPECT_EQ(BackupSlot, 0);
    EXPECT_EQ(files_.bytes[Ring(0)].size(), 10u);
    BackUpSheet();
    EXPECT_EQ(BackupSlot, 1);
    EXPECT_EQ(MessageCount(), 0u);
}

TEST_F(BackUpTest, SumsTooLargeForASaveAreNoMatterHere) {
    frmMain.Text2[1].SetText("2000000");
    BackUpSheet();
    EXPECT_EQ(CountIn(kMaster), "2000000");
}
}  // namespace
