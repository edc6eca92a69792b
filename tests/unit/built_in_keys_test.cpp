#include "keys/settings/key_settings.h"

#include <iterator>
#include <set>

#include "platform/user.h"
#include "session/start_up.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"

namespace {
// Three patches of letters, then function keys over digits.
constexpr int kCodes[] = {81, 87, 69,  65,  83,  68,  90,  88, 67, 82, 84,  89,  70,  71, 72, 86, 66,  78,  85,  73, 79, 74, 75,
                          76, 77, 188, 190, 112, 113, 114, 49, 50, 51, 115, 116, 117, 52, 53, 54, 118, 119, 120, 55, 56, 57};
constexpr int kShift = 16;
constexpr int kCtrl = 17;
constexpr int kBackspace = 8;

class BuiltInKeysTest : public SheetTest {
protected:
    BuiltInKeysTest() {
        Begin("10");
        KeySettingsLoaded = false;
        KeySettings[50][kKeyCode] = "";
        Played();
    }
};

TEST_F(BuiltInKeysTest, TheKeyOfASlotInBank0IsItsKeyInAllBanks) {
    ASSERT_EQ(std::size(kCodes), 45u);
    for (const int code : kCodes) Key(code);
    PressKey(kShift);
    for (const int code : kCodes) Key(code);
    PressKey(kCtrl);
    for (const int code : kCodes) Key(code);
    for (int slot = 1; slot <= kSlots; ++slot) EXPECT_EQ(Counts[slot][1], 1) << "slot " << slot;
}

TEST_F(BuiltInKeysTest, EachCodeGivesTheSlotOfItsPlaceInTheTable) {
    for (int slot = 1; slot <= kKeys; ++slot) EXPECT_EQ(BuiltInKeyNumber(kCodes[slot - 1]), slot);
}

TEST_F(BuiltInKeysTest, NoOtherKeyIsAKeyOfThePad) {
    std::set<int> known(std::begin(kCodes), std::end(kCodes));
    known.insert({kShift, kCtrl, kBackspace});
    for (int code = 0; code <= 300; ++code) {
        SampleUntouched = true;
        Key(code);
        EXPECT_EQ(!SampleUntouched, known.count(code) == 1) << "code " << code;
    }
}

TEST_F(BuiltInKeysTest, BackspaceUndoesAndSubtracts) {
    Key('Q');
    Key('Q');
    Key(kBackspace);
    EXPECT_EQ(Counts[1][1], 1);
    PressKey(kBackspace);
    Key('Q');
    ReleaseKey(kBackspace);
    EXPECT_EQ(Counts[1][1], 0);
    EXPECT_EQ(LastLines(1), Texts{"(Amend) 1: ---"});
}

TEST_F(BuiltInKeysTest, TheShiftsServeFromTheirFirstPress) {
    Shift1Code = kShift1;
    Shift2Code = kShift2;
    UndoKeyCode = kUndo;
    PressKey(kShift);
    EXPECT_EQ(ShiftLevel, 1);
    PressKey(kShift1);  // of the settings
    EXPECT_EQ(ShiftLevel, 1);
    EXPECT_EQ(frmMain.SSTab1.Tab(), 1);
}

TEST_F(BuiltInKeysTest, TheSaveKeyStaysThatOfTheSettings) {
    KeySettings[50][kKeyCode] = kSaveKey;
    AnswerDialog("/sheets/Mere.csv");
    Key(kSaveKey);
    EXPECT_EQ(SheetPath, "/sheets/Mere.csv");
}

TEST_F(BuiltInKeysTest, AWaveMissingAtALaterSheetLeavesTheSettingsInForce) {
    KeySettingsLoaded = true;
    files_.bytes.erase("/program/Sound files/Save.wav");
    InitialiseSheet();
    EXPECT_FALSE(SoundOn);
    EXPECT_TRUE(KeySettingsLoaded);
    PressKey(kShift1);
    KeyNumber(1);
    EXPECT_EQ(Counts[46][1], 1);
}

TEST_F(BuiltInKeysTest, SettingsMissingAtALaterSheetBringTheBuiltInKeys) {
    KeySettingsLoaded = true;
    files_.bytes.erase("/program/References/KeySetting.csv");
    frmMain.Show();
    InitialiseSheet();
    EXPECT_FALSE(KeySettingsLoaded);
}
}  // namespace
