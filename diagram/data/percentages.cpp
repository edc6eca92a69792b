#include "diagram/data/percentages.h"

#include <algorithm>
#include <array>

#include "platform/number.h"
#include "session/state/sample_names.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

BasisWeights WeightsOfBasis() {
    BasisWeights weights{};
    for (int slot = 1; slot <= kSlots; ++slot) {
        if (frmMain.Subtotal1Basis.Value())
            weights[slot] = TaxonTable[slot][kTaxonSubtotal1].Number();
        else if (frmMain.Subtotal2Basis.Value())
            weights[slot] = TaxonTable[slot][kTaxonSubtotal2].Number();
        else
            weights[slot] = 1;
    }
    return weights;
}

void ShowBasisInMenu() {
    frmDiagram.mnuAll.SetChecked(frmMain.AllTotalBasis.Value());
    frmDiagram.mnuSub1.SetChecked(frmMain.Subtotal1Basis.Value());
    frmDiagram.mnuSub2.SetChecked(frmMain.Subtotal2Basis.Value());
}

namespace {
// Of all samples, into Counts[0]. Weights are whole numbers: the sums are exact.
void SumOnBasis() {
    const BasisWeights weights = WeightsOfBasis();
    std::array<double, kColumns + 1> sums{};
    for (int slot = 1; slot <= kSlots; ++slot)
        for (int sample = 1; sample <= SampleCount; ++sample) sums[sample] += weights[slot] * Counts[slot][sample];
    for (int sample = 1; sample <= SampleCount; ++sample) Counts[0][sample] = ToInt32(sums[sample]);
}

// What has no basis is `without_basis`.
float ShareOf(std::int32_t count, std::int32_t sum, float without_basis) {
    return sum != 0 ? static_cast<float>(static_cast<double>(count) / sum) : without_basis;
}

// Numeric names are depths, compared as Singles: the shallowest comes first, of two equal names the left one. From 999999 on a depth
// has no place of its own: the places that are left repeat the sample before them.
void RankByDepth() {
    constexpr float kTooDeep = 999999.0F;
    std::vector<float> depths(SampleCount + 1);
    std::vector<std::int16_t> order;
    for (std::int16_t sample = 1; sample <= SampleCount; ++sample) {
        depths[sample] = static_cast<float>(SampleTable[kSampleName][sample].Number());
        if (depths[sample] < kTooDeep) order.push_back(sample);
    }
    if (order.empty()) return;
    std::stable_sort(order.begin(), order.end(), [&depths](int left, int right) { return depths[left] < depths[right]; });
    order.resize(SampleCount, order.back());
    for (std::int16_t place = 1; place <= SampleCount; ++place) {
        SampleAtRank[place] = order[place - 1];
        SampleRank[order[place - 1]] = place;
    }
}

void RankSamples() {
    CheckSampleNames();
    SampleRank.resize(SampleCount + 1);
    SampleAtRank.resize(SampleCount + 1);
    for (std::int16_t sample = 1; sample <= SampleCount; ++sample) SampleRank[sample] = SampleAtRank[sample] = sample;
    if (!SampleNamesAreText) RankByDepth();
}

void FillFractions() {
    SumOnBasis();
    for (int slot = 0; slot <= kSlots; ++slot)
        for (int sample = 1; sample <= SampleCount; ++sample)
            DiagramShares[RowOfSlot[slot]][SampleRank[sample]] = ShareOf(Counts[slot][sample], Counts[0][sample], 0);
}

// Of one row, not below 0. Several shares at a time: one after the other each would wait for the last.
float LargestShare(int row) {
    constexpr int kLanes = 8;
    const float* const share = DiagramShares[row];
    std::array<float, kLanes> largest{};
    int place = 1;
    for (; place + kLanes <= SampleCount + 1; place += kLanes)
        for (int lane = 0; lane < kLanes; ++lane) largest[lane] = std::max(largest[lane], share[place + lane]);
    for (; place <= SampleCount; ++place) largest[0] = std::max(largest[0], share[place]);
    return *std::max_element(largest.begin(), largest.end());
}

// Every row gets a column as wide as its largest value, an empty row one of width 0, and the gap behind it.
void LayOutColumns() {
    ColumnOffset[1] = 5;
    LastColumnMax = 0;
    for (int row = 1; row <= kSlots; ++row) {
        LastColumnMax = LargestShare(row) * 100;
        ColumnOffset[row + 1] = static_cast<float>(static_cast<double>(LastColumnMax) + ColumnOffset[row] + ColumnGap);
    }
}
}  // namespace

Shares SharesOf(std::int16_t sample, const BasisWeights& basis) {
    double sum = 0;
    for (int slot = 1; slot <= kSlots; ++slot) sum += basis[slot] * Counts[slot][sample];
    Shares shares{ToInt32(sum), {}};
    shares.fractions[0] = ShareOf(shares.sum, shares.sum, kNoBasis);
    for (int slot = 1; slot <= kSlots; ++slot) shares.fractions[slot] = ShareOf(Counts[slot][sample], shares.sum, kNoBasis);
    return shares;
}

Shares SamplePercentages(std::int16_t sample) {
    const Shares shares = SharesOf(sample, WeightsOfBasis());
    Counts[0][sample] = shares.sum;
    for (int slot = 0; slot <= kSlots; ++slot) SamplePercent[slot][sample] = shares.fractions[slot];
    return shares;
}

void AllSamplePercentages() {
    SumOnBasis();
    for (int slot = 0; slot <= kSlots; ++slot)
        for (int sample = 1; sample <= SampleCount; ++sample)
            SamplePercent[slot][sample] = ShareOf(Counts[slot][sample], Counts[0][sample], kNoBasis);
}

void ShowDiagramShares() {
    for (int row = 0; row <= kSlots; ++row) std::copy(&DiagramShares[row][1], &DiagramShares[row][SampleCount + 1], &SamplePercent[row][1]);
}

double SetScrollRange(double units_in_view) {
    constexpr double kFarthest = 32767;  // where a taxon far outside the basis makes the diagram wider, its end is out of reach
    const double end = static_cast<double>(ColumnOffset[kSlots]) - units_in_view + LastColumnMax + 2 * ColumnGap;
    frmDiagram.ColumnScroll.SetRange(0, ToInt16(std::min(end, kFarthest)));
    frmDiagram.ColumnScroll.SetSteps(10, ToInt16(units_in_view));
    return end;
}

void ComputeDiagramData() {
    const double units_per_screen_unit = 5.0 / frmDiagram.HorizontalScale.Value();
    ColumnGap = ToInt16(units_per_screen_unit * 10);
    RankSamples();
    FillFractions();
    ShowDiagramShares();
    for (int slot = 1; slot <= kSlots; ++slot) DiagramNames[RowOfSlot[slot]] = TaxonTable[slot][kTaxonName].Text();
    LayOutColumns();
    SetScrollRange(units_per_screen_unit * frmDiagram.Diagram.ScaleWidth());
}
