#include "platform/qt/shown_text.h"

#include <gtest/gtest.h>

TEST(TextPlacesTest, LineBreakIsTwoCharactersAndOneUnit) {
    const std::string text = "a\r\nb\r\n\r\nc";
    const QString shown = Shown(text);
    EXPECT_EQ(shown, "a\nb\n\nc");
    EXPECT_EQ(Unshown(shown), text);
    EXPECT_EQ(CharactersBefore(shown, 2), 3);
    EXPECT_EQ(CharactersBefore(shown, 6), 9);
    EXPECT_EQ(UnitAfter(shown, 3), 2);
    EXPECT_EQ(UnitAfter(shown, 9), 6);
}

TEST(TextPlacesTest, CharacterOfTwoUnitsIsOneCharacter) {
    const QString shown = Shown("\xF0\x9F\x8C\xB2x\xC3\xA9");  // a tree, x, e with an accent
    EXPECT_EQ(shown.size(), 4);
    EXPECT_EQ(CharactersBefore(shown, 2), 1);
    EXPECT_EQ(CharactersBefore(shown, 4), 3);
    EXPECT_EQ(UnitAfter(shown, 1), 2);
    EXPECT_EQ(UnitAfter(shown, 3), 4);
}

TEST(TextPlacesTest, PlacesBeyondTheEndAreTheEnd) {
    const QString shown = Shown("ab");
    EXPECT_EQ(CharactersBefore(shown, 9), 2);
    EXPECT_EQ(UnitAfter(shown, 9), 2);
    EXPECT_EQ(UnitAfter(shown, 0), 0);
}
