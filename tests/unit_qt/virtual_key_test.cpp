#include "platform/qt/virtual_key.h"

#include <gtest/gtest.h>

#include <set>

#if !defined(Q_OS_WIN) && !defined(Q_OS_MACOS)

namespace {
// One key of a layout under X11 or Wayland: its place, the symbol it types and the key that Qt makes of it.
struct Key {
    quint32 scan;
    quint32 symbol;
    int key;
    int code;
};

int CodeOf(const Key& key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return VirtualKey(QKeyEvent(QEvent::KeyPress, key.key, modifiers, key.scan, key.symbol, 0)).value_or(0);
}

constexpr quint32 kUnicode = 0x01000000;
}  // namespace

TEST(VirtualKeyTest, LettersGoByWhatTheyType) {
    for (const Key& key :
         {Key{24, 'q', Qt::Key_Q, 'Q'}, Key{24, 'a', Qt::Key_A, 'A'} /* AZERTY */, Key{52, 'y', Qt::Key_Y, 'Y'} /* QWERTZ */,
          Key{26, 'E', Qt::Key_E, 'E'}, Key{47, 'm', Qt::Key_M, 'M'}, Key{33, 'l', Qt::Key_L, 'L'} /* Dvorak */})
        EXPECT_EQ(CodeOf(key), key.code) << key.symbol;
}

TEST(VirtualKeyTest, DigitRowGoesByPlaceWhateverItTypes) {
    for (const Key& key : {Key{10, '1', Qt::Key_1, '1'}, Key{10, '!', Qt::Key_Exclam, '1'}, Key{10, '&', Qt::Key_Ampersand, '1'},
                           Key{11, 0xe9, Qt::Key_Eacute, '2'}, Key{12, '"', Qt::Key_QuoteDbl, '3'}, Key{19, '0', Qt::Key_0, '0'},
                           Key{19, 0xe0, Qt::Key_Agrave, '0'}})
        EXPECT_EQ(CodeOf(key), key.code) << key.symbol;
}

TEST(VirtualKeyTest, PunctuationGoesByItsUsPlace) {
    for (const Key& key :
         {Key{47, ';', Qt::Key_Semicolon, 186}, Key{47, ':', Qt::Key_Colon, 186}, Key{47, 0xf6, Qt::Key_Odiaeresis, 186},
          Key{21, '=', Qt::Key_Equal, 187}, Key{59, ',', Qt::Key_Comma, 188}, Key{20, '-', Qt::Key_Minus, 189},
          Key{20, ')', Qt::Key_ParenRight, 189}, Key{60, '.', Qt::Key_Period, 190}, Key{61, '/', Qt::Key_Slash, 191},
          Key{49, '`', Qt::Key_QuoteLeft, 192}, Key{34, '[', Qt::Key_BracketLeft, 219}, Key{34, 0xfe52, Qt::Key_Dead_Circumflex, 219},
          Key{51, '\\', Qt::Key_Backslash, 220}, Key{35, ']', Qt::Key_BracketRight, 221}, Key{48, '\'', Qt::Key_Apostrophe, 222},
          Key{94, '<', Qt::Key_Less, 226}})
        EXPECT_EQ(CodeOf(key), key.code) << key.symbol;
}

TEST(VirtualKeyTest, LetterPlaceOfAnotherScriptHasItsUsLetter) {
    for (const Key& key : {Key{24, 0x6ca, 0x419, 'Q'} /* Cyrillic, old symbol */, Key{24, kUnicode + 0x439, 0x419, 'Q'},
                           Key{38, 0x7e1, 0x391, 'A'} /* Greek */, Key{26, 0xcf7, 0x5e7, 'E'} /* Hebrew */})
        EXPECT_EQ(CodeOf(key), key.code) << key.symbol;
}

TEST(VirtualKeyTest, LetterPlaceWithoutLetterHasACodeOfItsOwn) {
    EXPECT_EQ(CodeOf({24, '\'', Qt::Key_Apostrophe, 0}), 193 + 'Q' - 'A');  // Dvorak
    EXPECT_EQ(CodeOf({58, ',', Qt::Key_Comma, 0}), 193 + 'M' - 'A');        // AZERTY
    EXPECT_EQ(CodeOf({24, ';', Qt::Key_Semicolon, 0}), 193 + 'Q' - 'A');    // Greek
    EXPECT_EQ(CodeOf({31, 0x2b9, Qt::Key_I, 0}), 193 + 'I' - 'A');          // Turkish: the dotless letter beside the dotted one
    EXPECT_EQ(CodeOf({25, 0xfe51, Qt::Key_Dead_Acute, 0}), 193 + 'W' - 'A');
}

TEST(VirtualKeyTest, ControlChordOfAnotherScriptKeepsItsPlace) {
    EXPECT_EQ(CodeOf({24, 0x6ca, Qt::Key_A, 0}, Qt::ControlModifier), 'Q');  // Qt says the letter of another layout then
}

TEST(VirtualKeyTest, NamedKeysGoByWhatTheyAre) {
    for (const Key& key : {Key{50, 0xffe1, Qt::Key_Shift, 16},    Key{62, 0xffe2, Qt::Key_Shift, 16},
                           Key{37, 0xffe3, Qt::Key_Control, 17},  Key{66, 0xffe3, Qt::Key_Control, 17} /* Caps Lock made Ctrl */,
                           Key{64, 0xffe9, Qt::Key_Alt, 18},      Key{64, 0xffe7, Qt::Key_Meta, 18} /* Alt with Shift held */,
                           Key{108, 0xfe03, Qt::Key_AltGr, 18},   Key{133, 0xffeb, Qt::Key_Super_L, 91},
                           Key{134, 0xffec, Qt::Key_Meta, 92},    Key{22, 0xff08, Qt::Key_Backspace, 8},
                           Key{23, 0xff09, Qt::Key_Tab, 9},       Key{23, 0xfe20, Qt::Key_Backtab, 9},
                           Key{36, 0xff0d, Qt::Key_Return, 13},   Key{104, 0xff8d, Qt::Key_Enter, 13},
                           Key{9, 0xff1b, Qt::Key_Escape, 27},    Key{65, ' ', Qt::Key_Space, 32},
                           Key{112, 0xff55, Qt::Key_PageUp, 33},  Key{113, 0xff51, Qt::Key_Left, 37},
                           Key{111, 0xff52, Qt::Key_Up, 38},      Key{114, 0xff53, Qt::Key_Right, 39},
                           Key{116, 0xff54, Qt::Key_Down, 40},    Key{118, 0xff63, Qt::Key_Insert, 45},
                           Key{119, 0xffff, Qt::Key_Delete, 46},  Key{127, 0xff13, Qt::Key_Pause, 19},
                           Key{77, 0xff7f, Qt::Key_NumLock, 144}, Key{67, 0xffbe, Qt::Key_F1, 112},
                           Key{96, 0xffc9, Qt::Key_F12, 123},     Key{198, 0xffd5, Qt::Key_F24, 135}})
        EXPECT_EQ(CodeOf(key), key.code) << key.symbol;
}

TEST(VirtualKeyTest, KeypadDigitsHaveTheirOwnCodesAndAreEditingKeysWithoutNumLock) {
    EXPECT_EQ(CodeOf({87, 0xffb1, Qt::Key_1, 0}, Qt::KeypadModifier), 97);
    EXPECT_EQ(CodeOf({87, 0xff9c, Qt::Key_End, 0}, Qt::KeypadModifier), 35);
    EXPECT_EQ(CodeOf({90, 0xffb0, Qt::Key_0, 0}, Qt::KeypadModifier), 96);
    EXPECT_EQ(CodeOf({84, 0xff9d, Qt::Key_Clear, 0}, Qt::KeypadModifier), 12);
    EXPECT_EQ(CodeOf({63, 0xffaa, Qt::Key_Asterisk, 0}, Qt::KeypadModifier), 106);
    EXPECT_EQ(CodeOf({86, 0xffab, Qt::Key_Plus, 0}, Qt::KeypadModifier), 107);
    EXPECT_EQ(CodeOf({82, 0xffad, Qt::Key_Minus, 0}, Qt::KeypadModifier), 109);
    EXPECT_EQ(CodeOf({91, 0xffac, Qt::Key_Comma, 0}, Qt::KeypadModifier), 110);  // a German keypad
    EXPECT_EQ(CodeOf({106, 0xffaf, Qt::Key_Slash, 0}, Qt::KeypadModifier), 111);
    EXPECT_EQ(CodeOf({104, 0xff8d, Qt::Key_Enter, 0}, Qt::KeypadModifier), 13);
}

TEST(VirtualKeyTest, NoTwoPlacesShareACodeOnAnyLayout) {
    struct Layout {
        const char* name;
        const char* rows[4];  // what the keys type without Shift, from the place 10, 24, 38 and 52 on; '?': a dead key
    };
    static constexpr Layout kLayouts[] = {
        {"QWERTY", {"1234567890-=", "qwertyuiop[]", "asdfghjkl;'`", "zxcvbnm,./"}},
        {"QWERTZ", {"1234567890\xdf?", "qwertzuiop\xfc+", "asdfghjkl\xf6\xe4?", "yxcvbnm,.-"}},
        {"AZERTY", {"&\xe9\"'(-\xe8_\xe7\xe0)=", "azertyuiop?$", "qsdfghjklm\xf9\xb2", "wxcvbn,;:!"}},
        {"Dvorak", {"1234567890[]", "',.pyfgcrl/=", "aoeuidhtns-`", ";qjkxbmwvz"}},
    };
    static constexpr quint32 kFirst[] = {10, 24, 38, 52};
    for (const Layout& layout : kLayouts) {
        std::set<int> codes;
        int keys = 0;
        for (int row = 0; row < 4; ++row)
            for (quint32 place = 0; layout.rows[row][place] != '\0'; ++place, ++keys) {
                const quint32 typed = static_cast<unsigned char>(layout.rows[row][place]);
                const quint32 symbol = typed == '?' ? 0xfe50 : typed;
                const quint32 scan = row == 3 && place == 10 ? 51 : kFirst[row] + place;
                codes.insert(CodeOf({scan, symbol, static_cast<int>(QChar::toUpper(symbol)), 0}));
            }
        EXPECT_EQ(static_cast<int>(codes.size()), keys) << layout.name;
        EXPECT_FALSE(codes.contains(0)) << layout.name;
    }
}

TEST(VirtualKeyTest, KeyWithoutAPlaceGoesByItsUsCharacter) {
    for (const Key& key :
         {Key{0, 0, Qt::Key_A, 'A'}, Key{0, 0, Qt::Key_5, '5'}, Key{0, 0, Qt::Key_Percent, '5'}, Key{0, 0, Qt::Key_Semicolon, 186},
          Key{0, 0, Qt::Key_QuoteDbl, 222}, Key{0, 0, Qt::Key_F5, 116}, Key{0, 0, Qt::Key_Eacute, 0}})
        EXPECT_EQ(CodeOf(key), key.code) << key.key;
}

#endif

TEST(VirtualKeyTest, MadeEventBearsEveryCode) {
    for (int code = 0; code <= 255; ++code)
        for (const KeyActs acts : {KeyActs::No, KeyActs::Yes}) {
            const QKeyEvent event = MadeKeyEvent(QEvent::KeyRelease, code, "x", acts);
            ASSERT_EQ(VirtualKey(event), code);
            ASSERT_EQ(event.text(), "x");
        }
}

TEST(VirtualKeyTest, MadeEventThatActsIsItsKey) {
    const auto key_of = [](int code) { return MadeKeyEvent(QEvent::KeyPress, code, "", KeyActs::Yes).key(); };
    EXPECT_EQ(key_of(8), Qt::Key_Backspace);
    EXPECT_EQ(key_of(9), Qt::Key_Tab);
    EXPECT_EQ(key_of(13), Qt::Key_Return);
    EXPECT_EQ(key_of(46), Qt::Key_Delete);
    EXPECT_EQ(key_of(112), Qt::Key_F1);
    EXPECT_EQ(key_of('Q'), Qt::Key_Q);
    EXPECT_EQ(MadeKeyEvent(QEvent::KeyPress, 9, "", KeyActs::No).key(), Qt::Key_unknown);
}
