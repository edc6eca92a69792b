// Richness and diversity of a sample.
#include "figure/math/richness.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {
using Counts = std::vector<std::int32_t>;

TEST(RichnessTest, TwoGrainsOfFourAreOfTwoTaxaAsOftenAsPairsCanBeDrawn) {
    // of 2 + 1 + 1 grains there are 6 pairs, one of them of the same taxon
    EXPECT_NEAR(RarefiedRichness(Counts{2, 1, 0, 1}, 2).value(), 1 + 5.0 / 6, 1e-12);
}

TEST(RichnessTest, AllGrainsShowAllTaxaAndOneGrainOne) {
    EXPECT_NEAR(RarefiedRichness(Counts{7, 1, 3}, 11).value(), 3, 1e-12);
    EXPECT_NEAR(RarefiedRichness(Counts{7, 1, 3}, 1).value(), 1, 1e-12);
    EXPECT_NEAR(RarefiedRichness(Counts{7, 1, 3}, 0).value(), 0, 1e-12);
}

TEST(RichnessTest, NoMoreGrainsCanBeDrawnThanThereAre) {
    EXPECT_FALSE(RarefiedRichness(Counts{2, 1}, 4));
    EXPECT_FALSE(RarefiedRichness(Counts{2, 1}, -1));
    EXPECT_FALSE(RarefiedRichness(Counts{2, -1}, 1));
}

TEST(RichnessTest, TheLargestSamplesAreRarefiedToo) {
    const Counts counts(135, 32767);
    const double drawn = RarefiedRichness(counts, 500).value();
    EXPECT_NEAR(drawn, 135 * (1 - std::pow(134.0 / 135, 500)), 0.01);  // nearly as with putting back
}

TEST(RichnessTest, CountsOfMilliardsTakeNoLonger) {
    Counts counts(134, 7'000'000);
    counts.push_back(1'000'000'000);
    for (int sample = 0; sample < 250; ++sample) EXPECT_NEAR(RarefiedRichness(counts, 900'000'000).value(), 135, 1e-9);
}

TEST(RichnessTest, ManyGrainsAreReckonedAsFewAre) {
    constexpr std::int32_t kSum = 1'000'000'000;
    for (const std::int32_t count : {9'999, 10'000, 10'001, 20'000, 100'000})
        for (const std::int32_t drawn : {10'500, 50'000, 200'000}) {
            long double missed = 1;
            for (std::int32_t i = 0; i < count; ++i) missed *= static_cast<long double>(kSum - drawn - i) / (kSum - i);
            EXPECT_NEAR(RarefiedRichness(Counts{count, kSum - count}, drawn).value(), static_cast<double>(2 - missed), 1e-10)
                << drawn << " grains, " << count << " of the taxon";
        }
}

TEST(RichnessTest, OneGrainInAMillionIsFoundAsOftenAsItIsDrawn) {
    EXPECT_NEAR(RarefiedRichness(Counts{999'999, 1}, 11'112).value(), 1.011112, 1e-14);
}

TEST(RichnessTest, EqualSharesGiveTheLargestIndices) {
    EXPECT_NEAR(Shannon(Counts{5, 5, 0, 5, 5}), std::log(4), 1e-12);
    EXPECT_NEAR(Simpson(Counts{5, 5, 0, 5, 5}), 0.75, 1e-12);
}

TEST(RichnessTest, SingleGrainsCount) {
    EXPECT_NEAR(Shannon(Counts{1, 1}), std::log(2), 1e-12);
    EXPECT_NEAR(Simpson(Counts{1, 1}), 0.5, 1e-12);
}

TEST(RichnessTest, OneTaxonHasNoDiversity) {
    EXPECT_EQ(Shannon(Counts{0, 9}), 0);
    EXPECT_EQ(Simpson(Counts{0, 9}), 0);
}

TEST(RichnessTest, AnEmptySampleHasNoDiversity) {
    EXPECT_EQ(Shannon(Counts{0, 0}), 0);
    EXPECT_EQ(Simpson(Counts{0, 0}), 0);
    EXPECT_EQ(RarefiedRichness(Counts{0, 0}, 0), 0);
}
}  // namespace
