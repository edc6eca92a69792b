// The limits of a percentage.
#include "figure/math/confidence.h"

#include <gtest/gtest.h>

namespace {
constexpr double kZSquared = 1.96 * 1.96;

TEST(ConfidenceTest, LimitsInsideTheSumAreWhereTheShareIsJustRejected) {
    for (const double count : {0., 1., 7., 50., 99., 100.}) {
        const double p = count / 100;
        const Limits limits = LimitsInsideSum(count, 100).value();
        for (const double limit : {limits.low, limits.high})  // the score test, solved for the true share
            EXPECT_NEAR((limit - p) * (limit - p), kZSquared * limit * (1 - limit) / 100, 1e-15) << count;
        EXPECT_LE(limits.low, p + 1e-15);
        EXPECT_GE(limits.high, p - 1e-15);
    }
}

TEST(ConfidenceTest, NoLimitIsBelowNothingOrInsideTheSumAboveAll) {
    for (int sum = 1; sum <= 1000; ++sum) {
        EXPECT_GE(LimitsInsideSum(0, sum)->low, 0) << sum;
        EXPECT_LE(LimitsInsideSum(sum, sum)->high, 1) << sum;
    }
    for (int sum = 4; sum <= 1000; ++sum) EXPECT_GE(LimitsOutsideSum(0, sum)->low, 0) << sum;
}

// Half of 100: the limits of E. B. Wilson's interval are as far from a half as z/2 sqrt(1/(100 + z2)).
TEST(ConfidenceTest, LimitsOfAHalfLieEvenlyAroundIt) {
    const Limits limits = LimitsInsideSum(50, 100).value();
    EXPECT_NEAR(limits.low, 0.40383, 5e-6);
    EXPECT_NEAR(limits.high, 0.59617, 5e-6);
}

TEST(ConfidenceTest, LimitsOutsideTheSumAreWhereTheRatioIsJustRejected) {
    for (const double count : {0., 3., 100., 640.}) {
        const double p = count / 100;
        const Limits limits = LimitsOutsideSum(count, 100).value();
        for (const double limit : {limits.low, limits.high})
            EXPECT_NEAR((limit - p) * (limit - p), kZSquared * limit * (1 + limit) / 100, 1e-12) << count;
        EXPECT_LE(limits.low, p + 1e-15);
        EXPECT_GE(limits.high, p - 1e-15);
    }
}

TEST(ConfidenceTest, ASumOfNothingHasNoLimits) {
    EXPECT_FALSE(LimitsInsideSum(0, 0));
    EXPECT_TRUE(LimitsInsideSum(0, 1));
}

TEST(ConfidenceTest, ASmallSumHasNoLimitsForTaxaOutsideIt) {
    EXPECT_FALSE(LimitsOutsideSum(2, 3));  // 1.96 squared is 3.84
    EXPECT_TRUE(LimitsOutsideSum(2, 4));
}
}  // namespace
