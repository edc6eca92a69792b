// Concentrations in a core.
#include "figure/results/concentrations.h"

#include <gtest/gtest.h>

#include <cmath>

#include "figure/fault_of.h"
#include "figure/small_core.h"

namespace {
const MarkerOptions kTablets = {"Lycopodium", "Tablets*1000±100", "Volume (cm3)", ""};

std::string FaultOfMarker(const MarkerOptions& options) {
    return FaultOf([&] { ConcentrationsOf(SmallCore(), options); });
}

TEST(ConcentrationsTest, ComeFromTheMarkersOfEachSample) {
    const Concentrations found = ConcentrationsOf(SmallCore(), kTablets);
    EXPECT_EQ(found.marker, 3u);
    EXPECT_DOUBLE_EQ(found.taxa[0][0]->value, 2400);  // 30 * 2000 / (50 * 0.5)
    EXPECT_DOUBLE_EQ(found.taxa[0][0]->error, 2400 * std::sqrt(0.1 * 0.1 / 2 + 1.0 / 30 + 1.0 / 50));
    EXPECT_DOUBLE_EQ(found.taxa[1][1]->value, 1500);  // 30 * 2000 / (20 * 2)
    EXPECT_EQ(found.taxa[1][2]->value, 0);
}

TEST(ConcentrationsTest, TheMarkerIsNoPartOfASum) {
    const Concentrations found = ConcentrationsOf(SmallCore(), kTablets);
    EXPECT_FALSE(found.taxa[0][3]);
    EXPECT_DOUBLE_EQ(found.sums[0][kBasisAll]->value, 4000);        // 50, not 100, * 2000 / (50 * 0.5)
    EXPECT_DOUBLE_EQ(found.sums[0][kBasisSubtotal1]->value, 3200);  // 40
    EXPECT_DOUBLE_EQ(found.sums[0][kBasisSubtotal2]->value, 800);   // 10
}

TEST(ConcentrationsTest, ASampleWithoutItsAmountOrItsMarkersHasNone) {
    Core core = SmallCore();
    core.samples[1].counts[3] = 0;
    const Concentrations found = ConcentrationsOf(core, kTablets);
    EXPECT_TRUE(found.taxa[0][0]);
    EXPECT_FALSE(found.taxa[1][0]);
    EXPECT_FALSE(found.taxa[2][1]);
    EXPECT_FALSE(found.sums[2][kBasisAll]);
}

TEST(ConcentrationsTest, TheTabletsAreWrittenInSeveralWays) {
    for (const char* added : {"Tablets*1000±100", "2*1000±100", "2*1000+-100"}) {
        const Concentrations found = ConcentrationsOf(SmallCore(), {"Lycopodium", added, "1", ""});
        EXPECT_DOUBLE_EQ(found.added[0]->markers, 2000) << added;
        EXPECT_DOUBLE_EQ(found.added[0]->relative, 0.1 / std::sqrt(2)) << added;
    }
    EXPECT_DOUBLE_EQ(ConcentrationsOf(SmallCore(), {"Lycopodium", "2*1000", "1", ""}).added[0]->relative, 0);
    const Added added = ConcentrationsOf(SmallCore(), {"Lycopodium", "40000", "1", ""}).added[0].value();
    EXPECT_DOUBLE_EQ(added.markers, 40000);
    EXPECT_DOUBLE_EQ(added.relative, 0);
}

TEST(ConcentrationsTest, AMarkerIsOneTaxon) {
    Core core = SmallCore();
    EXPECT_EQ(MarkerOf(core, "Lycopodium"), 3u);
    core.taxa[1].name = "Lycopodium";
    EXPECT_EQ(FaultOf([&] { MarkerOf(core, "Lycopodium"); }), "more than one taxon is named \"Lycopodium\": which of them is the marker?");
    EXPECT_EQ(MarkerOf(core, "Pinus"), 0u);
}

TEST(ConcentrationsTest, WhatIsMissingIsTold) {
    EXPECT_EQ(FaultOfMarker({"Eucalyptus", "2*1000", "1", ""}), "no taxon named \"Eucalyptus\" was counted: there is no such marker");
    EXPECT_EQ(FaultOfMarker({"Lycopodium", "2*1000", "", ""}), "concentrations take either the volume or the weight of a sample");
    EXPECT_EQ(FaultOfMarker({"Lycopodium", "2*1000", "1", "1"}), "concentrations take either the volume or the weight of a sample");
    EXPECT_EQ(FaultOfMarker({"Lycopodium", "", "1", ""}), "\"\" is neither a row of Additional info nor a number");
    for (const char* each : {"many", "0", "-5", "1000±x", "1000±-1"})
        EXPECT_EQ(FaultOfMarker({"Lycopodium", std::string("2*") + each, "1", ""}),
                  std::string("\"") + each + "\" is no number of markers a tablet, such as 18583 or 18583±370");
    EXPECT_EQ(FaultOfMarker({"Lycopodium", "2*1000", "0", ""}), "\"0\" of sample 10 is not above 0");
    EXPECT_EQ(FaultOfMarker({"Lycopodium", "0*1000", "1", ""}), "\"0\" of sample 10 is not above 0");
}
}  // namespace
