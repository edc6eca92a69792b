// Concentrations from markers.
#include "figure/math/concentration.h"

#include <gtest/gtest.h>

namespace {
// Two tablets of 18583 spores each, 764 one standard deviation of a tablet; 300 grains and 60 markers in 1 cm3. Reckoned by hand:
// 300 * 37166 / 60 = 185830, with the relative errors 764 / 18583 / sqrt(2), 1 / sqrt(300) and 1 / sqrt(60).
TEST(ConcentrationTest, WhatIsReckonedByHandComesOut) {
    const Concentration found = ConcentrationOf(300, 60, AddedTablets(2, 18583, 764), 1).value();
    EXPECT_DOUBLE_EQ(found.value, 185830);
    EXPECT_NEAR(found.error, 185830 * 0.1444, 0.5e-4 * 185830);  // sqrt(0.029071 squared + 0.057735 squared + 0.129099 squared)
}

TEST(ConcentrationTest, TwiceTheAmountIsHalfTheConcentration) {
    const Added added = AddedTablets(1, 1000, 0);
    const Concentration one = ConcentrationOf(50, 25, added, 1).value(), two = ConcentrationOf(50, 25, added, 2).value();
    EXPECT_DOUBLE_EQ(one.value, 2000);
    EXPECT_DOUBLE_EQ(two.value, 1000);
    EXPECT_DOUBLE_EQ(one.error / one.value, two.error / two.value);
}

TEST(ConcentrationTest, MoreTabletsAreKnownBetter) {
    EXPECT_DOUBLE_EQ(AddedTablets(4, 500, 20).markers, 2000);
    EXPECT_DOUBLE_EQ(AddedTablets(4, 500, 20).relative, 0.02);
    EXPECT_DOUBLE_EQ(AddedTablets(1, 500, 20).relative, 0.04);
}

TEST(ConcentrationTest, WithoutMarkersOrAnAmountThereIsNone) {
    const Added added = AddedTablets(1, 1000, 0);
    EXPECT_FALSE(ConcentrationOf(50, 0, added, 1));
    EXPECT_FALSE(ConcentrationOf(50, 25, added, 0));
}

TEST(ConcentrationTest, WhatWasNotFoundHasNoConcentrationAndNoError) {
    const Concentration found = ConcentrationOf(0, 25, AddedTablets(1, 1000, 0), 1).value();
    EXPECT_EQ(found.value, 0);
    EXPECT_EQ(found.error, 0);
}
}  // namespace
