#include "drive/names.h"

#include <gtest/gtest.h>

#include "unit/program_test.h"
#include "windows/main_window.h"

using drive::ControlOf;
using drive::FullName;
using drive::KeyCode;
using drive::KeyThatTypes;
using drive::ScriptFault;
using drive::ValueOf;
using drive::WindowOf;

class DriveNamesTest : public ProgramTest {};

TEST_F(DriveNamesTest, AControlAloneStandsForItsMainProperty) {
    EXPECT_EQ(ValueOf("frmMain"), "False");
    EXPECT_EQ(ValueOf("frmMain.Text1(0)"), "-9999");
    EXPECT_EQ(ValueOf("frmMain.mnuQuit"), "Quit");
    EXPECT_EQ(ValueOf("frmMain.Option1(1)"), "False");
    EXPECT_EQ(ValueOf("frmMain.SSTab1"), "0");
    EXPECT_EQ(ValueOf("frmMain.ProgressBar1"), "0");
    EXPECT_THROW(ValueOf("frmMain.Picture1"), ScriptFault) << "a picture has none";
}

TEST_F(DriveNamesTest, PropertiesFollowTheirControlOrWindow) {
    EXPECT_EQ(ValueOf("frmMain.Title"), frmMain.Title());
    EXPECT_EQ(ValueOf("frmNote.BackColor"), "236,238,240");
    EXPECT_EQ(ValueOf("frmMain.Option1(1).Caption"), "Set alarm");
    EXPECT_EQ(ValueOf("frmMain.Text1(7).BackColor"), "255,255,255");
    EXPECT_EQ(ValueOf("frmMain.SSTab1.TabCaption(1)"), "Shift 1 or 2");
    EXPECT_EQ(ValueOf("frmMain.mnuItalic.Checked"), frmMain.mnuItalic.Checked() ? "True" : "False");
    frmMain.Combo2.AddItem("12.5");
    EXPECT_EQ(ValueOf("frmMain.Combo2.ListCount"), "1");
    EXPECT_EQ(ValueOf("frmMain.Combo2.List(0)"), "12.5");
    frmMain.Combo2.Clear();
}

TEST_F(DriveNamesTest, VariablesAreNamedAsInTheCode) {
    Counts[5][1] = -3;
    SampleTable[kSampleName][1] = "12.50";
    CountsAtOpen.resize(2);
    CountsAtOpen[1][5] = 7;
    EXPECT_EQ(ValueOf("Counts(5,1)"), "-3");
    EXPECT_EQ(ValueOf("SampleTable(2,1)"), "12.50");
    EXPECT_EQ(ValueOf("CountsAtOpen(5,1)"), "7");
    EXPECT_EQ(ValueOf("SheetClean"), "False");
    EXPECT_EQ(ValueOf("KeyboardKnown"), "0");
    EXPECT_EQ(ValueOf("MousePointer"), "0");
}

TEST_F(DriveNamesTest, WhatDoesNotExistIsAFault) {
    for (const char* name :
         {"", "frmNone", "frmMain.None", "frmMain.Text1", "frmMain.Text1(136)", "frmMain.Text1(-1)", "frmMain.Label4.Text",
          "frmMain.Text4(0)", "frmMain.Text4.Text.Length", "frmMain(1)", "frmMain.Caption", "frmMain.Text1(1", "None",
          "frmMain.Combo2.List", "frmMain.Combo2.List(0)", "frmMain.Text4.Text(1)", "frmMain.SSTab1.TabCaption(3)"})
        EXPECT_THROW(ValueOf(name), ScriptFault) << name;
    for (const char* name : {"Counts", "Counts(1)", "Counts(136,1)", "Counts(1,256)", "Counts(-1,1)", "Counts(1,x)", "Counts(1,1).Text",
                             "SheetClean(0)", "HistoryLog(0)", "CountsAtOpen(1,1)", "KeySettings(63,0)"})
        EXPECT_THROW(ValueOf(name), ScriptFault) << name;
}

TEST_F(DriveNamesTest, ControlsAndWindowsAreFoundForTheHands) {
    EXPECT_EQ(&ControlOf("frmMain.Text1(7)"), &frmMain.Text1[7]);
    EXPECT_EQ(&WindowOf("frmMain"), &frmMain);
    EXPECT_EQ(FullName(frmMain.Text1[7]), "frmMain.Text1(7)");
    EXPECT_EQ(FullName(frmMain.Text4), "frmMain.Text4");
    EXPECT_THROW(ControlOf("frmMain"), ScriptFault);
    EXPECT_THROW(ControlOf("frmMain.Text4.Text"), ScriptFault);
    EXPECT_THROW(ControlOf<TabControl>("frmMain.Text4", "tab control"), ScriptFault);
}

class DriveKeysTest : public ProgramTest {};

TEST_F(DriveKeysTest, ACodeIsANumberOrTheLetterOfItsOwnCode) {
    EXPECT_EQ(KeyCode("81"), 81);
    EXPECT_EQ(KeyCode("Q"), 81);
    EXPECT_EQ(KeyCode("5"), 5) << "a digit is a number, not a key";
    EXPECT_EQ(KeyCode("0"), 0);
    for (const char* word : {"q", "QW", "", "-1", "1.5", "É"}) EXPECT_THROW(KeyCode(word), ScriptFault) << word;
}

TEST_F(DriveKeysTest, KeysByPurposeComeFromTheSettingsThatAreHeld) {
    EXPECT_THROW(KeyCode("@1"), ScriptFault) << "none are held before the start";
    KeySettings[1][kKeyCode] = 81;
    KeySettings[45][kKeyCode] = "57";
    KeySettings[46][kKeyCode] = 186;
    KeySettings[47][kKeyCode] = 80;
    KeySettings[49][kKeyCode] = 8;
    KeySettings[50][kKeyCode] = 187;
    EXPECT_EQ(KeyCode("@1"), 81);
    EXPECT_EQ(KeyCode("@45"), 57);
    EXPECT_EQ(KeyCode("@shift1"), 186);
    EXPECT_EQ(KeyCode("@shift2"), 80);
    EXPECT_EQ(KeyCode("@undo"), 8);
    EXPECT_EQ(KeyCode("@save"), 187);
    for (const char* word : {"@0", "@46", "@", "@1x", "@Save"}) EXPECT_THROW(KeyCode(word), ScriptFault) << word;
}

TEST_F(DriveKeysTest, EveryPrintableCharacterHasAKey) {
    for (char character = ' '; character <= '~'; ++character) EXPECT_TRUE(KeyThatTypes(character)) << character;
    for (const char character : {'\t', '\x7f', '\xc3'}) EXPECT_FALSE(KeyThatTypes(character));
    const std::pair<char, int> keys[] = {{'a', 65},  {'A', 65},   {'3', 51}, {'#', 51}, {')', 48},
                                         {'"', 222}, {'\'', 222}, {' ', 32}, {'?', 191}};
    for (const auto& [character, code] : keys) EXPECT_EQ(KeyThatTypes(character), code) << character;
}
