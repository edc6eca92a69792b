// A sheet from a stranger is only ever data: whatever stands in it, the program writes no file but the one that was chosen and its
// back-ups, and opening it ends soon.
#include <algorithm>

#include "files/save_sheet.h"
#include "unit/open_test.h"
#include "windows/main_window.h"

namespace {
constexpr const char* kStrange = "/sheets/strange.csv";

class UntrustedFileTest : public OpenTest {
protected:
    // Opened, counted on where that goes, backed up, saved: its own file is written, and no other but the back-ups.
    void ExpectOnlyItsOwnFilesWritten(const std::string& bytes) {
        const Texts written = FilesWrittenAfter(bytes);
        EXPECT_EQ(std::count(written.begin(), written.end(), kStrange), 1);
        for (const std::string& path : written) EXPECT_TRUE(path == kStrange || IsBackUp(path)) << path;
    }
    static std::string Repeated(const std::string& text, int times) {
        std::string all;
        for (int i = 0; i < times; ++i) all += text;
        return all;
    }

private:
    // The paths of the files that are new or changed.
    Texts FilesWrittenAfter(const std::string& bytes) {
        files_.bytes[kStrange] = bytes;
        const auto before = files_.bytes;
        SheetClean = true;
        AnswerDialog(kStrange);
        OpenSheet();
        KeyNumber(1);
        services_.messages.shown.clear();
        if (SheetPath.empty()) AnswerDialog(kStrange);
        SaveSheet(kSave);
        Texts written;
        for (const auto& [path, content] : files_.bytes)
            if (!before.count(path) || before.at(path) != content) written.push_back(path);
        return written;
    }
    static bool IsBackUp(const std::string& path) { return path.starts_with("/program/References/Back up files/"); }
};

TEST_F(UntrustedFileTest, NoTextOfASheetIsTakenForAPath) {
    for (const std::string text : {"../../etc/passwd", "/etc/passwd", "C:\\Windows\\win.ini", "\\\\server\\share\\x.csv",
                                   "References/KeySetting.csv", "~/.profile", "=cmd|' /C calc'!A0", "=HYPERLINK(\"\"x\"\")", "+1+1", "-1+1",
                                   "@SUM(A1)", "|ls", "`ls`", "$(ls)", "%s%s%n", "<b>x</b>", "\x1B[2J"}) {
        Rows rows = DataSheet(2);
        for (Row& row : rows)
            for (std::string& cell : row)
                if (cell.starts_with('"') && cell != "\"Serial No.\"" && cell != "\"Key index\"") cell = Quoted(text);
        SCOPED_TRACE(text);
        ExpectOnlyItsOwnFilesWritten(Joined(rows));
        EXPECT_EQ(SheetPath, kStrange);
        EXPECT_FALSE(services_.host.ended);
    }
}

TEST_F(UntrustedFileTest, TextsThatASpreadsheetWouldReckonStayAsTheyAre) {
    Rows rows = DataSheet(1);
    rows[kTaxonRow][3] = "\"=1+1\"";
    rows[1][4] = "\"../10\"";
    rows[kNoteRow][4] = "\"@note\"";
    ASSERT_TRUE(Open(rows));
    EXPECT_EQ(frmMain.Text1[1].Text(), "=1+1");
    EXPECT_EQ(frmMain.Combo2.Text(), "../10");
    SaveSheet(kSave);
    EXPECT_EQ(FileLine(kPath, 2), "\"Key index\",\"Trees\",\"Herbs\",\"Sample name\",\"../10\"");
    EXPECT_EQ(FileLine(kPath, 3), "1,1,0,\"=1+1\",2");
}

TEST_F(UntrustedFileTest, ACopyIsProposedBesideTheSheetWhateverTheSamplesAreCalled) {
    Rows rows = DataSheet(1);
    rows[0][0] = "\"/etc/passwd\"";
    rows[1][4] = "\"../../10\"";
    ASSERT_TRUE(Open(rows));
    CancelDialog();
    SaveSheet(kSaveCopy);
    EXPECT_EQ(services_.dialogs.asked.back().proposed_name, "/sheets/mere_(14.11.2026).csv");
}

TEST_F(UntrustedFileTest, NulsAndOtherControlCharactersAreCharactersLikeAnyOther) {
    Rows rows = DataSheet(1);
    const std::string name("Pi\0nus\x01\x7F\x1A", 9);
    rows[kTaxonRow][3] = Quoted(name);
    ASSERT_TRUE(Open(rows));
    EXPECT_EQ(TaxonTable[1][kTaxonName], name);
    SaveSheet(kSave);
    EXPECT_EQ(FileLine(kPath, 3), "1,1,0," + Quoted(name) + ",2");
    SheetClean = true;
    EXPECT_FALSE(Open(std::string(100000, '\0')));
    EXPECT_EQ(MessageCount(), 0u);
}

TEST_F(UntrustedFileTest, BytesWithoutAnyOrderEndInSilence) {
    const std::string sheet = Joined(DataSheet(2));
    const std::string head = sheet.substr(0, sheet.find("1,1,0"));
    for (const std::string& bytes :
         {Repeated(",", 100000), Repeated("\"", 100000), Repeated("\"\"", 50000), Repeated("\"a\"b", 30000), Repeated("\r\n", 50000),
          Repeated(" ", 100000), Repeated("\t,\"", 30000), Repeated("9", 100000), Repeated("1,", 50000), Repeated("\xC3", 100000),
          Repeated("\xEF\xBB\xBF", 30000), head + Repeated(",", 100000), head + Repeated("\"", 99999), head + Repeated("1e308,", 20000),
          head + "\"" + Repeated("x", 100000), "\"" + sheet, sheet.substr(1), Repeated(sheet, 10).substr(7)}) {
        SCOPED_TRACE(bytes.substr(0, 40));
        ExpectOnlyItsOwnFilesWritten(bytes);
        EXPECT_TRUE(SampleCount >= 1 && SampleCount <= kColumns);
        EXPECT_TRUE(CurrentSample >= 1 && CurrentSample <= SampleCount);
        EXPECT_EQ(services_.host.failure, "");
    }
}

TEST_F(UntrustedFileTest, MoreSerialsThanTheArraysHoldStopTheOpen) {
    for (const int samples : {256, 300, 1000, 40000}) {
        Rows rows = DataSheet(0);
        for (int serial = 1; serial <= samples; ++serial) rows[0].push_back("7");
        EXPECT_FALSE(Open(Joined(rows))) << samples;
        EXPECT_LE(SampleCount, kColumns) << samples;
    }
}

TEST_F(UntrustedFileTest, AbsurdNumbersStopTheOpenOrStandForWhatTheyAre) {
    struct {
        const char* count;
        bool opens;
        std::int32_t value;
    } cases[] = {{"1e308", false, 0},
                 {"1e999999999", false, 0},
                 {"-1e999999999", false, 0},
                 {"99999999999999999999999999", false, 0},
                 {"2147483648", false, 0},
                 {"1e-999999999", true, 0},
                 {"0.00000000000000000000000000000000001", true, 0},
                 {"nan", true, 0},
                 {"inf", true, 0},
                 {"0x7FFFFFFF", true, 0},
                 {"1e", true, 1},
                 {"--1", true, 0},
                 {"\xD9\xA3", true, 0}};
    for (const auto& each : cases) {
        Rows rows = DataSheet(1);
        rows[kTaxonRow][4] = each.count;
        EXPECT_EQ(Open(rows), each.opens) << each.count;
        if (each.opens) {
            EXPECT_EQ(Counts[1][1], each.value) << each.count;
        }
        for (const std::size_t flag : {1u, 2u}) {
            Rows flagged = DataSheet(1);
            flagged[kTaxonRow][flag] = each.count;
            EXPECT_EQ(Open(flagged), each.opens) << each.count << " as a flag";
        }
    }
}

TEST_F(UntrustedFileTest, AKeyIndexOrSerialThatIsNoPlaceTouchesNothing) {
    for (const char* number : {"136", "-1", "32767", "32768", "-32768", "-32769", "1e10", "-1e300"})
        for (const bool serial : {true, false}) {
            Rows rows = DataSheet(1);
            (serial ? rows[0][4] : rows[kTaxonRow + 4][0]) = number;
            if (serial && std::string(number) == "136") continue;  // a serial may go up to 255
            EXPECT_FALSE(Open(rows)) << number;
            for (int row = 1; row <= kSlots; ++row) ASSERT_TRUE(KeyIndex[row] >= 0 && KeyIndex[row] <= kSlots) << number;
        }
}

TEST_F(UntrustedFileTest, ALongTextIsHeldAndWrittenLikeAShortOne) {
    const std::string text(1000000, 'x');
    for (const auto& [row, cell] :
         {std::pair{0, 0}, {0, 1}, {0, 2}, {1, 1}, {1, 4}, {kTaxonRow, 3}, {kParamRow, 3}, {kParamRow, 4}, {kNoteRow, 4}}) {
        Rows rows = DataSheet(1);
        rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(cell)] = Quoted(text);
        SheetClean = true;
        ASSERT_TRUE(Open(rows)) << row << ", " << cell;
        SaveSheet(kSave);
        EXPECT_EQ(MessageCount(), 0u);
        EXPECT_TRUE(row == 0 || files_.bytes[kPath].find(text) != std::string::npos) << row << ", " << cell;
    }
}

TEST_F(UntrustedFileTest, ATextThatIsLargerThanAnyFileIsNotOpened) {
    const auto sheet_of_euros = [](std::size_t bytes) {  // each is three bytes in memory
        Rows rows = DataSheet(1);
        rows[kNoteRow][4] = Quoted(std::string(bytes, '\x80'));
        return Joined(rows);
    };
    ASSERT_TRUE(Open(sheet_of_euros(kLargestFile / 3 - 10'000)));
    EXPECT_FALSE(Open(sheet_of_euros(kLargestFile / 3), "/sheets/larger.csv"));
    EXPECT_EQ(SheetPath, kPath) << "the sheet stays as it was";
    EXPECT_EQ(MessageCount(), 0u);
}
}  // namespace
