#include "files/exports.h"

#include "platform/encoding.h"
#include "platform/user.h"
#include "unit/open_test.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"

namespace {
constexpr const char* kTarget = "/sheets/export.csv";

class ExportTest : public OpenTest {
protected:
    ExportTest() {
        EXPECT_TRUE(Open(DataSheet(3)));
        Played();
    }
    void ExpectNotBusy() {
        EXPECT_EQ(MousePointer, kPointerDefault);
        EXPECT_FALSE(frmMain.ProgressBar1.Visible());
        EXPECT_EQ(frmMain.ProgressBar1.Value(), 0);
        EXPECT_EQ(MessageCount(), 0u);
    }
};

TEST_F(ExportTest, ATemplateHasTheLabelsOfEveryRowAndNoSamples) {
    AnswerDialog(kTarget);
    ClickControl(frmMain.mnuTemplate);
    Rows rows = TemplateFile();
    rows[0][0] = Quoted(kPath);
    rows[0][2] = "\"14/11/2026_(10:11:12)\"";
    EXPECT_EQ(files_.bytes[kTarget], Joined(rows));
    EXPECT_EQ(Played(), Texts{"WaveSave"});
    EXPECT_EQ(frmMain.Focus(), &frmMain.Text99);
    ExpectNotBusy();
}

TEST_F(ExportTest, ATemplateChangesNothingOfTheSession) {
    KeyNumber(1);
    const std::string title = frmMain.Title();
    const std::string note = frmMain.Text4.Text();
    const auto history = HistoryLog;
    AnswerDialog(kTarget);
    CreateTemplate();
    EXPECT_EQ(HistoryLog, history);
    EXPECT_EQ(frmMain.Title(), title);
    EXPECT_EQ(frmMain.Text4.Text(), note);
    EXPECT_EQ(SheetPath, kPath);
    EXPECT_TRUE(frmMain.Command5[0].Enabled());
    EXPECT_EQ(SampleCount, 3);
}

TEST_F(ExportTest, ATemplateOfASortedSheetKeepsItsOrderItsKeysAndItsNames) {
    Rows rows = DataSheet(1);
    std::swap(rows[kTaxonRow], rows[kTaxonRow + 100]);
    rows[1][1] = "\"Arbres\"";
    ASSERT_TRUE(Open(rows));
    AnswerDialog(kTarget);
    CreateTemplate();
    ASSERT_TRUE(OpenAgain(kTarget));
    EXPECT_EQ(KeyIndex[1], 101);
    EXPECT_EQ(frmMain.Text1[101].Text(), "Taxon 101");
    EXPECT_EQ(frmMain.Label2[1].Caption(), "Arbres:");
    EXPECT_EQ(FileLine(kTarget, 145), "\"---\",\"---\",\"---\",\"Arbres\"");
    EXPECT_EQ(frmSiteName.Label3[4].Caption(), "Info 4");
}

TEST_F(ExportTest, ATemplateCancelledOrRefusedIsSilent) {
    KeyNumber(1);
    Played();
    frmMain.Combo2.SetFocus();
    CancelDialog();
    CreateTemplate();
    files_.locked.insert(kTarget);
    AnswerDialog(kTarget);
    CreateTemplate();
    files_.locked.clear();
    files_.room[kTarget] = 100;
    AnswerDialog(kTarget);
    CreateTemplate();
    EXPECT_EQ(files_.bytes[kTarget].size(), 100u);
    EXPECT_EQ(Played(), Texts{});
    EXPECT_EQ(frmMain.Focus(), &frmMain.Combo2);
    EXPECT_EQ(SaveOutcome, 0);
    ExpectNotBusy();
}

TEST_F(ExportTest, WithoutSoundATemplateIsWrittenAllTheSame) {
    SoundOn = false;
    AnswerDialog(kTarget);
    CreateTemplate();
    EXPECT_EQ(Played(), Texts{});
    EXPECT_EQ(files_.bytes.count(kTarget), 1u);
}

TEST_F(ExportTest, InModifyModeTheFocusStaysWhereItIs) {
    ClickControl(frmMain.Command3[0]);
    ClickControl(frmMain.Text5[1]);
    for (const auto write : {CreateTemplate, SaveHistory}) {
        AnswerDialog(kTarget);
        write();
        EXPECT_EQ(frmMain.Focus(), &frmMain.Text5[1]);
    }
}

TEST_F(ExportTest, TheHistoryIsWrittenLineByLineWithTheTimeBehindIt) {
    KeyNumber(2);
    services_.clock.time = "11:00:00";
    AnswerDialog(kTarget);
    ClickControl(frmMain.mnuSaveHistory);
    EXPECT_EQ(files_.bytes[kTarget],
              "\"14/11/2026 (10:11:12)\"\r\n\"(Start)\"\r\n\"(Open) /sheets/mere.csv\"\r\n\"2: Taxon 2\"\r\n"
              "\"14/11/2026 (11:00:00)\"\r\n");
    EXPECT_EQ(services_.dialogs.asked.back().proposed_name, "/program/References/History.csv");
    EXPECT_EQ(frmMain.Focus(), &frmMain.Text99);
    ExpectNotBusy();
}

TEST_F(ExportTest, TheHistoryOfASheetOpenedTwiceHasBothOpenings) {
    ASSERT_TRUE(OpenAgain());
    AnswerDialog(kTarget);
    SaveHistory();
    EXPECT_EQ(FileLine(kTarget, 3), "\"(Open) /sheets/mere.csv\"");
    EXPECT_EQ(FileLine(kTarget, 4), "\"(Open) /sheets/mere.csv\"");
}

TEST_F(ExportTest, AccentsInTheHistoryAreWindows1252AndOtherScriptsUtf8) {
    NextSample("\u00e9t\u00e9");
    AnswerDialog(kTarget);
    SaveHistory();
    EXPECT_EQ(FileLine(kTarget, 4), "\"(New sample: \xE9t\xE9)\"");
    NextSample("\u03b2");
    AnswerDialog(kTarget);
    SaveHistory();
    EXPECT_EQ(FileLine(kTarget, 4), "\"(New sample: \u00e9t\u00e9)\"");
    EXPECT_EQ(FileLine(kTarget, 6), "\"(New sample: \u03b2)\"");
    EXPECT_EQ(DecodeFile(files_.bytes[kTarget]), files_.bytes[kTarget]);
}

TEST_F(ExportTest, AHistoryCancelledOrRefusedIsSilent) {
    KeyNumber(1);
    Played();
    frmMain.Combo2.SetFocus();
    CancelDialog();
    SaveHistory();
    files_.locked.insert(kTarget);
    AnswerDialog(kTarget);
    SaveHistory();
    files_.locked.clear();
    for (std::size_t room = 0; room < 60; ++room) {
        files_.room[kTarget] = room;
        AnswerDialog(kTarget);
        SaveHistory();
        ASSERT_EQ(files_.bytes[kTarget].size(), room);
    }
    EXPECT_EQ(Played(), Texts{});
    EXPECT_EQ(frmMain.Focus(), &frmMain.Combo2);
    EXPECT_EQ(SaveOutcome, 0);
    ExpectNotBusy();
}
}  // namespace
