// Where the samples stand.
#include "figure/drawing/sample_axis.h"

#include <gtest/gtest.h>

#include "figure/fault_of.h"
#include "figure/small_core.h"

namespace {
// Of the core's depths 10, 20 and 40: numbers each 2, ticks each 0.4, one of these beyond the ends.
TEST(SampleAxisTest, DepthsStandInProportion) {
    const SampleAxis axis(SmallCore(), {}, 100, 608);
    EXPECT_DOUBLE_EQ(axis.Y(1) - axis.Y(0), 10 * 508 / 30.8);
    EXPECT_DOUBLE_EQ(axis.Y(2) - axis.Y(1), 20 * 508 / 30.8);
    EXPECT_DOUBLE_EQ(axis.Y(0), 100 + 0.4 * 508 / 30.8);
    EXPECT_DOUBLE_EQ(axis.Boundary(2), (axis.Y(1) + axis.Y(2)) / 2);
    EXPECT_DOUBLE_EQ(axis.LeastDistance(), axis.Y(1) - axis.Y(0));
    EXPECT_EQ(axis.Title(), "Depth (cm)");
}

TEST(SampleAxisTest, NumbersAreRoundAndRiseDownwards) {
    const SampleAxis axis(SmallCore(), {}, 0, 308);
    const auto ticks = axis.Ticks();
    std::vector<std::string> numbers;
    for (const auto& tick : ticks)
        if (!tick.number.empty()) numbers.push_back(tick.number);
    EXPECT_EQ(numbers, (std::vector<std::string>{"10", "15", "20", "25", "30", "35", "40"}));
    EXPECT_EQ(ticks.front().y, 0);
    EXPECT_NEAR(ticks.back().y, 308, 1e-9);
    EXPECT_EQ(ticks.size(), 33u) << "each 1 from 9 to 41";
}

TEST(SampleAxisTest, AnAxisDoesNotBeginAboveTheSurface) {
    Core core = SmallCore();
    core.samples[0].depth = 0;
    EXPECT_EQ(SampleAxis(core, {}, 50, 500).Y(0), 50);
}

TEST(SampleAxisTest, AgesTakeThePlaceOfDepths) {
    FigureOptions options;
    options.age = "Age (BP)";
    const SampleAxis axis(SmallCore(), options, 0, 500);
    EXPECT_NEAR((axis.Y(2) - axis.Y(1)) / (axis.Y(1) - axis.Y(0)), 1000.0 / 200, 1e-9);
    EXPECT_EQ(axis.Title(), "Age (BP)");
}

TEST(SampleAxisTest, YearsOfACalendarFallDownwards) {
    Core core = SmallCore();
    for (std::size_t sample = 0; sample < 3; ++sample) core.samples[sample].values[2] = std::to_string(2000 - 100 * sample);
    FigureOptions options;
    options.age = "Age (BP)";
    const SampleAxis axis(core, options, 0, 500);
    EXPECT_LT(axis.Y(0), axis.Y(1));
    EXPECT_LT(axis.Y(1), axis.Y(2));
    EXPECT_GE(axis.Y(0), 0);
    EXPECT_LE(axis.Y(2), 500);
    std::vector<SampleAxis::Tick> numbers = axis.Ticks();
    std::erase_if(numbers, [](const SampleAxis::Tick& tick) { return tick.number.empty(); });
    EXPECT_GT(std::stoi(numbers.front().number), std::stoi(numbers.back().number));
}

TEST(SampleAxisTest, ASampleWithoutADepthIsTold) {
    Core core = SmallCore();
    core.samples[1].name = "10.0";
    core.samples[1].depth.reset();
    const auto fault = [&] { return FaultOf([&] { SampleAxis(core, {}, 0, 300); }); };
    EXPECT_EQ(fault(), "sample \"10.0\": a depth is a plain number such as 10 or 10.5");
    core.samples[1].is_named = false;
    EXPECT_EQ(fault(), "the first sample has no name yet: name it by its depth, such as 10 or 10.5");
    FigureOptions options;
    options.age = "Age (BP)";
    EXPECT_EQ(SampleAxis(core, options, 0, 300).Y(1), SampleAxis(SmallCore(), options, 0, 300).Y(1)) << "ages take no depths";
}

TEST(SampleAxisTest, AgesThatAreNoneAreTold) {
    FigureOptions options;
    const auto fault = [&options](const Core& core, const char* age) {
        options.age = age;
        return FaultOf([&] { SampleAxis(core, options, 0, 500); });
    };
    Core core = SmallCore();
    EXPECT_NE(fault(core, "Age"), "") << "no such row";
    EXPECT_NE(fault(core, "Lithology"), "") << "no numbers";
    EXPECT_EQ(fault(core, "Volume (cm3)"), "sample 40 has no number in Volume (cm3)");
    EXPECT_EQ(fault(core, "Tablets"), "the numbers in Tablets do not go one way from the top to the bottom");
    core.samples[1].values[2] = "5000";
    EXPECT_EQ(fault(core, "Age (BP)"), "the numbers in Age (BP) do not go one way from the top to the bottom");
}
}  // namespace
