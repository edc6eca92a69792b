// Where the columns stand, and on how many pages.
#include "figure/drawing/arrangement.h"

#include <gtest/gtest.h>

namespace {
std::vector<Column> Percents(const std::vector<double>& lengths) {
    std::vector<Column> columns(lengths.size());
    for (std::size_t i = 0; i < lengths.size(); ++i) columns[i].percent = lengths[i];
    return columns;
}

NameRoom Names(std::size_t count, double width = 30, double angle = 90) {
    return {std::vector<double>(count, width), angle};
}

TEST(ArrangementTest, AllPercentagesHaveOneScale) {
    const Arrangement arrangement = Arrange(Percents({50, 10, 30}), Names(3), 400, false);
    ASSERT_EQ(arrangement.pages.size(), 1u);
    const auto& placed = arrangement.pages[0];
    EXPECT_DOUBLE_EQ(placed[0].width, 50 * arrangement.points_per_percent);
    EXPECT_DOUBLE_EQ(placed[1].width, 10 * arrangement.points_per_percent);
    EXPECT_DOUBLE_EQ(placed[2].width, 30 * arrangement.points_per_percent);
}

TEST(ArrangementTest, TheScaleIsTheLargestThatTheRoomAllows) {
    const Arrangement arrangement = Arrange(Percents({50, 10, 30}), Names(3), 400, false);
    EXPECT_NEAR(arrangement.width, 400, 0.01);
    EXPECT_LE(arrangement.width, 400);
    EXPECT_NEAR(arrangement.points_per_percent, (400 - 2 * 6) / 90.0, 0.001) << "but for the two gaps";
}

TEST(ArrangementTest, AFewPercentAreNotDrawnOut) {
    EXPECT_NEAR(Arrange(Percents({5}), Names(1), 800, false).points_per_percent, 6, 0.001);
}

TEST(ArrangementTest, AColumnOfItsOwnWidthKeepsIt) {
    std::vector<Column> columns = Percents({50, 0});
    columns[1].width = 72;
    EXPECT_EQ(Arrange(columns, Names(2), 400, false).pages[0][1].width, 72);
}

TEST(ArrangementTest, NamesDoNotTouch) {
    for (const double angle : {90.0, 45.0}) {
        const auto placed = Arrange(Percents(std::vector<double>(60, 1)), Names(60, 30, angle), 800, false).pages[0];
        const double least = angle == 90 ? 10 : 10 * 1.41421;
        for (std::size_t i = 1; i < placed.size(); ++i) EXPECT_GE(placed[i].left - placed[i - 1].left, least);
    }
}

TEST(ArrangementTest, ManyColumnsGoToFurtherPagesInOrder) {
    const Arrangement arrangement = Arrange(Percents(std::vector<double>(135, 10)), Names(135), 700, false);
    ASSERT_EQ(arrangement.pages.size(), 3u);
    std::size_t next = 0;
    for (const auto& page : arrangement.pages) {
        EXPECT_EQ(page.front().left, 0);
        for (const PlacedColumn& placed : page) {
            EXPECT_EQ(placed.column, next++);
            EXPECT_LE(placed.left + placed.width, 700);
        }
    }
    EXPECT_EQ(next, 135u);
    EXPECT_GE(arrangement.points_per_percent, 0.8) << "as large as it takes to be read";
}

TEST(ArrangementTest, OnePageGrowsWithItsColumns) {
    const Arrangement arrangement = Arrange(Percents(std::vector<double>(135, 10)), Names(135), 700, true);
    ASSERT_EQ(arrangement.pages.size(), 1u);
    EXPECT_EQ(arrangement.pages[0].size(), 135u);
    EXPECT_DOUBLE_EQ(arrangement.points_per_percent, 0.8);
    EXPECT_GT(arrangement.width, 700);
}

TEST(ArrangementTest, ATaxonFarOutsideTheSumStaysOnThePage) {
    const Arrangement arrangement = Arrange(Percents({5000, 20}), Names(2), 700, false);
    for (const auto& page : arrangement.pages)
        for (const PlacedColumn& placed : page) EXPECT_LE(placed.left + placed.width, 700.001);
}

TEST(ArrangementTest, ANameThatLeansHasItsPlace) {
    const auto names = Names(1, 100, 45);
    EXPECT_NEAR(names.Height(), 76.4, 0.1);
    EXPECT_NEAR(Arrange(Percents({5}), names, 300, false).width, 78.7, 0.1);
}
}  // namespace
