#include "keys/settings/key_settings.h"

#include "files/open_sheet.h"
#include "platform/failure.h"
#include "platform/user.h"
#include "session/start_up.h"
#include "unit/sheet_file.h"
#include "unit/sheet_test.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"
#include "windows/pad_places.h"

namespace {
constexpr const char* kFile = "/program/References/KeySetting.csv";
constexpr const char* kShiftsAndUndo[][3] = {{"\";\"", "186", "\"46\""}, {"\"p\"", "80", "\"47\""}, {"\"[BkSp]\"", "8", "\"49\""}};

class KeySettingsTest : public SheetTest {
protected:
    KeySettingsTest() { Begin("10"); }

    void Rewrite(const std::string& old_row, const std::string& new_row) {
        std::string& text = files_.bytes[kFile];
        const std::size_t at = text.find(old_row + "\r\n");
        ASSERT_NE(at, std::string::npos) << old_row;
        text.replace(at, old_row.size(), new_row);
    }
    void GiveFunctionalCode(int key, const std::string& code) {
        const auto& cells = kShiftsAndUndo[key];
        const auto row = [&](const std::string& middle) { return std::string(cells[0]) + "," + middle + "," + cells[2]; };
        Rewrite(row(cells[1]), row(code));
    }
    void KeepLines(int lines) {
        std::string& text = files_.bytes[kFile];
        std::size_t end = 0;
        for (; lines > 0; --lines) end = text.find("\r\n", end) + 2;
        text.resize(end);
    }
    static bool CellLiesAt(int slot, int place) {
        return frmMain.Text1[slot].Left() == KeyLeft[place] && frmMain.Text1[slot].Top() == KeyTop[place] &&
               frmMain.Text2[slot].Left() == KeyLeft[place] && frmMain.Text2[slot].Top() == KeyTop[place] + 270 &&
               frmMain.Label1[slot].Left() == KeyLeft[place] && frmMain.Label1[slot].Top() == KeyTop[place] + 550;
    }
};

TEST_F(KeySettingsTest, RowsKeepTextsAsTextsAndNumbersAsNumbers) {
    EXPECT_EQ(KeySettings[0][kKeyDefinition].Text(), "Key");
    EXPECT_EQ(KeySettings[1][kKeyDefinition].Text(), "q");
    EXPECT_TRUE(KeySettings[1][kKeyCode].IsNumber() && KeySettings[1][kKeyNumber].IsNumber());
    EXPECT_FALSE(KeySettings[46][kKeyNumber].IsNumber());
    EXPECT_EQ(KeySettings[46][kKeyNumber].Text(), "46");
    EXPECT_EQ(KeySettings[62][kKeyDefinition].Text(), "Down");
}

TEST_F(KeySettingsTest, ShiftAndUndoCodesComeFromTheirRows) {
    Rewrite("\"p\",80,\"47\"", "\"x\",\"301\",\"47\"");
    ReadKeySettings();
    EXPECT_EQ(Shift1Code, 186);
    EXPECT_EQ(Shift2Code, 301);
    EXPECT_EQ(UndoKeyCode, 8);
}

TEST_F(KeySettingsTest, AFunctionalKeyWhoseCodeIsNoNumberHasTheCode0) {
    for (const char* code : {"\"x\"", "x", "\"\"", ""}) {
        files_.bytes[kFile] = KnownKeySettings();
        for (const int key : {0, 1, 2}) GiveFunctionalCode(key, code);
        Shift1Code = Shift2Code = UndoKeyCode = 1;
        ReadKeySettings();
        EXPECT_EQ(Shift1Code, 0) << code;
        EXPECT_EQ(Shift2Code, 0) << code;
        EXPECT_EQ(UndoKeyCode, 0) << code;
    }
}

TEST_F(KeySettingsTest, A63rdRowIsNeededAndMoreDoNoHarm) {
    files_.bytes[kFile] += "\"more\",1,2\r\n";
    EXPECT_NO_THROW(ReadKeySettings());
    KeepLines(63);
    EXPECT_NO_THROW(ReadKeySettings());
    EXPECT_EQ(KeyboardKnown, 1);
    for (const int lines : {62, 40, 0}) {
        KeepLines(lines);
        KeyboardKnown = 1;
        EXPECT_THROW(ReadKeySettings(), Failure) << lines;
        EXPECT_EQ(KeyboardKnown, 0) << lines;
    }
}

TEST_F(KeySettingsTest, AFileOf40LinesIsTreatedAsMissing) {
    KeepLines(40);
    InitialiseSheet();
    EXPECT_EQ(LastMessage().text,
              "Marlbrook could not find reference file(s). Please use installer package to installe Marlbrook in your computer.");
    EXPECT_FALSE(KeySettingsLoaded);
    EXPECT_TRUE(frmInitial.Visible());
}

TEST_F(KeySettingsTest, TheCellsThatACutFileNamesMoveWhenASheetIsOpened) {
    Rewrite("\"q\",81,1", "\"q\",81,2");
    Rewrite("\"w\",87,2", "\"w\",87,1");
    KeepLines(3);
    InitialiseSheet();
    ASSERT_FALSE(KeySettingsLoaded);
    EXPECT_TRUE(CellLiesAt(1, 1) && CellLiesAt(2, 2));
    files_.bytes["/sheets/mere.csv"] = Joined(DataSheet(1));
    AnswerDialog("/sheets/mere.csv");
    OpenSheet();
    EXPECT_EQ(HistoryLog.back(), "(Open) /sheets/mere.csv");
    EXPECT_TRUE(CellLiesAt(1, 2) && CellLiesAt(2, 1));
    EXPECT_TRUE(CellLiesAt(3, 3)) << "as the start has read it";
}

TEST_F(KeySettingsTest, TheKeyboardIsUnknownWhileANamedKeyHasCode0Or999) {
    struct {
        const char* code;
        float known;
    } cases[] = {{"0", 0}, {"999", 0}, {"\"999\"", 0}, {"\"\"", 0}, {"1", 1}, {"998", 1}, {"1000", 1}, {"-1", 1}};
    for (const auto& each : cases)
        for (const char* row : {"\"Shift\",16,\"-\"", "\"Down\",40,\"-\""}) {
            files_.bytes[kFile] = KnownKeySettings();
            std::string changed = row;
            changed.replace(changed.find(',') + 1, 2, each.code);
            Rewrite(row, changed);
            ReadKeySettings();
            EXPECT_EQ(KeyboardKnown, each.known) << changed;
        }
}

TEST_F(KeySettingsTest, ACellTellsWhichKeysCountInIt) {
    EXPECT_EQ(frmMain.Text1[5].ToolTip(), "taxon 5, key s, Shift-1: 50, both shifts: 95");
    EXPECT_EQ(frmMain.Text2[50].ToolTip(), "taxon 50, key s with Shift-1 or Shift-2");
    EXPECT_EQ(frmMain.Text2[95].ToolTip(), "taxon 95, key s with Shift-1 and Shift-2");
    ClickControl(frmMain.mnuKeyCodeReader);
    ClickControl(frmKeyCode.Text1[5]);
    PressKey(226);
    InsertText(frmKeyCode.Text1[5], "<");
    ReleaseKey(226);
    ClickControl(frmKeyCode.Command4);
    EXPECT_EQ(frmMain.Text1[50].ToolTip(), "taxon 50, key < with Shift-1 or Shift-2");
}

TEST_F(KeySettingsTest, OtherRowsMayHoldThoseCodes) {
    Rewrite("\"q\",81,1", "\"q\",999,1");
    Rewrite("\"=\",187,\"50\"", "\"\",0,\"50\"");
    ReadKeySettings();
    EXPECT_EQ(KeyboardKnown, 1);
}

TEST_F(KeySettingsTest, SwappedNumbersMoveTheCellsOfBank0Alone) {
    Rewrite("\"q\",81,1", "\"q\",81,2");
    Rewrite("\"w\",87,2", "\"w\",87,1");
    ReadKeySettings();
    EXPECT_TRUE(CellLiesAt(1, 2));
    EXPECT_TRUE(CellLiesAt(2, 1));
    for (const int slot : {46, 91}) {
        EXPECT_TRUE(CellLiesAt(slot, 1)) << slot;
        EXPECT_TRUE(CellLiesAt(slot + 1, 2)) << slot;
    }
}

TEST_F(KeySettingsTest, ANumberOutside1To135IsAFailure) {
    struct {
        const char* number;
        bool good;
    } cases[] = {{"0", false},  {"1", true},      {"135", true},  {"136", false},
                 {"-1", false}, {"\"x\"", false}, {"999", false}, {"40000", false}};
    for (const auto& each : cases) {
        KeySettings[45][kKeyNumber] = each.number[0] == '"' ? Any("x") : Any(std::stod(each.number));
        if (each.good)
            EXPECT_NO_THROW(PlaceKeyCells()) << each.number;
        else
            EXPECT_THROW(PlaceKeyCells(), Failure) << each.number;
    }
}

TEST_F(KeySettingsTest, ANumberOutOfRangeInTheFileIsTreatedAsAMissingFile) {
    Rewrite("\"q\",81,1", "\"q\",81,136");
    InitialiseSheet();
    EXPECT_EQ(MessageCount(), 1u);
    EXPECT_FALSE(KeySettingsLoaded);
}

TEST_F(KeySettingsTest, AFunctionalCodeBeyond16BitsIsTreatedAsAMissingFile) {
    for (const auto& [code, good] : {std::pair{"32767", true}, {"32768", false}, {"-32768", true}, {"-32769", false}, {"\"99999\"", false}})
        for (const int key : {0, 1, 2}) {
            files_.bytes[kFile] = KnownKeySettings();
            GiveFunctionalCode(key, code);
            services_.messages.shown.clear();
            frmInitial.Unload();
            InitialiseSheet();
            EXPECT_EQ(MessageCount(), good ? 0u : 1u) << kShiftsAndUndo[key][0] << " " << code;
            EXPECT_EQ(KeySettingsLoaded, good) << kShiftsAndUndo[key][0] << " " << code;
            EXPECT_EQ(frmInitial.Visible(), !good) << kShiftsAndUndo[key][0] << " " << code;
        }
}

TEST_F(KeySettingsTest, AFractionOfANumberIsRoundedHalfToEven) {
    KeySettings[1][kKeyNumber] = 2.5;
    KeySettings[2][kKeyNumber] = "1";
    PlaceKeyCells();
    EXPECT_TRUE(CellLiesAt(2, 1));
    EXPECT_TRUE(CellLiesAt(1, 2));
}

TEST_F(KeySettingsTest, WritingGivesTheFileThatWasRead) {
    const std::string before = files_.bytes[kFile];
    WriteKeySettings();
    EXPECT_EQ(files_.bytes[kFile], before);
    KeySettings[51][kKeyCode] = 160;
    KeySettings[1][kKeyCode] = "90";
    WriteKeySettings();
    EXPECT_EQ(FileLine(kFile, 52), "\"Shift\",160,\"-\"");
    EXPECT_EQ(FileLine(kFile, 2), "\"q\",\"90\",1");
}

TEST_F(KeySettingsTest, ALockedFileCannotBeWritten) {
    files_.locked.insert(kFile);
    EXPECT_THROW(WriteKeySettings(), Failure);
}

TEST_F(KeySettingsTest, ThePlacesFormThreeBlocksOfTwoBands) {
    struct {
        int place, left, top;
    } cases[] = {{1, 240, 2140},   {2, 1320, 2140},  {3, 2400, 2140},  {4, 240, 2910},    {7, 240, 3680},  {9, 2400, 3680},
                 {10, 4080, 2140}, {18, 6240, 3680}, {19, 7920, 2140}, {27, 10080, 3680}, {28, 240, 360},  {30, 2400, 360},
                 {31, 240, 1130},  {33, 2400, 1130}, {34, 4080, 360},  {39, 6240, 1130},  {40, 7920, 360}, {45, 10080, 1130}};
    for (const auto& each : cases) {
        EXPECT_EQ(KeyLeft[each.place], each.left) << each.place;
        EXPECT_EQ(KeyTop[each.place], each.top) << each.place;
        EXPECT_EQ(PadPlace(each.place).left, each.left) << each.place;
        EXPECT_EQ(PadPlace(each.place).top, each.top) << each.place;
    }
}
}  // namespace
