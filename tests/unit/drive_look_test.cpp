// What "dump" prints: whole sheets, the main window, pictures.
#include "drive/look_commands.h"

#include <sstream>

#include "drive/commands.h"
#include "drive/names.h"
#include "drive/script.h"
#include "platform/headless/headless_hands.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
class DriveDumpsTest : public SheetTest {
protected:
    DriveDumpsTest() { Begin("12.5"); }

    static std::string OneLine(const std::string& name) { return drive::OnOneLine(drive::ValueOf(name)); }
    static std::string Sheet() {
        std::ostringstream out;
        drive::DumpSheet(out, OneLine);
        return out.str();
    }
    static std::string MainWindow() {
        std::ostringstream out;
        drive::DumpWindow(out, frmMain, OneLine);
        return out.str();
    }
    // What the command itself prints.
    std::string Dump(const std::string& what) {
        std::ostringstream out, errors;
        drive::Folders folders(".", ".");
        HeadlessHands hands([] { return false; });
        drive::Report report("a.drive", errors);
        drive::Stage stage{folders, services_, hands, report, out};
        drive::RunCommand(stage, {1, {"dump", what}, {}, false});
        return out.str();
    }
    static bool HasLine(const std::string& text, const std::string& line) {
        return ("\n" + text).find("\n" + line + "\n") != std::string::npos;
    }
};
}  // namespace

TEST_F(DriveDumpsTest, ASheetShowsItsScalarsSamplesAndNotes) {
    const std::string sheet = Sheet();
    EXPECT_TRUE(sheet.starts_with("SheetPath = \nSampleCount = 1\nCurrentSample = 1\nMaxSerial = 1\nAllTotal = 0\n")) << sheet;
    for (const char* line :
         {"SheetHeader(9) = Serial No.", "SheetHeader(14) = Sample name", "SampleTable(2,1) = 12.5", "TaxonTable(0,2) = 0",
          "ParamHeader(6,4) = ", "ParamValues(1,1) = ---", "SheetFooter(4) = Note: ", "HistoryLog(1) = (Start)"})
        EXPECT_TRUE(HasLine(sheet, line)) << line << " is not in\n" << sheet;
}

TEST_F(DriveDumpsTest, OfSlotsOnlyThoseThatAreNoLongerFreshAreShown) {
    EXPECT_EQ(Sheet().find("\nTaxonTable(7,"), std::string::npos);
    EXPECT_EQ(Sheet().find("\nCounts("), std::string::npos);
    EXPECT_EQ(Sheet().find("\nKeyIndex("), std::string::npos);
    EXPECT_EQ(Sheet().find("\nRowOfSlot("), std::string::npos);
    EXPECT_EQ(Sheet().find("\nUndoList("), std::string::npos);
    KeyNumber(7, 3);
    TaxonTable[7][kTaxonName] = "Pinus";
    KeyIndex[7] = 8;
    RowOfSlot[8] = 7;
    const std::string sheet = Sheet();
    for (const char* line : {"TaxonTable(7,0) = 7", "TaxonTable(7,4) = Pinus", "Counts(7,1) = 3", "KeyIndex(7) = 8", "RowOfSlot(8) = 7"})
        EXPECT_TRUE(HasLine(sheet, line)) << line << " is not in\n" << sheet;
    EXPECT_NE(sheet.find("\nUndoList("), std::string::npos);
    EXPECT_EQ(sheet.find("\nTaxonTable(6,"), std::string::npos);
}

TEST_F(DriveDumpsTest, ARowOfATaxonIsFreshOnlyIfAllItsCellsAre) {
    for (const int column : {0, 1, 2, 3, 4}) {
        const Any fresh = TaxonTable[5][column];
        TaxonTable[5][column] = 9;
        EXPECT_TRUE(HasLine(Sheet(), "TaxonTable(5," + std::to_string(column) + ") = 9"));
        TaxonTable[5][column] = fresh;
        EXPECT_EQ(Sheet().find("\nTaxonTable(5,"), std::string::npos);
    }
}

TEST_F(DriveDumpsTest, TheMainWindowShowsCellsListsAndCommands) {
    const std::string window = MainWindow();
    EXPECT_TRUE(window.starts_with("Title = " + frmMain.Title() + "\n")) << window;
    EXPECT_EQ(window.find("\nText1(7)"), std::string::npos);
    for (const char* line : {"Text3(0) = 0", "Label4 = 1/1", "SSTab1 = 0", "mnuQuit = \"Quit\" enabled", "mnuUndo = \"Undo\" disabled"})
        EXPECT_TRUE(HasLine(window, line)) << line << " is not in\n" << window;
    EXPECT_NE(window.find(" checked\n"), std::string::npos) << "italics are on from the start";
}

TEST_F(DriveDumpsTest, ACellBearsItsMarks) {
    frmMain.Text1[7].SetText("Pinus");
    EXPECT_TRUE(HasLine(MainWindow(), "Text1(7) = \"Pinus\" \"0\"")) << MainWindow();
    frmMain.Text1[7].SetItalic(true);
    frmMain.Text2[7].SetBold(true);
    frmMain.Text1[7].SetUnderline(true);
    EXPECT_TRUE(HasLine(MainWindow(), "Text1(7) = \"Pinus\" \"0\" bold italic underline"));
    frmMain.Text2[7].SetBackColor({255, 255, 0});
    EXPECT_TRUE(HasLine(MainWindow(), "Text1(7) = \"Pinus\" \"0\" bold italic underline back=255,255,0"));
    frmMain.Text1[7].SetBackColor({1, 2, 3});
    EXPECT_TRUE(HasLine(MainWindow(), "Text1(7) = \"Pinus\" \"0\" bold italic underline back=1,2,3"));
    frmMain.Text2[8].SetText("4");
    EXPECT_TRUE(HasLine(MainWindow(), "Text1(8) = \"---\" \"4\"")) << MainWindow();
}

TEST_F(DriveDumpsTest, TheCommandTellsTheThreeApart) {
    EXPECT_TRUE(Dump("sheet") == Sheet());
    EXPECT_TRUE(Dump("window") == MainWindow());
    EXPECT_TRUE(Dump("frmMain.Picture1").starts_with("scale "));
    EXPECT_THROW(Dump("frmMain.Text4"), drive::ScriptFault);
}
