// What the keys of a country's keyboard type, and whether the manual's table of keyboards says the same.
#include "platform/qt/qt_keyboard.h"

#ifdef MARLBROOK_XKB
#include <gtest/gtest.h>

#include <fstream>

namespace {
struct Layout {
    const char* row;  // its first cell in the table
    const char* layout;
    const char* variant;
};
constexpr Layout kLayouts[] = {
    {"QWERTY, American", "us", ""}, {"QWERTY, British", "gb", ""}, {"QWERTY, Spanish", "es", ""}, {"QWERTZ, German", "de", ""},
    {"AZERTY, French", "fr", ""},   {"Dvorak", "us", "dvorak"},    {"Russian", "ru", ""},
};
constexpr int kShift1 = 186, kShift2 = 'P', kSave = 187;  // as installed

std::map<int, std::string> Characters(const Layout& wanted) {
    const XkbPointer<xkb_context> context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    const xkb_rule_names names = {"evdev", "pc105", wanted.layout, wanted.variant, ""};
    Keymap keymap;
    keymap.keys.reset(xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
    return CharactersOf(keymap);
}

std::string Cell(const std::map<int, std::string>& characters, int code) {
    const auto found = characters.find(code);
    return found == characters.end() ? "none" : "`" + found->second + "`";
}

std::string ManualLine(const std::string& row) {
    std::ifstream page(SOURCE_FOLDER "/docs/manual/key_settings.md");
    std::string line;
    while (std::getline(page, line))
        if (line.starts_with("| " + row + " |")) return line;
    return "";
}

TEST(KeymapTest, TheManualTellsTheFunctionalKeysOfEachKeyboard) {
    for (const Layout& layout : kLayouts) {
        const auto characters = Characters(layout);
        EXPECT_EQ(ManualLine(layout.row), std::string("| ") + layout.row + " | " + Cell(characters, kShift1) + " | " +
                                              Cell(characters, kShift2) + " | `BkSp` | " + Cell(characters, kSave) + " |");
    }
}

TEST(KeymapTest, AKeyThatTypesNothingIsLeftOut) {
    const auto characters = Characters(kLayouts[0]);
    for (const int code : {8, 13, 16, 17, 27, 32, 37, 112}) EXPECT_FALSE(characters.contains(code)) << code;
    EXPECT_EQ(characters.at('Q'), "q");
    EXPECT_EQ(characters.at('1'), "1");
}

TEST(KeymapTest, WithoutAKeymapNothingIsKnown) {
    EXPECT_TRUE(CharactersOf({}).empty());
}
}  // namespace
#endif
