// Sheets that a spreadsheet has saved: no quotes but where they are needed, lines that end in LF, cells that it took for something else.
#include <utility>

#include "files/save_sheet.h"
#include "unit/open_test.h"
#include "windows/main_window.h"

namespace {
class OpenSpreadsheetTest : public OpenTest {
protected:
    // What the program writes of the sheet after it has been opened: all that a reader can see of it.
    std::string Rewritten(const std::string& bytes) {
        if (!Open(bytes)) return "not opened";
        SaveSheet(kSave);
        SheetClean = true;  // so that the next open does not ask
        return files_.bytes[kPath];
    }
};

TEST_F(OpenSpreadsheetTest, WithoutQuotesAndWithLfItIsTheSameSheet) {
    Rows rows = DataSheet(3);
    rows[kNoteRow][4] = Quoted("Created: 14/11/2026 (09:02:41)\r\nNote: sand, coarse");
    const std::string sheet = Rewritten(Joined(rows));
    EXPECT_EQ(Rewritten(Joined(Unquoted(rows))), sheet);
    EXPECT_EQ(Rewritten(Joined(Unquoted(rows), ",", "\n")), sheet);
    EXPECT_EQ(Rewritten(Joined(rows, ",", "\r")), sheet);
    EXPECT_EQ(Rewritten(Joined(Unquoted(rows), ", ")), sheet);
}

TEST_F(OpenSpreadsheetTest, TheGridNeedNotStandInLinesOfItsOwn) {
    const std::string sheet = Rewritten(Joined(DataSheet(2)));
    EXPECT_EQ(Rewritten(Joined(DataSheet(2), ",", ",")), sheet);
    EXPECT_EQ(Rewritten(Joined(DataSheet(2), "\r\n")), sheet);
    EXPECT_EQ(Rewritten(Joined(DataSheet(2), ",", "\r\n\r\n")), sheet);
}

TEST_F(OpenSpreadsheetTest, AMarkAtTheHeadIsPassedOver) {
    const std::string sheet = Rewritten(Joined(DataSheet(2)));
    EXPECT_EQ(Rewritten("\xEF\xBB\xBF" + Joined(DataSheet(2))), sheet);
}

TEST_F(OpenSpreadsheetTest, AccentsReadTheSameInBothEncodings) {
    Rows utf8 = DataSheet(1);
    Rows windows1252 = utf8;
    utf8[kTaxonRow][3] = "\"B\u00e9tula\"";
    windows1252[kTaxonRow][3] = "\"B\xE9tula\"";
    const std::string sheet = Rewritten(Joined(windows1252));
    EXPECT_EQ(TaxonTable[1][kTaxonName], "B\u00e9tula");
    EXPECT_EQ(Rewritten(Joined(utf8)), sheet);
    EXPECT_NE(sheet.find("B\xE9tula"), std::string::npos);
}

TEST_F(OpenSpreadsheetTest, NamesThatItTookForDatesOrErrorsAreTexts) {
    Rows rows = Unquoted(DataSheet(5));
    const char* const names[] = {"01/02/26", "12.5", "3,5", "Err:509", "1E5"};
    for (std::size_t sample = 0; sample < 5; ++sample) rows[1][4 + sample] = names[sample];
    rows[1][6] = Quoted(rows[1][6]);  // a comma keeps its quotes
    rows[kTaxonRow][3] = "Err:509";
    rows[kTaxonRow + 1][3] = "#NAME?";
    ASSERT_TRUE(Open(Joined(rows, ",", "\n")));
    for (int sample = 1; sample <= 5; ++sample) {
        EXPECT_EQ(SampleTable[kSampleName][sample], names[sample - 1]);
        EXPECT_FALSE(SampleTable[kSampleName][sample].IsNumber()) << "written with quotes again";
    }
    EXPECT_EQ(TaxonTable[1][kTaxonName], "Err:509");
    EXPECT_EQ(TaxonTable[2][kTaxonName], "#NAME?");
    EXPECT_TRUE(SampleNamesAreText);
}

TEST_F(OpenSpreadsheetTest, AnUnquotedValueOfTheAdditionalInfoStaysBareUntilItIsShown) {
    Rows rows = DataSheet(2);
    rows[kParamRow][4] = "14.50";
    rows[kParamRow][5] = "16.50";
    ASSERT_TRUE(Open(rows));
    SaveSheet(kSave);
    EXPECT_EQ(FileLine(kPath, kParamRow + 1), "\"---\",\"---\",\"---\",\"Info 1\",14.5,\"16.5\"");
}

TEST_F(OpenSpreadsheetTest, AQuotedSerialIsANumber) {
    Rows rows = DataSheet(2);
    rows[0][4] = "\"1\"";
    ASSERT_TRUE(Open(rows));
    EXPECT_EQ(SampleCount, 2);
    SaveSheet(kSave);
    EXPECT_TRUE(FileLine(kPath, 1).ends_with("\"Serial No.\",1,2"));
}

TEST_F(OpenSpreadsheetTest, FlagsAndCountsThatAreNoPlainNumbersGiveTheirLeadingNumber) {
    Rows rows = DataSheet(1);
    const std::pair<const char*, int> counts[] = {{"7 cf.", 7}, {"\"8\"", 8}, {"", 0}, {"2.5", 2}, {"3.5", 4}, {"x", 0}, {"1E2", 100}};
    for (std::size_t row = 0; row < std::size(counts); ++row) rows[kTaxonRow + row][4] = counts[row].first;
    ASSERT_TRUE(Open(rows));
    for (std::size_t row = 0; row < std::size(counts); ++row) EXPECT_EQ(Counts[row + 1][1], counts[row].second) << counts[row].first;
}

// Cells parted by semicolons are one cell a line, or end where a quote ends: the reader finds no serials, takes the file for a template
// and comes to its end among the rows.
TEST_F(OpenSpreadsheetTest, SemicolonsStopTheOpenAndLoseNoFile) {
    for (const Rows& rows : {DataSheet(2), Unquoted(DataSheet(2))}) {
        ASSERT_TRUE(Open(DataSheet(2)));
        files_.bytes["/sheets/semicolons.csv"] = Joined(rows, ";");
        const auto files = files_.bytes;
        EXPECT_FALSE(OpenAgain("/sheets/semicolons.csv"));
        EXPECT_EQ(files_.bytes, files);
        EXPECT_EQ(MessageCount(), 0u);
        EXPECT_EQ(SheetPath, "/sheets/semicolons.csv");
        EXPECT_EQ(SampleCount, 1);
        EXPECT_EQ(frmMain.Label4.Caption(), "1/1");
        EXPECT_TRUE(TemplateOpened);
        EXPECT_TRUE(SheetClean);
        EXPECT_FALSE(frmMain.Command5[0].Enabled()) << "nothing to be saved over the file";
    }
}
}  // namespace
