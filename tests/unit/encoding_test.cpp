#include "platform/encoding.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>

#include "platform/text.h"

namespace {

std::string Utf8(char32_t character) {  // the plain way: as many bytes as the value needs
    if (character < 0x80) return {static_cast<char>(character)};
    std::string tail;
    int bits = 6;
    for (; bits >= 0 && character >= (char32_t{1} << bits); --bits, character >>= 6)
        tail.insert(0, 1, static_cast<char>(0x80 | (character & 0x3F)));
    return static_cast<char>(0xFF << (bits + 1) | character) + tail;
}

std::string Hex(const std::string& bytes) {
    std::string hex;
    char pair[4];
    for (const char byte : bytes) {
        std::snprintf(pair, sizeof pair, "%02X ", static_cast<unsigned char>(byte));
        hex += pair;
    }
    return hex;
}

}  // namespace

TEST(EncodingTest, AsciiIsTheSameInBoth) {
    std::string ascii;
    for (char c = 0; c < 0x7F; ++c) ascii += c;
    ascii += '\x7F';
    EXPECT_EQ(EncodeFile(ascii), ascii);
    EXPECT_EQ(DecodeFile(ascii), ascii);
    EXPECT_EQ(EncodeFile(""), "");
    EXPECT_TRUE(IsAscii(ascii));
    EXPECT_TRUE(IsAscii(""));
    EXPECT_EQ(DecodeFile(""), "");
}

TEST(EncodingTest, EveryByteOfWindows1252HasItsCharacter) {
    const struct {
        unsigned char byte;
        char32_t character;
    } cases[] = {
        {0x80, U'€'}, {0x82, U'‚'}, {0x83, U'ƒ'}, {0x84, U'„'}, {0x85, U'…'}, {0x86, U'†'}, {0x87, U'‡'}, {0x88, U'ˆ'}, {0x89, U'‰'},
        {0x8A, U'Š'}, {0x8B, U'‹'}, {0x8C, U'Œ'}, {0x8E, U'Ž'}, {0x91, U'‘'}, {0x92, U'’'}, {0x93, U'“'}, {0x94, U'”'}, {0x95, U'•'},
        {0x96, U'–'}, {0x97, U'—'}, {0x98, U'˜'}, {0x99, U'™'}, {0x9A, U'š'}, {0x9B, U'›'}, {0x9C, U'œ'}, {0x9E, U'ž'}, {0x9F, U'Ÿ'},
        {0x81, 0x81}, {0x8D, 0x8D}, {0x8F, 0x8F}, {0x90, 0x90}, {0x9D, 0x9D}, {0xA0, 0xA0}, {0xE9, U'é'}, {0xFF, U'ÿ'},
    };
    for (const auto& [byte, character] : cases) {
        const std::string bytes(1, static_cast<char>(byte));
        EXPECT_EQ(DecodeFile(bytes), Utf8(character)) << Hex(bytes);
        EXPECT_EQ(EncodeFile(Utf8(character)), bytes) << Hex(bytes);
        EXPECT_EQ(IsAscii("Pinus " + bytes), character < 0x80) << Hex(bytes);
    }
}

TEST(EncodingTest, AllBytesTogetherComeBackTheSame) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    const std::string text = DecodeFile(bytes);
    EXPECT_EQ(Length(text), 256u);
    EXPECT_EQ(EncodeFile(text), bytes);
}

TEST(EncodingTest, OneCharacterOutsideWindows1252KeepsTheWholeTextInUtf8) {
    for (const std::string outside : {"β", "č", "→", "\xC2\x80", "Ā", "\xEF\xBF\xBD", "\xF0\x9F\x8C\xB2"}) {
        const std::string text = "Bétula " + outside + " é";
        EXPECT_EQ(EncodeFile(text), text) << outside;
        EXPECT_EQ(DecodeFile(text), text) << outside;
    }
}

TEST(EncodingTest, ATextWhoseBytesWouldBeTakenForUtf8StaysInUtf8) {
    for (const std::string text : {"Ã©", "â‚¬", "a Â° b", "ï»¿", "ï»¿é"}) {
        EXPECT_EQ(EncodeFile(text), text);
        EXPECT_EQ(DecodeFile(EncodeFile(text)), text);
    }
    EXPECT_EQ(EncodeFile("Ã© é"), "\xC3\xA9 \xE9");  // the last byte tells
}

TEST(EncodingTest, UtfIsKnownByItsOneRightForm) {
    for (const char32_t character : {0x80, 0x7FF, 0x800, 0xD7FF, 0xE000, 0xFFFD, 0xFFFF, 0x10000, 0x10FFFF})
        EXPECT_EQ(DecodeFile(Utf8(character)), Utf8(character)) << Hex(Utf8(character));
    const std::string malformed[] = {
        "\x80",
        "\xBF",
        "\xC3",
        "\xC3(",
        "\xC3\xC3",
        "\xC0\x80",
        "\xC1\xBF",
        "\xE0\x80\x80",
        "\xE0\x9F\xBF",
        "\xE2\x82",
        "\xE2\x82x",
        "\xED\xA0\x80",
        "\xED\xBF\xBF",
        "\xF0\x80\x80\x80",
        "\xF0\x8F\xBF\xBF",
        "\xF0\x9F\x8C",
        "\xF4\x90\x80\x80",
        "\xF5\x80\x80\x80",
        "\xF8\x88\x80\x80\x80",
        "\xFE",
        "\xFF",
        "\xC3\xA9\xE9",
    };
    for (const std::string& bytes : malformed) {
        const std::string text = DecodeFile(bytes);
        EXPECT_EQ(Length(text), bytes.size()) << Hex(bytes);
        EXPECT_EQ(EncodeFile(text), bytes) << Hex(bytes);
    }
}

TEST(EncodingTest, NothingIsReadBeyondTheEnd) {
    const std::string_view euro = "\xE2\x82\xAC";
    EXPECT_EQ(DecodeFile(euro), "€");
    EXPECT_EQ(DecodeFile(euro.substr(0, 2)), "â‚");
    EXPECT_EQ(DecodeFile(euro.substr(0, 1)), "â");
    EXPECT_EQ(EncodeFile(euro.substr(0, 2)), "\xE2\x82");
}

TEST(EncodingTest, AMarkAtTheHeadIsPassedOver) {
    const std::string mark = "\xEF\xBB\xBF";
    EXPECT_EQ(DecodeFile(mark), "");
    EXPECT_EQ(DecodeFile(mark + "Pinus"), "Pinus");
    EXPECT_EQ(DecodeFile(mark + "Bétula"), "Bétula");
    EXPECT_EQ(DecodeFile(mark + "B\xE9tula"), "Bétula");
    EXPECT_EQ(DecodeFile(mark + mark), mark);
    EXPECT_EQ(DecodeFile("a" + mark), "a" + mark);
    EXPECT_EQ(DecodeFile("\xEF\xBB"), "ï»");
}

TEST(EncodingTest, ABrokenTextIsWrittenAsItIs) {
    EXPECT_EQ(EncodeFile("B\xE9tula é"), "B\xE9tula é");
}

TEST(EncodingTest, FindsACharacterWhereverItStands) {
    for (std::size_t place = 0; place < 40; ++place) {
        std::string text(40, 'a');
        text.insert(place, "é");
        std::string bytes(40, 'a');
        bytes.insert(place, "\xE9");
        ASSERT_EQ(EncodeFile(text), bytes) << place;
        ASSERT_EQ(DecodeFile(bytes), text) << place;
        ASSERT_EQ(DecodeFile(text), text) << place;
    }
}

TEST(EncodingTest, NoTextIsLost) {
    for (unsigned seed = 1; seed <= 50; ++seed) {
        std::mt19937 random(seed);
        const char32_t end = seed % 2 == 0 ? 0x100 : 0x3000;  // of every second seed nearly all is in Windows-1252
        for (int round = 0; round < 200; ++round) {
            std::string text;
            for (std::size_t length = random() % 6; length > 0; --length) text += Utf8(random() % end);
            ASSERT_EQ(DecodeFile(EncodeFile(text)), text) << Hex(text) << "of seed " << seed;
        }
    }
}

TEST(EncodingTest, AnyBytesAreReadAsAText) {
    for (unsigned seed = 1; seed <= 50; ++seed) {
        std::mt19937 random(seed);
        for (int round = 0; round < 200; ++round) {
            std::string bytes;
            for (std::size_t length = random() % 6; length > 0; --length)
                bytes += static_cast<char>(random() % 4 == 0 ? 'a' : 0x80 + random() % 0x80);
            const std::string text = DecodeFile(bytes);
            ASSERT_EQ(DecodeFile(text), text) << Hex(bytes) << "of seed " << seed;  // right UTF-8, or it would be taken for bytes
        }
    }
}
