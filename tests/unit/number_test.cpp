#include "platform/number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "platform/failure.h"
#include "platform/text.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

template <class Conversion>
std::string WordOf(Conversion conversion) {
    try {
        conversion();
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "no failure";
}

}  // namespace

TEST(NumberTest, IntegerAndLongRoundHalfToEven) {
    const struct {
        double number;
        int whole;
    } cases[] = {{0, 0},    {0.49, 0},  {0.5, 0},   {0.51, 1},  {1.5, 2},      {2.5, 2}, {3.5, 4},
                 {-0.5, 0}, {-1.5, -2}, {-2.5, -2}, {16.5, 16}, {-16.51, -17}, {12, 12}, {-9999, -9999}};
    for (const auto& [number, whole] : cases) {
        EXPECT_EQ(ToInt16(number), whole) << number;
        EXPECT_EQ(ToInt32(number), whole) << number;
    }
}

TEST(NumberTest, IntegerEndsAtSixteenBits) {
    EXPECT_EQ(ToInt16(32767), 32767);
    EXPECT_EQ(ToInt16(32767.49), 32767);
    EXPECT_EQ(ToInt16(-32768), -32768);
    EXPECT_EQ(ToInt16(-32768.5), -32768);  // its even neighbour
    for (const double number : {32767.5, 32768.0, -32768.51, -32769.0, 1e300, kInfinity, -kInfinity, kNoNumber})
        EXPECT_EQ(WordOf([&] { ToInt16(number); }), kOverflow) << number;
}

TEST(NumberTest, LongEndsAtThirtyTwoBits) {
    EXPECT_EQ(ToInt32(2147483647), 2147483647);
    EXPECT_EQ(ToInt32(2147483647.49), 2147483647);
    EXPECT_EQ(ToInt32(-2147483648.0), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(ToInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    for (const double number : {2147483647.5, 2147483648.0, -2147483648.51, -1e300, kInfinity, -kInfinity, kNoNumber})
        EXPECT_EQ(WordOf([&] { ToInt32(number); }), kOverflow) << number;
}

TEST(NumberTest, AnExponentTooLargeForANumberOverflowsAWholeNumber) {
    EXPECT_EQ(WordOf([] { ToInt16(Val("1E400")); }), kOverflow);
    EXPECT_EQ(WordOf([] { ToInt32(Val("-1E400")); }), kOverflow);
    EXPECT_EQ(ToInt32(Val("1E-400")), 0);
}

TEST(RoundHalfEvenTest, KeepsSoManyDecimals) {
    const struct {
        double number;
        int decimals;
        double rounded;
    } cases[] = {
        {2.5, 0, 2},
        {3.5, 0, 4},
        {-2.5, 0, -2},
        {0.25, 1, 0.2},
        {0.75, 1, 0.8},
        {-0.25, 1, -0.2},
        {0.125, 2, 0.12},
        {0.375, 2, 0.38},
        {2.03125, 4, 2.0312},
        {2.09375, 4, 2.0938},
        {98.03921568, 4, 98.0392},
        {100.0 / 3, 1, 33.3},
        {200.0 / 3, 4, 66.6667},
        {0.00004, 4, 0},
        {0.00006, 4, 0.0001},
        {-12.34, 5, -12.34},
        {0.1 + 0.2, 15, 0.3},
        {9999, 4, 9999},
    };
    for (const auto& [number, decimals, rounded] : cases)
        EXPECT_EQ(RoundHalfEven(number, decimals), rounded) << number << " to " << decimals;
}

TEST(RoundHalfEvenTest, LeavesANumberWithoutSoManyDecimals) {
    for (const double number : {4503599627370496.0, -4503599627370497.0, 123456.789, 1e22, 1e300, -std::numeric_limits<double>::max()})
        EXPECT_EQ(RoundHalfEven(number, 15), number);
}

TEST(RoundHalfEvenTest, EveryTieGoesToTheEvenNeighbour) {
    for (int whole = -1000; whole <= 1000; ++whole) ASSERT_EQ(RoundHalfEven(whole + 0.5, 0), whole % 2 == 0 ? whole : whole + 1) << whole;
}

TEST(RoundHalfEvenTest, StaysWithinHalfAUnitAndInFewDigits) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::mt19937 random(seed);
        std::uniform_real_distribution<double> cell(-1000, 1000);
        for (int round = 0; round < 200; ++round) {
            const double number = cell(random);
            const int decimals = static_cast<int>(random() % 7);
            const double rounded = RoundHalfEven(number, decimals);
            const std::string text = NumberText(rounded);
            const std::size_t period = text.find('.');
            ASSERT_LE(std::abs(rounded - number), 0.5 * std::pow(10, -decimals) + 1e-12) << number << " of seed " << seed;
            ASSERT_LE(period == text.npos ? 0 : text.size() - period - 1, static_cast<std::size_t>(decimals))
                << text << " of seed " << seed;
        }
    }
}

TEST(RoundHalfEvenTest, FailsForWhatIsNoFiniteNumber) {
    EXPECT_EQ(WordOf([] { RoundHalfEven(kInfinity, 4); }), kOverflow);
    EXPECT_EQ(WordOf([] { RoundHalfEven(kNoNumber, 4); }), kOverflow);
}
