// How fast a core was laid down.
#include "figure/results/accumulation.h"

#include <gtest/gtest.h>

#include "figure/fault_of.h"
#include "figure/small_core.h"

namespace {
std::string FaultOfAges(const Core& core, const AccumulationOptions& options, const char* depth_unit) {
    return FaultOf([&] { AccumulationRates(core, options, depth_unit); });
}

TEST(AccumulationTest, ByAgesARateIsThatBetweenTheNeighbours) {
    const Quantity rates = AccumulationRates(SmallCore(), {"Age (BP)", ""}, "cm");
    EXPECT_DOUBLE_EQ(rates[0].value(), 10.0 / 200);
    EXPECT_DOUBLE_EQ(rates[1].value(), 30.0 / 1200);
    EXPECT_DOUBLE_EQ(rates[2].value(), 20.0 / 1000);
    EXPECT_DOUBLE_EQ(AccumulationRates(SmallCore(), {"Age (BP)", ""}, "m")[0].value(), 5);
    EXPECT_DOUBLE_EQ(AccumulationRates(SmallCore(), {"Age (BP)", ""}, "mm")[0].value(), 0.005);
}

TEST(AccumulationTest, YearsOfACalendarFallDownwards) {
    Core core = SmallCore();
    for (std::size_t sample = 0; sample < 3; ++sample) core.samples[sample].values[2] = std::to_string(2000 - 100 * sample);
    EXPECT_DOUBLE_EQ(AccumulationRates(core, {"Age (BP)", ""}, "cm")[0].value(), 0.1);
}

TEST(AccumulationTest, ASampleWithoutAnAgeIsPassedOver) {
    Core core = SmallCore();
    core.samples[1].values[2] = kEmpty;
    EXPECT_EQ(AccumulationRates(core, {"Age (BP)", ""}, "cm"), (Quantity{30.0 / 1200, std::nullopt, 30.0 / 1200}));
}

TEST(AccumulationTest, AGivenRateIsTaken) {
    EXPECT_EQ(AccumulationRates(SmallCore(), {"", "0.05"}, "cm"), (Quantity{0.05, 0.05, 0.05}));
}

TEST(AccumulationTest, ARateMayBeNothing) {
    EXPECT_EQ(AccumulationRates(SmallCore(), {"", "0"}, "cm"), (Quantity{0, 0, 0}));
}

TEST(AccumulationTest, WhatMakesNoRateIsTold) {
    Core core = SmallCore();
    EXPECT_EQ(FaultOfAges(core, {"", ""}, "cm"), "influx takes either ages or a rate");
    EXPECT_EQ(FaultOfAges(core, {"Age (BP)", "1"}, "cm"), "influx takes either ages or a rate");
    EXPECT_EQ(FaultOfAges(core, {"Age (BP)", ""}, "inch"), "influx by ages takes depths in mm, cm or m, not in \"inch\"");
    EXPECT_EQ(FaultOfAges(core, {"", "-1"}, "cm"), "\"-1\" of sample 10 is below 0");
    core.samples[2].values[2] = "300";
    EXPECT_EQ(FaultOfAges(core, {"Age (BP)", ""}, "cm"), "the ages neither rise nor fall all the way down, so there is no influx");
    core.samples[1].values[2] = core.samples[2].values[2] = kEmpty;
    EXPECT_EQ(FaultOfAges(core, {"Age (BP)", ""}, "cm"), "influx by ages takes ages of two samples or more in the row \"Age (BP)\"");
    core = SmallCore();
    core.samples[1].depth = 10;
    EXPECT_EQ(FaultOfAges(core, {"Age (BP)", ""}, "cm"), "two samples have the same depth, so they have no rate between them");
    core.samples[1].depth.reset();
    EXPECT_EQ(FaultOfAges(core, {"Age (BP)", ""}, "cm"), "influx by ages takes depths for names of samples");
}
}  // namespace
