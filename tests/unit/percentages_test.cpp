#include "diagram/data/percentages.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <random>

#include "platform/failure.h"
#include "unit/sheet_test.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
class PercentagesTest : public SheetTest {
protected:
    PercentagesTest() {
        Begin("10");
        frmDiagram.Slider2.SetValue(5);
    }

    // Samples of these names, with nothing counted.
    static void Names(const Texts& names) {
        SampleCount = static_cast<std::int16_t>(names.size());
        for (std::size_t i = 0; i < names.size(); ++i) SampleTable[kSampleName][i + 1] = names[i];
    }
    static std::vector<int> Ranks() { return {SampleRank.begin() + 1, SampleRank.end()}; }
};

TEST_F(PercentagesTest, TheGapBetweenColumnsIsTenUnitsOfTheScreen) {
    constexpr int kGaps[] = {50, 25, 17, 12, 10, 8, 7, 6, 6, 5};  // at 4 it is 12.5, a tie
    for (int scale = 1; scale <= 10; ++scale) {
        frmDiagram.Slider2.SetValue(scale);
        ComputeDiagramData();
        EXPECT_EQ(ColumnGap, kGaps[scale - 1]) << scale;
        for (const int row : {1, 2, 70, 136}) EXPECT_EQ(ColumnOffset[row], 5 + (row - 1) * ColumnGap) << scale << ", row " << row;
    }
}

TEST_F(PercentagesTest, NumericNamesAreRankedByTheirValue) {
    Names({"10", "5", "20"});
    ComputeDiagramData();
    EXPECT_FALSE(SampleNamesAreText);
    EXPECT_EQ(Ranks(), (std::vector<int>{2, 1, 3}));
    EXPECT_EQ(SampleAtRank, (std::vector<std::int16_t>{0, 2, 1, 3}));
}

TEST_F(PercentagesTest, OneNameThatIsNoNumberKeepsTheOrderOfTheSheet) {
    for (const char* odd : {"top", "5.0", "", "1e1"}) {
        Names({"10", odd, "2"});
        ComputeDiagramData();
        EXPECT_TRUE(SampleNamesAreText) << odd;
        EXPECT_EQ(Ranks(), (std::vector<int>{1, 2, 3})) << odd;
    }
}

TEST_F(PercentagesTest, OfEqualNamesTheLeftOneComesFirst) {
    for (const char* name : {"7", "0.1", "12.3", "-3.3"}) {
        Names({"20", name, name, name});
        ComputeDiagramData();
        EXPECT_EQ(Ranks(), (std::vector<int>{4, 1, 2, 3})) << name;
    }
}

TEST_F(PercentagesTest, ANameOf999999OrMoreIsNeverTakenAndRepeatsThePreviousColumn) {
    Names({"5", "999998", "999999"});
    ComputeDiagramData();
    EXPECT_EQ(SampleAtRank, (std::vector<std::int16_t>{0, 1, 2, 2}));
    EXPECT_EQ(SampleRank, (std::vector<std::int16_t>{0, 1, 3, 3}));
}

TEST_F(PercentagesTest, RanksAgreeWithAStableSort) {
    const unsigned seed = std::random_device{}();
    std::mt19937 random(seed);
    for (int round = 0; round < 40; ++round) {
        const int count = std::uniform_int_distribution(1, 250)(random);
        Texts names(count);
        for (std::string& name : names) name = std::to_string(std::uniform_int_distribution(-50, 150)(random));
        Names(names);
        ComputeDiagramData();
        std::vector<int> order(count);
        std::iota(order.begin(), order.end(), 1);
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return std::stoi(names[a - 1]) < std::stoi(names[b - 1]); });
        for (int place = 1; place <= count; ++place) {
            ASSERT_EQ(SampleAtRank[place], order[place - 1]) << "seed " << seed << ", round " << round;
            ASSERT_EQ(SampleRank[order[place - 1]], place) << "seed " << seed << ", round " << round;
        }
    }
}

TEST_F(PercentagesTest, SharesStandInSheetRowsAndDisplayPlaces) {
    Names({"20", "10"});
    std::swap(RowOfSlot[1], RowOfSlot[3]);
    TaxonTable[1][kTaxonName] = "Pinus";
    Counts[1][1] = 1;
    Counts[2][1] = 2;
    Counts[2][2] = 5;
    ComputeDiagramData();
    EXPECT_EQ(SamplePercent[3][2], static_cast<float>(1.0 / 3));
    EXPECT_EQ(SamplePercent[2][2], static_cast<float>(2.0 / 3));
    EXPECT_EQ(SamplePercent[1][2], 0.0F);
    EXPECT_EQ(SamplePercent[2][1], 1.0F);
    EXPECT_EQ(DiagramNames[3], "Pinus");
    EXPECT_EQ(Counts[0][1], 3);
    EXPECT_EQ(Counts[0][2], 5);
}

TEST_F(PercentagesTest, TheLargestShareOfARowIsFoundWhereverItStandsAndNowhereElse) {
    for (const int samples : {1, 2, 7, 8, 9, 16, 17, kColumns - 1}) {
        Names(Texts(samples, "1"));
        for (int largest = 1; largest <= samples; ++largest) {
            for (int sample = 1; sample <= samples; ++sample) {
                Counts[1][sample] = sample == largest ? 3 : 2;
                Counts[2][sample] = sample == largest ? 1 : 2;
            }
            std::fill(&DiagramShares[1][samples + 1], std::end(DiagramShares[1]), 9.0F);  // what a longer sheet has left behind
            ComputeDiagramData();
            ASSERT_EQ(ColumnOffset[2], 5 + 75 + ColumnGap) << "place " << largest << " of " << samples;
        }
    }
}

TEST_F(PercentagesTest, TheBasisIsTheChosenTotal) {
    Counts[1][1] = 10;
    Counts[2][1] = 30;
    Counts[3][1] = 60;
    TaxonTable[1][kTaxonSubtotal1] = TaxonTable[2][kTaxonSubtotal1] = 1;
    TaxonTable[3][kTaxonSubtotal2] = 1;
    struct {
        int basis, sum;
        float first, last;
    } cases[] = {{0, 100, 0.1F, 0.6F}, {1, 40, 0.25F, 1.5F}, {2, 60, static_cast<float>(10.0 / 60), 1.0F}};
    for (const auto& each : cases) {
        frmMain.Option1[each.basis].SetValue(true);
        ComputeDiagramData();
        EXPECT_EQ(Counts[0][1], each.sum) << each.basis;
        EXPECT_EQ(SamplePercent[1][1], each.first) << each.basis;
        EXPECT_EQ(SamplePercent[3][1], each.last) << each.basis;
        EXPECT_EQ(SamplePercent[0][1], 1.0F) << each.basis;
    }
}

TEST_F(PercentagesTest, ASampleWhoseBasisIs0HasNoSharesAndNoDataMark) {
    Names({"1", "2", "3"});
    Counts[1][1] = 4;  // outside the basis
    Counts[2][2] = 3;
    Counts[3][2] = -3;
    Counts[2][3] = 1;
    TaxonTable[2][kTaxonSubtotal1] = TaxonTable[3][kTaxonSubtotal1] = 1;
    frmMain.Option1[1].SetValue(true);
    DiagramShares[1][1] = DiagramShares[0][1] = 9;  // of an earlier run
    ComputeDiagramData();
    for (const int place : {1, 2})
        for (int row = 0; row <= kSlots; ++row) EXPECT_EQ(SamplePercent[row][place], 0.0F) << place << ", row " << row;
    EXPECT_EQ(SamplePercent[0][3], 1.0F);
}

TEST_F(PercentagesTest, ASumPast32BitsStopsTheRun) {
    Counts[1][1] = 2147483647;
    EXPECT_NO_THROW(ComputeDiagramData());
    Counts[2][1] = 1;
    EXPECT_THROW(ComputeDiagramData(), Failure);
    EXPECT_THROW(SamplePercentages(1), Failure);
}

TEST_F(PercentagesTest, ForTablesASampleStandsInItsOwnColumnBySlot) {
    Names({"20", "10"});
    std::swap(RowOfSlot[1], RowOfSlot[3]);
    Counts[1][1] = 1;
    Counts[2][1] = 3;
    SamplePercentages(1);
    SamplePercentages(2);
    EXPECT_EQ(SamplePercent[1][1], 0.25F);
    EXPECT_EQ(SamplePercent[2][1], 0.75F);
    EXPECT_EQ(SamplePercent[0][1], 1.0F);
    EXPECT_EQ(Counts[0][1], 4);
    for (int slot = 0; slot <= kSlots; ++slot) EXPECT_EQ(SamplePercent[slot][2], 99.99F) << "no basis, slot " << slot;
}

TEST_F(PercentagesTest, AWholeTableHoldsWhatItsSamplesHoldOneByOne) {
    Names({"20", "10", "30"});
    for (int slot = 1; slot <= kSlots; ++slot)
        for (int sample = 1; sample <= 2; ++sample) Counts[slot][sample] = slot * sample % 7 - 1;
    std::vector<float> one_by_one;
    for (std::int16_t sample = 1; sample <= SampleCount; ++sample) {
        SamplePercentages(sample);
        for (int slot = 0; slot <= kSlots; ++slot) one_by_one.push_back(std::exchange(SamplePercent[slot][sample], -1.0F));
    }
    AllSamplePercentages();
    std::vector<float> table;
    for (int sample = 1; sample <= SampleCount; ++sample)
        for (int slot = 0; slot <= kSlots; ++slot) table.push_back(SamplePercent[slot][sample]);
    EXPECT_EQ(table, one_by_one);
}

TEST_F(PercentagesTest, OneSampleForATableTouchesNoOther) {
    Names({"20", "10"});
    Counts[1][1] = Counts[1][2] = 1;
    SamplePercent[1][1] = 7;
    SamplePercentages(2);
    EXPECT_EQ(SamplePercent[1][1], 7.0F);
    EXPECT_EQ(SamplePercent[1][2], 1.0F);
}
}  // namespace
