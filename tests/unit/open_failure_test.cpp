// An open that comes to nothing: what the user sees, and what of the session is left.
#include <functional>

#include "files/save_sheet.h"
#include "session/undo.h"
#include "unit/open_test.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"

namespace {
class OpenFailureTest : public OpenTest {
protected:
    OpenFailureTest() { EXPECT_TRUE(Open(DataSheet(3))); }  // the sheet that the user has

    // Whatever stops the open, it is over without a word, and no file has changed.
    void ExpectSilence(const std::function<void()>& open) {
        Played();
        const auto files = files_.bytes;
        open();
        EXPECT_EQ(MessageCount(), 0u);
        EXPECT_EQ(Played(), Texts{});
        EXPECT_TRUE(SheetClean);
        EXPECT_FALSE(SampleUntouched);
        EXPECT_FALSE(frmMain.ProgressBar1.Visible());
        EXPECT_EQ(frmMain.ProgressBar1.Value(), 0);
        EXPECT_EQ(files_.bytes, files) << "not even a back-up";
    }
    void FailToOpen(const std::string& bytes) {
        files_.bytes[kBad] = bytes;
        ExpectSilence([this] { EXPECT_FALSE(OpenAgain(kBad)); });
        EXPECT_EQ(SheetPath, kBad) << "the first Save will write over it";
    }
    void FailToOpen(const Rows& rows) {
        FailToOpen(Joined(rows));
        EXPECT_EQ(frmMain.Title(), "Marlbrook 2.7.5 - [bad]");
        EXPECT_FALSE(TemplateOpened);
    }
    static constexpr const char* kBad = "/sheets/bad.csv";
};

TEST_F(OpenFailureTest, ANoLeavesTheSheetAndTheNextOpenAsksNothing) {
    KeyNumber(1, 2);
    AnswerNext(Answer::No);
    OpenSheet();
    EXPECT_EQ(Counts[1][3], 6);
    EXPECT_EQ(SheetPath, kPath);
    EXPECT_TRUE(SheetClean);
    EXPECT_FALSE(SampleUntouched);
    EXPECT_EQ(MessageCount(), 1u);
    EXPECT_TRUE(frmMain.Command5[0].Enabled()) << "what was counted is still to be saved";
    EXPECT_TRUE(OpenAgain());
    EXPECT_EQ(MessageCount(), 1u);
}

TEST_F(OpenFailureTest, TheQuestionSoundsOnceAndOnceMoreAboveATotalOf0) {
    struct {
        int count;  // of the file, before a key adds 1
        Texts waves;
    } cases[] = {{-3, {"WaveError"}}, {-1, {"WaveError"}}, {0, {"WaveError", "WaveError"}}};
    for (const auto& each : cases) {
        Rows rows = DataSheet(1);
        for (std::size_t row = kTaxonRow; row < kTaxonRow + kSlots; ++row) rows[row][4] = "0";
        rows[kTaxonRow][4] = std::to_string(each.count);
        ASSERT_TRUE(Open(rows));
        KeyNumber(1);
        Played();
        AnswerNext(Answer::No);
        OpenSheet();
        EXPECT_EQ(Played(), each.waves) << each.count + 1;
    }
    EXPECT_EQ(MessageCount(), 3u);
}

TEST_F(OpenFailureTest, WithoutSoundTheQuestionIsSilent) {
    KeyNumber(1);
    Played();
    SoundOn = false;
    AnswerNext(Answer::No);
    OpenSheet();
    EXPECT_EQ(MessageCount(), 1u);
    EXPECT_EQ(Played(), Texts{});
}

TEST_F(OpenFailureTest, ACancelledDialogLeavesTheSheet) {
    CancelDialog();
    ExpectSilence(OpenSheet);
    EXPECT_EQ(SheetPath, kPath);
    EXPECT_EQ(SampleCount, 3);
    EXPECT_EQ(Counts[1][3], 4);
}

TEST_F(OpenFailureTest, AYesBeforeACancelledDialogHasTakenTheCountsBack) {
    KeyNumber(1, 2);
    AnswerNext(Answer::Yes);
    CancelDialog();
    OpenSheet();
    EXPECT_EQ(Counts[1][3], 4);
    EXPECT_EQ(frmMain.Text2[1].Text(), "4");
    EXPECT_EQ(SheetPath, kPath);
    EXPECT_TRUE(SheetClean);
}

TEST_F(OpenFailureTest, AFileThatCannotBeOpenedChangesNothing) {
    files_.bytes["/sheets/locked.csv"] = Joined(DataSheet(1));
    files_.locked.insert("/sheets/locked.csv");
    for (const std::string path : {"/sheets/locked.csv", "/sheets/none.csv"}) {
        ExpectSilence([&] { EXPECT_FALSE(OpenAgain(path)); });
        EXPECT_EQ(SheetPath, kPath);
        EXPECT_EQ(frmMain.Title(), "Marlbrook 2.7.5 - [mere]");
        EXPECT_EQ(SampleCount, 3);
        EXPECT_EQ(Counts[1][3], 4);
    }
}

TEST_F(OpenFailureTest, AnEmptyFileTakesThePathAndTheCountsAlone) {
    FailToOpen("");
    EXPECT_EQ(frmMain.Title(), "Marlbrook 2.7.5 - [mere]") << "the caption follows the first cell";
    EXPECT_EQ(SampleCount, 3);
    EXPECT_EQ(Counts[1][3], 0);
    EXPECT_EQ(frmMain.Text1[1].Text(), "Taxon 1");
}

TEST_F(OpenFailureTest, AFileWithoutAnEndingHasNoNameForTheCaption) {
    EXPECT_FALSE(Open(Joined(DataSheet(1)), "/sheets/mere"));
    EXPECT_EQ(SheetPath, "/sheets/mere");
    EXPECT_EQ(SheetHeader[kHeaderPath], "/old/place.csv");
    EXPECT_EQ(SampleCount, 3);
}

TEST_F(OpenFailureTest, A256thColumnStopsTheOpenBeforeTheSheetHasAnyOfThem) {
    FailToOpen(DataSheet(256));
    EXPECT_EQ(SampleCount, 3);
    EXPECT_EQ(SampleTable[kSampleSerial][255], 255);
    EXPECT_EQ(frmMain.Combo2.ListCount(), 3);
}

TEST_F(OpenFailureTest, ASerialOutsideTheArraysStopsTheOpenBeforeTheNames) {
    for (const char* serial : {"256", "-1", "32767"}) {
        Rows rows = DataSheet(2);
        rows[0][5] = serial;
        FailToOpen(rows);
        EXPECT_EQ(SampleCount, 2) << serial;
        EXPECT_EQ(CurrentSample, 2);
        EXPECT_EQ(frmMain.Label4.Caption(), serial + std::string("/") + (serial[0] == '-' ? "1" : serial));
        EXPECT_EQ(SerialOfColumn[1], 1);
        EXPECT_EQ(frmMain.Combo2.Text(), "30");
    }
    for (const char* serial : {"0", "255"}) {
        Rows rows = DataSheet(2);
        rows[0][5] = serial;
        EXPECT_TRUE(Open(rows)) << serial;
        EXPECT_EQ(SerialOfColumn[2], SampleTable[kSampleSerial][2].Number());
        EXPECT_EQ(ColumnOfSerial[SerialOfColumn[2]], 2);
    }
}

TEST_F(OpenFailureTest, ASerialBeyond16BitsStopsTheOpenBeforeTheCounter) {
    Rows rows = DataSheet(2);
    rows[0][5] = "32768";
    FailToOpen(rows);
    EXPECT_EQ(SampleCount, 2);
    EXPECT_EQ(frmMain.Label4.Caption(), "3/3");
}

TEST_F(OpenFailureTest, AKeyIndexOutsideTheArraysStopsTheOpenInItsRow) {
    for (const char* key : {"136", "-1", "32767", "32768"}) {
        Rows rows = DataSheet(2);
        rows[kTaxonRow + 1][3] = "\"Betula\"";
        rows[kTaxonRow + 2][0] = key;
        rows[kTaxonRow + 3][3] = "\"Never read\"";
        FailToOpen(rows);
        EXPECT_EQ(SampleCount, 2) << key;
        EXPECT_EQ(frmMain.Combo2.Text(), "20");
        EXPECT_EQ(TaxonTable[2][kTaxonName], "Betula");
        EXPECT_EQ(Counts[2][1], 3);
        EXPECT_EQ(Counts[3][1], 0);
        EXPECT_EQ(TaxonTable[4][kTaxonName], "Taxon 4");
        EXPECT_EQ(SampleNotes[1], "Note 1");
        SaveSheet(kSave);
        EXPECT_EQ(FileLine(kBad, 4), "2,0,0,\"Betula\",3,4");
        EXPECT_EQ(FileLine(kBad, 5), "3,1,1,\"Taxon 3\",0,6") << "the row keeps the slot it had";
        Played();
        services_.messages.shown.clear();
        SheetClean = true;
    }
}

TEST_F(OpenFailureTest, AKeyIndexOf0Opens) {
    Rows rows = DataSheet(2);
    rows[kTaxonRow + 2][0] = "0";
    EXPECT_TRUE(Open(rows));
    EXPECT_EQ(KeyIndex[3], 0);
    EXPECT_EQ(RowOfSlot[0], 3);
}

TEST_F(OpenFailureTest, AKeyIndexOf0IsRepeatedLikeAnyOther) {
    Rows rows = DataSheet(2);
    rows[kTaxonRow][0] = rows[kTaxonRow + 1][0] = "0";
    rows[kTaxonRow + 49][0] = "55";
    EXPECT_FALSE(Open(rows));
    ASSERT_FALSE(services_.messages.shown.empty());
    EXPECT_EQ(services_.messages.shown.back().text, "Same key index (0) is being used more than once.");
    EXPECT_EQ(SheetPath, "");
}

TEST_F(OpenFailureTest, ANumberBeyond32BitsStopsTheOpenAtItsCell) {
    for (const std::size_t cell : {1u, 2u, 4u})
        for (const char* number : {"2147483648", "-2147483649", "1E10"}) {
            Rows rows = DataSheet(2);
            rows[kTaxonRow + 2][cell] = number;
            FailToOpen(rows);
            EXPECT_EQ(Counts[2][2], 4);
            EXPECT_EQ(Counts[3][2], 0);
        }
    Rows rows = DataSheet(2);
    rows[kTaxonRow][4] = "2147483647";
    rows[kTaxonRow + 1][4] = "-2147483648";
    EXPECT_TRUE(Open(rows));
}

TEST_F(OpenFailureTest, ATotalBeyond32BitsStopsTheOpen) {
    Rows rows = DataSheet(2);
    rows[kTaxonRow][5] = "2147483647";
    FailToOpen(rows);
    EXPECT_EQ(Counts[1][2], 2147483647);
    EXPECT_EQ(SampleNotes[2], "Note 2");
}

TEST_F(OpenFailureTest, ARepeatedKeyIndexResetsTheSession) {
    Rows rows = DataSheet(2);
    rows[kTaxonRow + 6][0] = "3";
    rows[kTaxonRow + 8][0] = "2";
    Played();
    AnswerDialog("/sheets/twice.csv");
    files_.bytes["/sheets/twice.csv"] = Joined(rows);
    OpenSheet();
    EXPECT_EQ(LastMessage().title, "Error");
    EXPECT_EQ(LastMessage().text, "Same key index (3) is being used more than once.");
    EXPECT_EQ(LastMessage().icon, Icon::Exclamation);
    EXPECT_EQ(Played(), (Texts{"WaveError", "WaveOpening"}));
    EXPECT_EQ(SheetPath, "");
    EXPECT_EQ(SampleCount, 1);
    EXPECT_EQ(SampleTable[kSampleName][1], "-9999");
    EXPECT_EQ(frmMain.Text1[1].Text(), "---");
    EXPECT_EQ(Counts[1][1], 0);
    EXPECT_EQ(KeyIndex[7], 7);
    EXPECT_EQ(HistoryLog.back(), "(Start)");
    EXPECT_TRUE(SaveAsPending);
    EXPECT_TRUE(SheetClean);
    EXPECT_FALSE(SampleUntouched);
    EXPECT_FALSE(frmMain.ProgressBar1.Visible());
}

// How many cells of the sheet come before the first taxon row, and in each of the rows after it.
constexpr int kSamples = 2;
constexpr int kHeaderCells = 2 * (4 + kSamples);
constexpr int kRowCells = 4 + kSamples;

// A file cut after any of its cells: all that stands before the cut is in the sheet, what stands behind it is as it was.
TEST_F(OpenFailureTest, AFileCutShortAnywhereKeepsWhatWasRead) {
    Rows rows = DataSheet(kSamples);
    for (std::size_t row = kTaxonRow; row < kParamRow; ++row) rows[row][3].insert(1, "New ");
    rows.resize(kNoteRow + 1);
    std::string cut;
    int cells = 0;
    for (const Row& row : rows)
        for (const std::string& cell : row) {
            ASSERT_TRUE(Open(DataSheet(3)));
            FailToOpen(cut);
            const int rows_begun = (cells - kHeaderCells + kRowCells - 4) / kRowCells;  // with their four labels
            for (int r = 1; r <= kSlots; ++r) {
                const std::string name = (cells >= kHeaderCells && r <= rows_begun ? "New Taxon " : "Taxon ") + std::to_string(r);
                ASSERT_EQ(TaxonTable[r][kTaxonName], name) << cells << " cells";
                ASSERT_EQ(frmMain.Text1[r].Text(), name) << cells << " cells";
            }
            if (HasFailure()) return;
            cut += (cut.empty() ? "" : ",") + cell;
            ++cells;
        }
    EXPECT_TRUE(Open(cut)) << "the last cell made it whole";
}

TEST_F(OpenFailureTest, ARowThatBreaksOffShowsItsLastCountAsThatOfTheLastSample) {
    Rows rows = DataSheet(3);
    rows.resize(kTaxonRow + 11);
    std::swap(rows[kTaxonRow + 9][0], rows[kTaxonRow + 10][0]);
    rows.back().resize(6);
    rows.back()[5] = "77";
    FailToOpen(rows);
    EXPECT_EQ(frmMain.Text2[10].Text(), "77");
    EXPECT_EQ(Counts[10][1], 12);
    EXPECT_EQ(Counts[10][2], 77);
    EXPECT_EQ(Counts[10][3], 77);
    EXPECT_EQ(frmMain.Text2[11].Text(), "13");
    EXPECT_EQ(Counts[11][3], 13);
    EXPECT_EQ(frmMain.Text2[12].Text(), "15") << "of the sheet before";
}

TEST_F(OpenFailureTest, ARowThatBreaksOffBeforeItsCountsShowsThatOfTheSheetBefore) {
    Rows rows = DataSheet(3);
    rows.resize(kTaxonRow + 10);
    rows.back().resize(4);
    rows.back()[3] = "\"Betula\"";
    FailToOpen(rows);
    EXPECT_EQ(frmMain.Text1[10].Text(), "Betula");
    EXPECT_EQ(frmMain.Text2[10].Text(), "13");
}

TEST_F(OpenFailureTest, BoldGoesByTheRowsThatWereRead) {
    Rows rows = DataSheet(2);
    for (int slot = 1; slot <= kSlots; ++slot) rows[kTaxonRow + slot - 1][4] = rows[kTaxonRow + slot - 1][5] = "0";
    ASSERT_TRUE(Open(rows));
    rows.resize(kTaxonRow + 11);
    std::swap(rows[kTaxonRow][0], rows[kTaxonRow + 9][0]);
    rows[kTaxonRow][4] = "5";  // slot 10, the sample that is not on show
    rows.back()[4] = "6";
    rows.back().resize(5);
    FailToOpen(rows);
    for (int row = 1; row <= kSlots; ++row) {
        EXPECT_EQ(frmMain.Text1[row].Bold(), row == 1 || row == 11) << row;
        EXPECT_EQ(frmMain.Text2[row].Bold(), row == 1 || row == 11) << row;
    }
    EXPECT_EQ(frmMain.Text2[10].Text(), "0");
}

TEST_F(OpenFailureTest, ATemplateCutShortLeavesOneColumn) {
    Rows rows = TemplateFile();
    rows.resize(kTaxonRow + 10);
    EXPECT_FALSE(Open(Joined(rows), "/sheets/cut.csv"));
    EXPECT_EQ(SampleCount, 1);
    EXPECT_EQ(CurrentSample, 1);
    EXPECT_EQ(frmMain.Label4.Caption(), "1/1");
    EXPECT_EQ(SampleTable[kSampleSerial][1], 1);
    EXPECT_TRUE(TemplateOpened);
    EXPECT_FALSE(frmSiteName.IsLoaded());
}

TEST_F(OpenFailureTest, TheNextSampleOfAHalfReadSheetStartsAt0) {
    Rows rows = DataSheet(2);
    rows.resize(kTaxonRow + 10);
    EXPECT_FALSE(Open(rows));
    Counts[100][3] = 5;  // a column that nothing has taken into use since
    NextSample("top");
    EXPECT_EQ(SampleCount, 3);
    for (int slot = 1; slot <= kSlots; ++slot) EXPECT_EQ(Counts[slot][3], 0) << slot;
    EXPECT_EQ(Counts[10][1], 11);
}

TEST_F(OpenFailureTest, UndoAfterAHalfReadSheetGoesToASampleThatItDoesNotHave) {
    ASSERT_TRUE(Open(DataSheet(3)));
    KeyNumber(1);
    ASSERT_EQ(CurrentSample, 3);
    Rows rows = DataSheet(2);
    rows.resize(kTaxonRow + 10);
    AnswerNext(Answer::Yes);
    EXPECT_FALSE(Open(rows));
    ASSERT_EQ(SampleCount, 2);
    Undo();
    EXPECT_EQ(CurrentSample, 3);
}

TEST_F(OpenFailureTest, ASaveAfterAHalfReadSheetWritesWhatTheSessionHolds) {
    Rows rows = DataSheet(2);
    rows.resize(kTaxonRow + 10);
    FailToOpen(rows);
    SaveSheet(kSave);
    EXPECT_EQ(FileLine(kBad, 3), "1,1,0,\"Taxon 1\",2,3");
    EXPECT_EQ(FileLine(kBad, 13), "11,1,0,\"Taxon 11\",0,14") << "its cell still shows the count of the sheet before";
    AnswerNext(Answer::Yes);
    EXPECT_TRUE(OpenAgain(kBad));
}
}  // namespace
