// The columns of the diagram: each as wide as the largest share of its taxon, and how far they can be scrolled.
#include <algorithm>
#include <random>

#include "diagram/data/percentages.h"
#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
class ColumnLayoutTest : public SheetTest {
protected:
    ColumnLayoutTest() {
        Begin("10");
        frmDiagram.Slider2.SetValue(5);
    }
};

TEST_F(ColumnLayoutTest, AColumnIsAsWideAsItsLargestShare) {
    SampleCount = 2;
    SampleTable[kSampleName][2] = "20";
    Counts[1][1] = 1;
    Counts[2][1] = 3;
    Counts[1][2] = 2;
    Counts[135][2] = 2;
    ComputeDiagramData();
    EXPECT_EQ(ColumnOffset[1], 5.0F);
    EXPECT_EQ(ColumnOffset[2], 65.0F);   // 5 + 50 + 10
    EXPECT_EQ(ColumnOffset[3], 150.0F);  // + 75 + 10
    EXPECT_EQ(ColumnOffset[4], 160.0F);  // an empty row is as wide as the gap
    EXPECT_EQ(ColumnOffset[135], 1470.0F);
    EXPECT_EQ(ColumnOffset[136], 1530.0F);
    EXPECT_EQ(LastColumnMax, 50.0F);
}

TEST_F(ColumnLayoutTest, SharesBelow0TakeNoRoom) {
    Counts[1][1] = -1;
    Counts[2][1] = 2;
    ComputeDiagramData();
    EXPECT_EQ(ColumnOffset[2], 15.0F);
    EXPECT_EQ(ColumnOffset[3], 225.0F);
}

TEST_F(ColumnLayoutTest, OffsetsAreSumsInDoubleEachStoredAsASingle) {
    const unsigned seed = std::random_device{}();
    std::mt19937 random(seed);
    frmDiagram.Slider2.SetValue(7);
    for (int slot = 1; slot <= kSlots; ++slot) Counts[slot][1] = std::uniform_int_distribution(0, 900)(random);
    ComputeDiagramData();
    float offset = 5;
    for (int row = 1; row <= kSlots; ++row) {
        const float largest = static_cast<float>(static_cast<double>(SamplePercent[row][1]) * 100);
        offset = static_cast<float>(static_cast<double>(largest) + offset + 7);
        ASSERT_EQ(ColumnOffset[row + 1], offset) << "seed " << seed << ", row " << row;
    }
}

TEST_F(ColumnLayoutTest, TheScrollBarReachesTheEndOfTheLastColumn) {
    Counts[135][1] = 3;
    Counts[1][1] = 1;
    struct {
        int scale, maximum, large;
    } cases[] = {{5, 965, 500}, {10, 535, 250}, {1, 4405, 2500}};  // at 5: 5 + 25 + 134 gaps - 500 on the screen + 75 + 2 gaps
    for (const auto& each : cases) {
        frmDiagram.Slider2.SetValue(each.scale);
        ComputeDiagramData();
        EXPECT_EQ(frmDiagram.HScroll1.Min(), 0);
        EXPECT_EQ(frmDiagram.HScroll1.Max(), each.maximum) << each.scale;
        EXPECT_EQ(frmDiagram.HScroll1.LargeChange(), each.large) << each.scale;
        EXPECT_EQ(frmDiagram.HScroll1.SmallChange(), 10);
    }
}

TEST_F(ColumnLayoutTest, AScrollRangeBeyond32767EndsThere) {
    Counts[1][1] = 1;
    Counts[2][1] = 400;  // 40000 % of the basis
    TaxonTable[1][kTaxonSubtotal1] = 1;
    frmMain.Option1[1].SetValue(true);
    RunEvent(ComputeDiagramData);
    EXPECT_EQ(services_.host.failure, "");
    EXPECT_EQ(frmDiagram.HScroll1.Max(), 32767);
}
}  // namespace
