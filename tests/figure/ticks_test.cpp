// Round numbers along an axis.
#include "figure/drawing/ticks.h"

#include <gtest/gtest.h>

namespace {
TEST(TicksTest, StepsAreRound) {
    struct {
        double span;
        int most;
        double step;
    } cases[] = {{100, 10, 10}, {100, 9, 20}, {100, 4, 50}, {100, 1, 100},   {88, 16, 10},
                 {0.3, 4, 0.1}, {1, 1, 1},    {1.1, 1, 2},  {7000, 10, 1000}};
    for (const auto& each : cases) EXPECT_DOUBLE_EQ(RoundStep(each.span, each.most), each.step) << each.span << " by " << each.most;
}

TEST(TicksTest, MultiplesTakeInBothEnds) {
    EXPECT_EQ(Multiples(5, 0, 15), (std::vector<double>{0, 5, 10, 15}));
    EXPECT_EQ(Multiples(5, 1, 14), (std::vector<double>{5, 10}));
    EXPECT_EQ(Multiples(5, -6, 4), (std::vector<double>{-5, 0}));
    EXPECT_EQ(Multiples(0.1, 0, 0.3).size(), 4u) << "though 3 * 0.1 is above 0.3";
    EXPECT_TRUE(Multiples(5, 1, 4).empty());
}

TEST(TicksTest, ANumberIsWrittenAsItIsMeant) {
    EXPECT_EQ(RoundNumberText(3 * 0.1), "0.3");
    EXPECT_EQ(RoundNumberText(-0.0), "0");
    EXPECT_EQ(RoundNumberText(12000), "12000");
}
}  // namespace
