// Zones by the incremental sum of squares.
#include "figure/math/zones.h"

#include <gtest/gtest.h>

namespace {
std::vector<Assemblage> OneTaxon(std::initializer_list<double> shares) {
    std::vector<Assemblage> samples;
    for (const double share : shares) samples.push_back({share});
    return samples;
}

void ExpectMerge(const Merge& merge, std::size_t first, std::size_t middle, std::size_t end, double rise, double total) {
    EXPECT_EQ(merge.first, first);
    EXPECT_EQ(merge.middle, middle);
    EXPECT_EQ(merge.end, end);
    EXPECT_NEAR(merge.rise, rise, 1e-12);
    EXPECT_NEAR(merge.total, total, 1e-12);
}

TEST(ZonesTest, NeighboursThatRaiseTheSumOfSquaresLeastAreJoinedFirst) {
    const auto merges = ClusterByIncrementalSumOfSquares(OneTaxon({0, 1, 5}));
    ASSERT_EQ(merges.size(), 2u);
    ExpectMerge(merges[0], 0, 1, 2, 0.5, 0.5);  // 0.5 and 0.5 from their mean, squared
    ExpectMerge(merges[1], 0, 2, 3, 13.5, 14);  // 2, 1 and 3 from the mean of all, squared
}

TEST(ZonesTest, SizesOfClustersCount) {
    // the mean of three samples is 1 away from the fourth, the fifth 1.2, and yet the fourth goes with the fifth
    const auto merges = ClusterByIncrementalSumOfSquares(OneTaxon({0, 0, 0, 1, 2.2}));
    ASSERT_EQ(merges.size(), 4u);
    ExpectMerge(merges[2], 3, 4, 5, 0.72, 0.72);  // 2 * 0.6 squared, not 3 * 1 / 4
}

TEST(ZonesTest, OfEqualPairsTheUpperIsJoined) {
    const auto merges = ClusterByIncrementalSumOfSquares(OneTaxon({0, 1, 2}));
    EXPECT_EQ(merges[0].first, 0u);
    EXPECT_EQ(merges[0].end, 2u);
}

TEST(ZonesTest, OneSampleHasNothingToJoin) {
    EXPECT_TRUE(ClusterByIncrementalSumOfSquares(OneTaxon({1})).empty());
    EXPECT_TRUE(ClusterByIncrementalSumOfSquares({}).empty());
}

TEST(ZonesTest, TheStickIsBrokenAsItsMeansSay) {
    EXPECT_EQ(BrokenStick(1), std::vector<double>{1});
    EXPECT_EQ(BrokenStick(2), (std::vector<double>{0.75, 0.25}));
    double sum = 0;
    for (const double piece : BrokenStick(249)) sum += piece;
    EXPECT_NEAR(sum, 1, 1e-12);
}

TEST(ZonesTest, ASplitCountsIfItTakesMoreThanItsPiece) {
    EXPECT_EQ(ZonesByBrokenStick(ClusterByIncrementalSumOfSquares(OneTaxon({0, 1, 5}))), 2u);  // 13.5 / 14, above 0.75
    EXPECT_EQ(ZonesByBrokenStick(ClusterByIncrementalSumOfSquares(OneTaxon({0, 1, 2}))), 1u);  // 1.5 / 2, just 0.75
}

TEST(ZonesTest, SplitsAfterOneThatFailedDoNotCount) {
    // 0.6 is below the first of three pieces, 0.611; 0.4 is above the second, 0.278
    const std::vector<Merge> merges = {{0, 1, 2, 0.0, 0.0}, {2, 3, 4, 0.4, 0.4}, {0, 2, 4, 0.6, 1.0}};
    ASSERT_LT(SplitShares(merges)[0], BrokenStick(3)[0]);
    ASSERT_GT(SplitShares(merges)[1], BrokenStick(3)[1]);
    EXPECT_EQ(ZonesByBrokenStick(merges), 1u);
}

TEST(ZonesTest, EqualSamplesAreOneZone) {
    const auto merges = ClusterByIncrementalSumOfSquares(OneTaxon({1, 1, 1}));
    EXPECT_EQ(SplitShares(merges), (std::vector<double>{0, 0}));
    EXPECT_EQ(ZonesByBrokenStick(merges), 1u);
}

TEST(ZonesTest, RoundingPartsNoEqualSamples) {
    for (const std::size_t samples : {12, 60, 250}) {
        const std::vector<Assemblage> equal(samples, {1.0 / 3, 0.1, 0.55, 0.7});
        const auto merges = ClusterByIncrementalSumOfSquares(equal);
        EXPECT_EQ(ZonesByBrokenStick(merges), 1u) << samples << " samples, " << merges.back().total;
    }
}

TEST(ZonesTest, ZonesBeginWhereTheLastMergesJoined) {
    const auto merges = ClusterByIncrementalSumOfSquares(OneTaxon({0, 0, 9, 9, 4, 4}));
    EXPECT_EQ(ZoneStarts(merges, 1), (std::vector<std::size_t>{0}));
    EXPECT_EQ(ZoneStarts(merges, 2), (std::vector<std::size_t>{0, 2}));
    EXPECT_EQ(ZoneStarts(merges, 3), (std::vector<std::size_t>{0, 2, 4}));
    EXPECT_EQ(ZoneStarts(merges, 6), (std::vector<std::size_t>{0, 1, 2, 3, 4, 5}));
}
}  // namespace
