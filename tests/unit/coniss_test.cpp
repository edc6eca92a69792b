#include "diagram/data/coniss.h"

#include <cmath>
#include <random>

#include "diagram/data/percentages.h"
#include "platform/failure.h"
#include "platform/services.h"
#include "unit/diagram_test.h"
#include "windows/main_window.h"

namespace {
// The method in its plainest form: every distance is computed anew at every step, every cluster below moves up by one.
struct PlainWay {
    int count = SampleCount;
    std::vector<std::vector<float>> data{kSlots + 1, std::vector<float>(count + 2)};  // [slot][cluster]
    std::vector<double> distance = std::vector<double>(count + 2);
    std::vector<double> height = std::vector<double>(count + 2);
    std::vector<float> position = std::vector<float>(count + 2);
    std::vector<float> upper = std::vector<float>(count + 2), lower = upper, sum_square = upper;

    double DistanceBetween(int one, int other) const {
        double sum = 0;
        for (int slot = 1; slot <= kSlots; ++slot) {
            const double difference = static_cast<double>(data[slot][one]) - static_cast<double>(data[slot][other]);
            sum += difference * difference;
        }
        return sum;
    }

    void Begin(int flag) {
        const double first = SampleTable[kSampleNameDrawn][1].Number(), last = SampleTable[kSampleNameDrawn][count].Number();
        for (int c = 1; c <= count; ++c) {
            for (int slot = 1; slot <= kSlots; ++slot) {
                const double weight = flag == 0 ? 1 : TaxonTable[slot][flag].Number();
                data[slot][c] = static_cast<float>(weight * SamplePercent[RowOfSlot[slot]][c]);
            }
            const double depth = SampleTable[kSampleNameDrawn][c].Number();
            position[c] =
                static_cast<float>(SampleNamesAreText ? 10.0 * c : 10 * ((last - depth) + count * (depth - first)) / (last - first));
        }
    }

    int Nearest(int last, float& best) const {
        best = 9999.0F;
        int nearest = -9999;
        for (int c = 1; c <= last; ++c)
            if (static_cast<float>(distance[c]) < best) {
                best = static_cast<float>(distance[c]);
                nearest = c;
            }
        return nearest;
    }

    void Merge(int step) {
        const int last = count - step;
        for (int c = 1; c <= last; ++c) distance[c] = DistanceBetween(c, c + 1);
        float best = 0;
        const int m = Nearest(last, best);
        upper[step] = position[m];
        lower[step] = position[m + 1];
        sum_square[step] = static_cast<float>(best + height[m] + height[m + 1]);
        for (int slot = 1; slot <= kSlots; ++slot)
            data[slot][m] = static_cast<float>((static_cast<double>(data[slot][m]) + data[slot][m + 1]) / 2);
        position[m] = static_cast<float>((static_cast<double>(position[m]) + position[m + 1]) / 2);
        if (m != 1) distance[m - 1] = DistanceBetween(m - 1, m);
        if (m != last) distance[m] = DistanceBetween(m, m + 2);
        height[m] = sum_square[step];
        for (int c = m + 1; c <= last; ++c) {
            for (int slot = 1; slot <= kSlots; ++slot) data[slot][c] = data[slot][c + 1];
            position[c] = position[c + 1];
            distance[c] = distance[c + 1];
            height[c] = height[c + 1];
        }
    }

    void Run(int flag) {
        Begin(flag);
        for (int step = 1; step < count; ++step) Merge(step);
    }
};

class ConissTest : public DiagramTest {
protected:
    static void Cluster() {
        for (int sample = 1; sample <= SampleCount; ++sample) SampleTable[kSampleNameDrawn][sample] = SampleTable[kSampleName][sample];
        ComputeDiagramData();
        ComputeConiss();
    }

    static void ExpectAsThePlainWay(int flag) {
        PlainWay plain;
        plain.Run(flag);
        for (int step = 1; step < SampleCount; ++step) {
            ASSERT_EQ(MergeUpper[step], plain.upper[step]) << step;
            ASSERT_EQ(MergeLower[step], plain.lower[step]) << step;
            ASSERT_EQ(MergeHeight[step], plain.sum_square[step]) << step;
        }
        for (int c = 1; c <= SampleCount; ++c) {
            ASSERT_EQ(ConissPosition[c], plain.position[c]) << c;
            ASSERT_EQ(ConissDistance[c], plain.distance[c]) << c;
            ASSERT_EQ(ConissHeight[c], plain.height[c]) << c;
            for (int slot = 1; slot <= kSlots; ++slot) ASSERT_EQ(ConissData[c][slot], plain.data[slot][c]) << c << ", slot " << slot;
        }
    }
};

// Few different counts make many equal distances, many counts make none.
TEST_F(ConissTest, MergesBitForBitAsThePlainWay) {
    const unsigned seed = std::random_device{}();
    std::mt19937 random(seed);
    SCOPED_TRACE("seed " + std::to_string(seed));
    for (const int count : {2, 3, 4, 5, 17, 60, 135, 250})
        for (const int largest : {1, 3, 500}) {
            Texts names;
            std::vector<std::vector<int>> counts(count, std::vector<int>(kSlots));
            for (auto& sample : counts) {
                names.push_back(std::to_string(3 * names.size() + random() % 3) + (random() % 2 ? ".5" : ""));
                for (int& cell : sample) cell = static_cast<int>(random() % (largest + 1));
            }
            Sheet(names, counts);
            for (int slot = 1; slot <= kSlots; ++slot) TaxonTable[slot][kTaxonSubtotal1] = static_cast<int>(random() % 2);
            const int basis = static_cast<int>(random() % 2);
            frmMain.Option1[basis].SetValue(true);
            Cluster();
            ExpectAsThePlainWay(basis == 0 ? 0 : 2);
            if (HasFatalFailure()) FAIL() << count << " samples, counts to " << largest;
        }
}

TEST_F(ConissTest, TwoSamplesMergeAtTheirSquaredDistance) {
    Sheet({"a", "b"}, {{1, 1}, {3, 1}});
    Cluster();
    EXPECT_EQ(MergeHeight[1], 0.125F);  // twice a quarter squared
    EXPECT_EQ(MergeUpper[1], 10.0F);
    EXPECT_EQ(MergeLower[1], 20.0F);
}

TEST_F(ConissTest, OfEqualDistancesTheUppermostPairMergesFirst) {
    Sheet({"a", "b", "c", "d"}, {{1}, {0, 1}, {0, 0, 1}, {0, 0, 0, 1}});
    Cluster();
    EXPECT_EQ(MergeUpper[1], 10.0F);
    EXPECT_EQ(MergeLower[1], 20.0F);
    EXPECT_EQ(MergeHeight[1], 2.0F);
}

TEST_F(ConissTest, APositionIsTheMeanOfTheTwoAndNotOfAllSamples) {
    Sheet({"a", "b", "c"}, {{1}, {1}, {0, 1}});
    Cluster();
    EXPECT_EQ(MergeUpper[2], 15.0F);
    EXPECT_EQ(MergeLower[2], 30.0F);
    EXPECT_EQ(ConissPosition[1], 22.5F);
}

TEST_F(ConissTest, IdenticalSamplesMergeWithoutHeight) {
    Sheet({"a", "b", "c"}, {{2, 2}, {5, 5}, {1, 1}});
    Cluster();
    EXPECT_EQ(MergeHeight[1], 0.0F);
    EXPECT_EQ(MergeHeight[2], 0.0F);
    EXPECT_EQ(MergeUpper[1], 10.0F);
}

TEST_F(ConissTest, AHeightAddsThoseBelow) {
    Sheet({"a", "b", "c"}, {{1}, {1, 1}, {0, 0, 1}});
    Cluster();
    EXPECT_EQ(MergeHeight[1], 0.5F);
    EXPECT_EQ(MergeHeight[2], 2.125F);  // 0.75, 0.25 and 1 squared, and the half
}

TEST_F(ConissTest, ASampleWithoutBasisTakesPartAsZeros) {
    Sheet({"a", "b"}, {{0}, {3, 1}});
    Cluster();
    EXPECT_EQ(MergeHeight[1], 0.625F);
}

TEST_F(ConissTest, DepthsStandInProportion) {
    Sheet({"1", "2", "5"}, {{1}, {0, 1}, {0, 1}});
    Cluster();
    EXPECT_EQ(MergeUpper[1], 15.0F);
    EXPECT_EQ(MergeLower[1], 30.0F);
    EXPECT_EQ(MergeUpper[2], 10.0F);
    EXPECT_EQ(MergeLower[2], 22.5F);
}

TEST_F(ConissTest, SharesFarOutsideTheBasisMergeAllTheSame) {
    Sheet({"a", "b", "c"}, {{400, -399}, {-399, 400}, {400, -399}});
    Cluster();
    EXPECT_GT(MergeHeight[1], 9999.0F);
    EXPECT_EQ(MergeUpper[1], 10.0F);
    EXPECT_EQ(MergeLower[2], 30.0F);
}

TEST_F(ConissTest, TheSharesOfATableAreNotTakenForThoseOfTheDiagram) {
    Sheet({"20", "10", "30"}, {{1}, {0, 1}, {0, 1}});
    Cluster();
    const float before = MergeHeight[1];
    for (std::int16_t sample = 1; sample <= 3; ++sample) SamplePercentages(sample);
    ComputeConiss();
    EXPECT_EQ(MergeHeight[1], before);
    EXPECT_EQ(SamplePercent[2][1], 1.0F);  // the shallowest sample
}

TEST_F(ConissTest, EqualEndDepthsAreADivisionByZero) {
    Sheet({"5", "7", "5"}, {{1}, {1}, {1}});
    EXPECT_THROW(Cluster(), Failure);
}

TEST_F(ConissTest, TheBarAndThePointerAreGivenBack) {
    Sheet({"a", "b"}, {{1}, {1}});
    MousePointer = kPointerSize;
    Cluster();
    EXPECT_EQ(MousePointer, kPointerDefault);
    EXPECT_FALSE(frmMain.ProgressBar1.Visible());
    EXPECT_EQ(ConissSkip, 0);
}

TEST_F(ConissTest, TheBarCountsTheMergesAgainstTheSamples) {
    Sheet({"a", "b", "c", "d"}, {{1}, {1}, {1}, {1}});
    for (int sample = 1; sample <= SampleCount; ++sample) SampleTable[kSampleNameDrawn][sample] = SampleTable[kSampleName][sample];
    ComputeDiagramData();
    const BarWatch bar;
    ComputeConiss();
    EXPECT_EQ(bar.seen, (Texts{"1 of 4", "2 of 4", "3 of 4"}));
}
}  // namespace
