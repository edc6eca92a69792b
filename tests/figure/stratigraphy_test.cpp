// The zones of a core.
#include "figure/results/stratigraphy.h"

#include <gtest/gtest.h>

#include <cmath>

#include "figure/fault_of.h"
#include "figure/small_core.h"

namespace {
ZoneOptions TreesInZones(std::optional<std::size_t> zones) {
    return {kBasisSubtotal1, "", false, zones, "Z"};
}

TEST(StratigraphyTest, ZonesAreNumberedFromTheBase) {
    const std::vector<Zone> zones = StratigraphyOf(SmallCore(), TreesInZones(2)).zones;
    ASSERT_EQ(zones.size(), 2u);  // the shares of Pinus are 0.75, 0.25 and 0: the uppermost stands apart
    EXPECT_EQ(zones[0].name, "Z2");
    EXPECT_EQ(zones[0].end, 1u);
    EXPECT_EQ(zones[1].name, "Z1");
    EXPECT_EQ(zones[1].first, 1u);
}

TEST(StratigraphyTest, BoundariesLieHalfWay) {
    EXPECT_EQ(BoundaryAbove({10, 20, 40}, 0), 10) << "the top of the core";
    EXPECT_EQ(BoundaryAbove({10, 20, 40}, 1), 15);
    EXPECT_EQ(BoundaryAbove({10, 20, 40}, 2), 30);
    EXPECT_EQ(BoundaryAbove({10, 20, 40}, 3), 40) << "its base";
    EXPECT_EQ(BoundaryAbove({10, std::nullopt, 40}, 1), std::nullopt);
    EXPECT_EQ(BoundaryAbove({10, std::nullopt, 40}, 2), std::nullopt);
}

TEST(StratigraphyTest, TheTreeIsOfTheSharesOrTheirRoots) {
    // Pinus and Betula are 0.25 and 0.75 in one sample, 0 and 1 in the next
    EXPECT_DOUBLE_EQ(StratigraphyOf(SmallCore(), TreesInZones(1)).merges[0].rise, (0.25 * 0.25 + 0.25 * 0.25) / 2);
    ZoneOptions roots = TreesInZones(1);
    roots.square_roots = true;
    EXPECT_DOUBLE_EQ(StratigraphyOf(SmallCore(), roots).merges[0].rise, (0.25 + std::pow(1 - std::sqrt(0.75), 2)) / 2);
}

// Samples alike but for their markers: ten in the upper half, 600 in the lower.
Core AlikeButForMarkers() {
    Core core = SmallCore();
    core.samples.clear();
    for (int sample = 0; sample < 12; ++sample)
        core.samples.push_back(SmallSample(10 * sample, {70, 20, 10, sample < 6 ? 10 : 600}, {}, core.taxa));
    return core;
}

TEST(StratigraphyTest, MarkersMakeNoZones) {
    for (const bool square_roots : {true, false}) {
        const Stratigraphy found = StratigraphyOf(AlikeButForMarkers(), {kBasisAll, "Lycopodium", square_roots, std::nullopt, "Z"});
        EXPECT_EQ(found.zones.size(), 1u);
        EXPECT_NEAR(found.merges.back().total, 0, 1e-24);
    }
}

TEST(StratigraphyTest, SharesAreOfWhatIsCompared) {
    ZoneOptions options = TreesInZones(1);
    options.basis = kBasisAll;
    options.left_out = "Lycopodium";  // Pinus, Betula, Poaceae: 0.25, 0.75, 0 of the second sample, 0, 1, 0 of the third
    EXPECT_DOUBLE_EQ(StratigraphyOf(SmallCore(), options).merges[0].rise, (0.25 * 0.25 + 0.25 * 0.25) / 2);
}

TEST(StratigraphyTest, WithoutANumberTheBrokenStickDecides) {
    EXPECT_EQ(StratigraphyOf(SmallCore(), TreesInZones(std::nullopt)).zones.size(), 2u);
}

TEST(StratigraphyTest, ASampleWithNothingInTheSumIsOneOfZeros) {
    Core core = SmallCore();
    core.samples[2].counts = {0, 0, 7, 25};
    EXPECT_DOUBLE_EQ(StratigraphyOf(core, TreesInZones(1)).merges[0].rise, (0.5 * 0.5 + 0.5 * 0.5) / 2);  // now the two above are nearest
}

TEST(StratigraphyTest, ThereAreAsManyZonesAsSamplesAtMost) {
    EXPECT_EQ(StratigraphyOf(SmallCore(), TreesInZones(3)).zones.size(), 3u);
    EXPECT_EQ(FaultOf([] { StratigraphyOf(SmallCore(), TreesInZones(4)); }), "there can be 1 to 3 zones, not 4");
    EXPECT_EQ(FaultOf([] { StratigraphyOf(SmallCore(), TreesInZones(0)); }), "there can be 1 to 3 zones, not 0");
    Core core = SmallCore();
    core.samples.resize(2);
    EXPECT_EQ(StratigraphyOf(core, TreesInZones(2)).zones.size(), 2u);
    core.samples.resize(1);
    EXPECT_EQ(FaultOf([&] { StratigraphyOf(core, TreesInZones(1)); }), "zones take two samples or more");
}
}  // namespace
