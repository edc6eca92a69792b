#include <gtest/gtest.h>

#include "drive/key_code.h"
#include "drive/script.h"
#include "drive/us_keyboard.h"
#include "unit/program_test.h"

using drive::KeyCode;
using drive::KeyThatTypes;
using drive::ScriptFault;

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
    KeySettings[1][1] = 81;
    KeySettings[45][1] = "57";
    KeySettings[46][1] = 186;
    KeySettings[47][1] = 80;
    KeySettings[49][1] = 8;
    KeySettings[50][1] = 187;
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
