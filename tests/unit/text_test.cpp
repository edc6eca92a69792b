#include "platform/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <locale>
#include <random>

#include "platform/failure.h"

namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

// Fifteen significant digits, as the C library prints them.
std::string FifteenDigits(double number) {
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.14e", number);
    return buffer;
}

template <class Number, class Bits>
Number RandomNumber(std::mt19937_64& random) {  // of any size: random bits, not a random value
    for (;;) {
        const Bits bits = static_cast<Bits>(random());
        Number number;
        std::memcpy(&number, &bits, sizeof number);
        if (std::isnormal(number)) return number;
    }
}

std::size_t SignificantDigits(const std::string& plain) {
    std::string digits;
    std::copy_if(plain.begin(), plain.end(), std::back_inserter(digits), [](char c) { return c >= '0' && c <= '9'; });
    const std::size_t first = digits.find_first_not_of('0');
    return first == digits.npos ? 0 : digits.find_last_not_of('0') - first + 1;
}

}  // namespace

TEST(ValTest, IsTheLeadingNumberOfAText) {
    const struct {
        const char* text;
        double number;
    } cases[] = {
        {"0", 0},
        {"12", 12},
        {"-12", -12},
        {"+3", 3},
        {"12.5", 12.5},
        {"12.", 12},
        {".5", 0.5},
        {"-.5", -0.5},
        {"007", 7},
        {"7 cf.", 7},
        {"7cf.", 7},
        {"  12", 12},
        {"\t12", 12},
        {" -3 ", -3},
        {"1E2", 100},
        {"1E5", 1e5},
        {"1e+2", 100},
        {"25e-1", 2.5},
        {"-.5e1x", -5},
        {"5.e1", 50},
        {"5 eggs", 5},
        {"5eggs", 5},
        {"5e", 5},
        {"5e+", 5},
        {"5e-x", 5},
        {"1.2.3", 1.2},
        {"1,5", 1},
        {"12 13", 12},
        {"1-2", 1},
        {"1e2e3", 100},
        {"3-", 3},
        {"0e99999", 0},
        {"100 (n=5)", 100},
        {"0.05", 0.05},
        {"-9999", -9999},
        {"0x1F", 0},
        {"1e2.5", 100},
        {"\"12\"", 0},
        {"12\r\n13", 12},
        {"999999999999999", 999999999999999.0},
        {"-99999999999999", -99999999999999.0},
    };
    for (const auto& [text, number] : cases) EXPECT_EQ(Val(text), number) << text;
}

TEST(ValTest, IsZeroWithoutALeadingNumber) {
    for (const char* text : {"",    " ",   "-",   "+",     ".",   "-.",   "+.",       ".e5", "e5",      "E5",          "--1",
                             "+-1", "- 1", "top", "cf. 7", "inf", "-inf", "INFINITY", "nan", "-nan(1)", "\xEF\xBC\x91"})
        EXPECT_EQ(Val(text), 0) << text;
}

TEST(ValTest, TakesTheLargestDoubleForWhatIsLarger) {
    EXPECT_EQ(Val("1.7976931348623157e308"), kLargest);
    EXPECT_EQ(Val("1.7976931348623157e307"), kLargest / 10);
    for (const std::string& text :
         {std::string("1.8e308"), std::string("1E400"), std::string("1e99999999999999999999"), std::string("0.001e400"),
          "1" + std::string(400, '0'), "1" + std::string(400, '0') + ".5e-5", "." + std::string(9, '0') + "1e999"}) {
        EXPECT_EQ(Val(text), kLargest) << text;
        EXPECT_EQ(Val("-" + text), -kLargest) << text;
    }
}

TEST(ValTest, TakesZeroForWhatIsTooSmall) {
    EXPECT_GT(Val("1e-300"), 0);
    for (const std::string& text : {std::string("1e-400"), std::string("-1e-400"), std::string("1e-99999999999999999999"),
                                    std::string("999e-400"), "0." + std::string(400, '0') + "1", "0." + std::string(400, '0') + "1e5"})
        EXPECT_EQ(Val(text), 0) << text;
}

TEST(ValTest, ReadsVeryLongDigitStrings) {
    EXPECT_EQ(Val(std::string(100000, '0') + "12"), 12);
    EXPECT_EQ(Val("0." + std::string(100, '3')), 1.0 / 3);
    EXPECT_EQ(Val("1" + std::string(400, '0') + "e-400"), 1);
    EXPECT_EQ(Val("0." + std::string(399, '0') + "1e400"), 1);
    EXPECT_EQ(Val(std::string(100000, '9')), kLargest);
}

TEST(ValTest, AgreesWithTheCLibrary) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::mt19937 random(seed);
        for (int round = 0; round < 5000; ++round) {
            std::string text;
            for (int length = static_cast<int>(random() % 9); length > 0; --length) text += " +-..0123456789eEc"[random() % 18];
            const double expected = std::clamp(std::strtod(text.c_str(), nullptr), -kLargest, kLargest);
            if (expected != 0 && std::abs(expected) < std::numeric_limits<double>::min()) continue;  // below it libraries differ
            ASSERT_EQ(Val(text), expected) << "'" << text << "' of seed " << seed;
        }
    }
}

TEST(AsNumberTest, TakesOnlyATextThatIsANumberFromEndToEnd) {
    EXPECT_EQ(AsNumber("12"), 12);
    EXPECT_EQ(AsNumber(" -.5 "), -0.5);
    EXPECT_EQ(AsNumber("+3."), 3);
    EXPECT_EQ(AsNumber("1E2"), 100);
    EXPECT_EQ(AsNumber("1e-400"), 0);
    for (const char* text :
         {"", " ", "-", ".", "e5", "7 cf.", "5e", "1 2", "1.2.3", "top", "inf", "nan", "0x1F", "12\"", "1E400", "-1E400"})
        EXPECT_EQ(AsNumber(text), std::nullopt) << text;
}

TEST(NumberTextTest, IsTheShortestTextInFifteenDigits) {
    const struct {
        double number;
        const char* text;
    } cases[] = {
        {0, "0"},
        {-0.0, "0"},
        {1, "1"},
        {-3, "-3"},
        {12.5, "12.5"},
        {0.05, "0.05"},
        {-0.25, "-0.25"},
        {0.1 + 0.2, "0.3"},
        {1.0 / 3, "0.333333333333333"},
        {-2.0 / 3, "-0.666666666666667"},
        {100.0 / 7, "14.2857142857143"},
        {98.0392, "98.0392"},
        {0.000001, "0.000001"},
        {1.5e-10, "0.00000000015"},
        {999999999999999.0, "999999999999999"},
        {-999999999999999.0, "-999999999999999"},
        {1000000000000000.0, "1000000000000000"},
        {1234567890123456.0, "1234567890123460"},
        {9999999999999996.0, "10000000000000000"},
        {99999999999999.5, "99999999999999.5"},
        {999999999999999.5, "1000000000000000"},
        {123456789012.125, "123456789012.125"},
        {0.99999999999999989, "1"},
        {1e22, "10000000000000000000000"},
        {-1.5e20, "-150000000000000000000"},
    };
    for (const auto& [number, text] : cases) EXPECT_EQ(NumberText(number), text);
}

TEST(NumberTextTest, IsPlainHoweverLargeOrSmallTheNumber) {
    EXPECT_EQ(NumberText(1e300), "1" + std::string(300, '0'));
    EXPECT_EQ(NumberText(-2.5e-300), "-0." + std::string(299, '0') + "25");
    EXPECT_EQ(NumberText(kLargest), "179769313486232" + std::string(294, '0'));
}

TEST(NumberTextTest, ReadsBackAsTheSameFifteenDigits) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::mt19937_64 random(seed);
        for (int round = 0; round < 200; ++round) {
            const double any_size = RandomNumber<double, std::uint64_t>(random);
            const double cell_size = static_cast<double>(static_cast<std::int64_t>(random() % 2000000) - 1000000) / (1 + random() % 1000);
            for (const double number : {any_size, cell_size}) {
                const std::string text = NumberText(number);
                ASSERT_EQ(FifteenDigits(std::strtod(text.c_str(), nullptr)), FifteenDigits(number)) << text << " of seed " << seed;
                ASSERT_EQ(text.find_first_of("eE+"), text.npos) << text << " of seed " << seed;
                ASSERT_LE(SignificantDigits(text), 15u) << text << " of seed " << seed;
                ASSERT_FALSE(text.find('.') != text.npos && (text.back() == '0' || text.back() == '.')) << text << " of seed " << seed;
                ASSERT_EQ(NumberText(Val(text)), text) << "seed " << seed;
            }
        }
    }
}

TEST(NumberTextTest, KeepsEveryDecimalOfFourPlaces) {
    for (int part = 0; part <= 1000000; part += 7) {
        char expected[20];
        std::snprintf(expected, sizeof expected, "%d.%04d", part / 10000, part % 10000);
        std::string text = expected;
        while (text.back() == '0') text.pop_back();
        if (text.back() == '.') text.pop_back();
        ASSERT_EQ(NumberText(part / 10000.0), text);
    }
}

TEST(NumberTextTest, FailsForWhatIsNoFiniteNumber) {
    EXPECT_THROW(NumberText(std::numeric_limits<double>::infinity()), Failure);
    EXPECT_THROW(NumberText(std::numeric_limits<double>::quiet_NaN()), Failure);
    EXPECT_THROW(FloatText(-std::numeric_limits<float>::infinity()), Failure);
}

TEST(NumberTextTest, HasAPeriodWhateverTheLocale) {
    struct Comma : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Comma));
    EXPECT_EQ(NumberText(1234.5), "1234.5");
    EXPECT_EQ(FloatText(1234.5F), "1234.5");
    EXPECT_EQ(Val("1234.5"), 1234.5);
    std::locale::global(before);
}

TEST(FloatTextTest, IsTheShortestTextOfAFloat) {
    EXPECT_EQ(FloatText(0.1F), "0.1");
    EXPECT_EQ(FloatText(-0.0F), "0");
    EXPECT_EQ(FloatText(12.5F), "12.5");
    EXPECT_EQ(FloatText(100.0F), "100");
    EXPECT_EQ(FloatText(1.0F / 3), "0.33333334");
    EXPECT_EQ(FloatText(16777216.0F), "16777216");
    EXPECT_EQ(FloatText(-1e20F), "-100000000000000000000");
    EXPECT_EQ(FloatText(1e-20F), "0.00000000000000000001");
}

TEST(FloatTextTest, ReadsBackAsTheSameFloat) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::mt19937_64 random(seed);
        for (int round = 0; round < 500; ++round) {
            const float number = RandomNumber<float, std::uint32_t>(random);
            const std::string text = FloatText(number);
            ASSERT_EQ(std::strtof(text.c_str(), nullptr), number) << text << " of seed " << seed;
            ASSERT_EQ(text.find_first_of("eE+"), text.npos) << text << " of seed " << seed;
            ASSERT_LE(SignificantDigits(text), 9u) << text << " of seed " << seed;
        }
    }
}

TEST(IsPlainNumberTest, HoldsForTheTextOfItsOwnValue) {
    for (const char* text : {"0", "12", "-3", "12.5", "0.05", "-0.5", "999999999999999", "1000000000000000", "0.333333333333333"})
        EXPECT_TRUE(IsPlainNumber(text)) << text;
}

TEST(IsPlainNumberTest, FailsForEveryOtherText) {
    for (const char* text : {"",
                             "-",
                             "-0",
                             "12.50",
                             "12.",
                             "007",
                             "+3",
                             " 3",
                             "3 ",
                             ".5",
                             "-.5",
                             "1E2",
                             "1e-400",
                             "1E400",
                             "7 cf.",
                             "top",
                             "Key index",
                             "1234567890123456",
                             "0.3333333333333333",
                             "inf",
                             "nan"})
        EXPECT_FALSE(IsPlainNumber(text)) << text;
}

TEST(CharacterTest, CountsCharactersAndNotBytes) {
    EXPECT_EQ(Length(""), 0u);
    EXPECT_EQ(Length("Mere"), 4u);
    EXPECT_EQ(Length("Bétula"), 6u);
    EXPECT_EQ(Length("a\xF0\x9F\x8C\xB2z"), 3u);
}

TEST(CharacterTest, LeftAndRightAreTheWholeOfAShorterText) {
    EXPECT_EQ(Left("Bétula", 0), "");
    EXPECT_EQ(Left("Bétula", 2), "Bé");
    EXPECT_EQ(Left("Bétula", 6), "Bétula");
    EXPECT_EQ(Left("Bétula", 7), "Bétula");
    EXPECT_EQ(Right("Bétulé", 0), "");
    EXPECT_EQ(Right("Bétulé", 1), "é");
    EXPECT_EQ(Right("Bétulé", 6), "Bétulé");
    EXPECT_EQ(Right("Bétulé", 7), "Bétulé");
    EXPECT_EQ(Right("10:11:12", 8), "10:11:12");
}

TEST(CharacterTest, MidIsWhatThereIsOfIt) {
    EXPECT_EQ(Mid("14/11/2026", 4, 2), "11");
    EXPECT_EQ(Mid("Bétula", 1, 3), "Bét");
    EXPECT_EQ(Mid("Bétula", 3, 1), "t");
    EXPECT_EQ(Mid("Bétula", 6, 5), "a");
    EXPECT_EQ(Mid("Bétula", 7, 1), "");
    EXPECT_EQ(Mid("Bétula", 100, 1), "");
    EXPECT_EQ(Mid("Bétula", 2, 0), "");
    EXPECT_EQ(Mid("Bétula", 2, std::string::npos), "étula");
}

TEST(CharacterTest, ByteOffsetIsWhereTheNextCharacterBegins) {
    EXPECT_EQ(ByteOffset("Bétula", 0), 0u);
    EXPECT_EQ(ByteOffset("Bétula", 1), 1u);
    EXPECT_EQ(ByteOffset("Bétula", 2), 3u);
    EXPECT_EQ(ByteOffset("Bétula", 6), 7u);
    EXPECT_EQ(ByteOffset("Bétula", 7), 7u);
    EXPECT_EQ(ByteOffset("", 1), 0u);
}

TEST(CharacterTest, AgreesWithATextOfWideCharacters) {
    const std::string characters[] = {"a", "Z", "é", "€", "\xF0\x9F\x8C\xB2"};
    for (unsigned seed = 1; seed <= 50; ++seed) {
        std::mt19937 random(seed);
        std::u32string wide;  // the index of each character
        std::string text;
        for (std::size_t length = random() % 8; length > 0; --length) {
            wide += static_cast<char32_t>(random() % 5);
            text += characters[wide.back()];
        }
        const auto narrow = [&](const std::u32string& part) {
            std::string joined;
            for (const char32_t index : part) joined += characters[index];
            return joined;
        };
        ASSERT_EQ(Length(text), wide.size()) << "seed " << seed;
        for (std::size_t count = 0; count < 10; ++count) {
            ASSERT_EQ(Left(text, count), narrow(wide.substr(0, count))) << "seed " << seed;
            ASSERT_EQ(Right(text, count), narrow(wide.substr(wide.size() - std::min(count, wide.size())))) << "seed " << seed;
            ASSERT_EQ(Mid(text, count + 1, 2), narrow(wide.substr(std::min(count, wide.size()), 2))) << "seed " << seed;
        }
    }
}

TEST(CharacterTest, OneTrailingColonIsDropped) {
    EXPECT_EQ(WithoutTrailingColon("Depth of core:"), "Depth of core");
    EXPECT_EQ(WithoutTrailingColon("Depth::"), "Depth:");
    EXPECT_EQ(WithoutTrailingColon("a:b"), "a:b");
    EXPECT_EQ(WithoutTrailingColon(":"), "");
    EXPECT_EQ(WithoutTrailingColon(""), "");
}
