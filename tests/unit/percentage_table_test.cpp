// A copy of the sheet in percent of one of its totals.
#include "files/save_sheet.h"
#include "platform/user.h"
#include "session/totals.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
constexpr const char* kTable = "/sheets/table.csv";

class PercentageTableTest : public SheetTest {
protected:
    PercentageTableTest() {
        Begin("12.5");
        SheetHeader[kHeaderSubtotal1] = "Trees";
        SheetHeader[kHeaderSubtotal2] = "Herbs";
        TaxonTable[1][kTaxonSubtotal1] = TaxonTable[2][kTaxonSubtotal1] = TaxonTable[3][kTaxonSubtotal2] = 1;
        frmMain.Text1[1].SetText("Pinus");
        for (const int key : {1, 2, 3}) KeyNumber(key, key == 1 ? 40 : key == 2 ? 9 : 1);
        NextSample("15");
        KeyNumber(1, 12);
        KeyNumber(3, 3);
        SheetPath = "/sheets/Mere.csv";
    }
    void Save(MenuItem& item) {
        AnswerDialog(kTable);
        ClickControl(item);
    }
    // The rows that stand before the end, the last one first.
    std::string LineFromEnd(int line) const {
        std::string text = files_.bytes.at(kTable);
        for (; line > 1; --line) text.erase(text.rfind("\r\n", text.size() - 3) + 2);
        const std::size_t begin = text.rfind("\r\n", text.size() - 3) + 2;
        return text.substr(begin, text.size() - 2 - begin);
    }
};

TEST_F(PercentageTableTest, TheTableByAllTotalHasTheseRows) {
    Save(frmMain.mnuPercentAll);
    EXPECT_EQ(FileLine(kTable, 1), "\"/sheets/Mere.csv\",\"Last saved (dd/mm/yyyy):\",\"14/11/2026_(10:11:12)\",\"Serial No.\",1,2");
    EXPECT_EQ(FileLine(kTable, 2), "\"Key index\",\"Trees\",\"Herbs\",\"Sample name\",\"12.5\",\"15\"");
    EXPECT_EQ(FileLine(kTable, 3), "1,1,0,\"Pinus\",80,80");
    EXPECT_EQ(FileLine(kTable, 4), "2,1,0,\"---\",18,0");
    EXPECT_EQ(FileLine(kTable, 5), "3,0,1,\"---\",2,20");
    EXPECT_EQ(FileLine(kTable, 137), "135,0,0,\"---\",0,0");
    EXPECT_EQ(FileLine(kTable, 143), "\"---\",\"---\",\"---\",\"Additional info-6\",\"---\",\"---\"");
    EXPECT_EQ(FileLine(kTable, 144), "\"---\",\"---\",\"---\",\"Trees\",98,80") << "the notes are left out";
    EXPECT_EQ(FileLine(kTable, 145), "\"---\",\"---\",\"---\",\"Herbs\",2,20");
    EXPECT_EQ(FileLine(kTable, 146), "\"---\",\"---\",\"---\",\"All total\",\"100 (n=50)\",\"100 (n=15)\"");
    EXPECT_EQ(LineFromEnd(1), FileLine(kTable, 146)) << "and nothing follows";
}

TEST_F(PercentageTableTest, TheRowThatIsTheBasisTellsItsSum) {
    Save(frmMain.mnuPercentSub1);
    EXPECT_EQ(LineFromEnd(3), "\"---\",\"---\",\"---\",\"Trees\",\"100 (n=49)\",\"100 (n=12)\"");
    EXPECT_EQ(LineFromEnd(2), "\"---\",\"---\",\"---\",\"Herbs\",2.0408,25");
    EXPECT_EQ(LineFromEnd(1), "\"---\",\"---\",\"---\",\"All total\",102.0408,125");
    Save(frmMain.mnuPercentSub2);
    EXPECT_EQ(LineFromEnd(3), "\"---\",\"---\",\"---\",\"Trees\",4900,400");
    EXPECT_EQ(LineFromEnd(2), "\"---\",\"---\",\"---\",\"Herbs\",\"100 (n=1)\",\"100 (n=3)\"");
    EXPECT_EQ(LineFromEnd(1), "\"---\",\"---\",\"---\",\"All total\",5000,500");
}

TEST_F(PercentageTableTest, ASampleWithoutTheBasisReads9999) {
    PutInCell(3, "0");
    RecountTotals(2);
    Counts[3][2] = 0;
    Save(frmMain.mnuPercentSub2);
    EXPECT_EQ(FileLine(kTable, 3), "1,1,0,\"Pinus\",4000,9999");
    EXPECT_EQ(FileLine(kTable, 5), "3,0,1,\"---\",100,9999");
    EXPECT_EQ(FileLine(kTable, 137), "135,0,0,\"---\",0,9999");
    EXPECT_EQ(LineFromEnd(3), "\"---\",\"---\",\"---\",\"Trees\",4900,9999");
    EXPECT_EQ(LineFromEnd(2), "\"---\",\"---\",\"---\",\"Herbs\",\"100 (n=1)\",\"100 (n=0)\"");
    EXPECT_EQ(LineFromEnd(1), "\"---\",\"---\",\"---\",\"All total\",5000,9999");
}

TEST_F(PercentageTableTest, SharesHaveFourDecimalsTiesToEven) {
    struct {
        int count, rest;
        const char* share;
    } cases[] = {{1, 2, "33.3333"},  {2, 1, "66.6667"},  {1, 31, "3.125"},    {1, 127, "0.7812"},
                 {3, 125, "2.3438"}, {5, 123, "3.9062"}, {-1, 4, "-33.3333"}, {1, 32766, "0.0031"}};
    for (const auto& each : cases) {
        for (const int slot : {1, 2, 3}) frmMain.Text2[slot].SetText(std::to_string(slot == 1 ? each.count : slot == 2 ? each.rest : 0));
        Save(frmMain.mnuPercentAll);
        EXPECT_EQ(FileLine(kTable, 3), std::string("1,1,0,\"Pinus\",80,") + each.share) << each.count << " and " << each.rest;
    }
}

TEST_F(PercentageTableTest, AShareIsRoundedFromASingleAndASumFromADouble) {
    TaxonTable[2][kTaxonSubtotal1] = 0;
    frmMain.Text2[1].SetText("8");
    frmMain.Text2[2].SetText("23");
    frmMain.Text2[3].SetText("0");
    Save(frmMain.mnuPercentAll);
    EXPECT_EQ(FileLine(kTable, 3), "1,1,0,\"Pinus\",80,25.8064");
    EXPECT_EQ(LineFromEnd(3), "\"---\",\"---\",\"---\",\"Trees\",80,25.8065");
}

TEST_F(PercentageTableTest, TheBasisStaysChosenAndArmsTheAlarm) {
    AlarmArmed = false;
    Save(frmMain.mnuPercentSub2);
    EXPECT_TRUE(frmMain.Option1[2].Value());
    EXPECT_FALSE(frmMain.Option1[0].Value() || frmMain.Option1[1].Value());
    EXPECT_TRUE(AlarmArmed);
    AlarmArmed = false;
    Save(frmMain.mnuPercentSub2);
    EXPECT_TRUE(AlarmArmed) << "of the basis that was chosen already";
    Save(frmMain.mnuPercentAll);
    EXPECT_TRUE(frmMain.Option1[0].Value());
}

TEST_F(PercentageTableTest, ItCountsAsASaveAlthoughItIsNone) {
    Played();
    Save(frmMain.mnuPercentAll);
    EXPECT_EQ(SheetPath, "/sheets/Mere.csv");
    EXPECT_TRUE(SaveAsPending);
    EXPECT_EQ(frmMain.Title(), "Marlbrook 2.7.5");
    EXPECT_FALSE(frmMain.Command5[0].Enabled());
    EXPECT_EQ(LastLines(1), Texts{"(Save)"});
    EXPECT_EQ(Played(), Texts{"WaveSave"});
    EXPECT_EQ(Counts[1][1], 40);
    EXPECT_EQ(frmMain.Text2[1].Text(), "12");
}

TEST_F(PercentageTableTest, ItAlwaysAsksAndACancelIsSilent) {
    frmMain.Option1[1].SetValue(true);
    CancelDialog();
    AlarmArmed = false;
    ClickControl(frmMain.mnuPercentAll);
    EXPECT_EQ(services_.dialogs.asked.size(), 1u);
    EXPECT_EQ(SaveOutcome, 2);
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_TRUE(frmMain.Option1[0].Value());
    EXPECT_TRUE(frmMain.Command5[0].Enabled());
}

TEST_F(PercentageTableTest, ALockedTableGivesTheMessageOfEverySave) {
    files_.locked.insert(kTable);
    Save(frmMain.mnuPercentAll);
    EXPECT_EQ(LastMessage().text, "The file is being used by another software. Please close the file and try again.");
    EXPECT_EQ(SaveOutcome, 2);
}

TEST_F(PercentageTableTest, RowsStandInSheetOrder) {
    std::swap(KeyIndex[1], KeyIndex[3]);
    Save(frmMain.mnuPercentAll);
    EXPECT_EQ(FileLine(kTable, 3), "3,0,1,\"---\",2,20");
    EXPECT_EQ(FileLine(kTable, 5), "1,1,0,\"Pinus\",80,80");
}
}  // namespace
