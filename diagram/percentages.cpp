#include "diagram/percentages.h"

#include <algorithm>
#include <array>

#include "files/sample_names.h"
#include "platform/number.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

float SamplePercent[kSlots + 1][kColumns + 1];
std::vector<std::int16_t> SampleRank;
std::vector<std::int16_t> SampleAtRank;
float ColumnOffset[kSlots + 2];
std::int16_t ColumnGap;
float LastColumnMax;
std::string DiagramNames[kSlots + 1];

namespace {
using Weights = std::array<double, kSlots + 1>;  // [slot]: how often a grain counts in the basis

Weights BasisWeights() {
    Weights weights{};
    for (int slot = 1; slot <= kSlots; ++slot) {
        if (frmMain.Option1[1].Value())
            weights[slot] = TaxonTable[slot][2].Number();
        else if (frmMain.Option1[2].Value())
            weights[slot] = TaxonTable[slot][3].Number();
        else
            weights[slot] = 1;
    }
    return weights;
}

std::int32_t BasisSum(int sample, const Weights& weights) {
    double sum = 0;
    for (int slot = 1; slot <= kSlots; ++slot) sum = ToLong(sum + Counts[slot][sample] * weights[slot]);
    return ToLong(sum);
}

// Numeric names are depths: the shallowest comes first, of two equal names the left one.
void RankByDepth() {
    std::vector<double> depths(SampleCount + 1);
    for (int sample = 1; sample <= SampleCount; ++sample) depths[sample] = SampleTable[2][sample].Number();
    std::vector<bool> taken(SampleCount + 1);
    std::int16_t best_sample = 0;
    for (std::int16_t place = 1; place <= SampleCount; ++place) {
        float best = 999999.0F;
        for (std::int16_t sample = 1; sample <= SampleCount; ++sample)
            if (best > depths[sample] && !taken[sample]) {
                best_sample = sample;
                best = static_cast<float>(depths[sample]);
            }
        if (best_sample == 0) continue;  // every depth lies beyond the start value
        taken[best_sample] = true;
        SampleRank[best_sample] = place;
        SampleAtRank[place] = best_sample;
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
    const Weights weights = BasisWeights();
    for (int sample = 1; sample <= SampleCount; ++sample) {
        const std::int32_t sum = Counts[0][sample] = BasisSum(sample, weights);
        for (int slot = 0; slot <= kSlots; ++slot)
            SamplePercent[RowOfSlot[slot]][SampleRank[sample]] =
                sum != 0 ? static_cast<float>(static_cast<double>(Counts[slot][sample]) / sum) : 0.0F;
    }
}

// Every row gets a column as wide as its largest value, an empty row one of width 0, and the gap behind it.
void LayOutColumns() {
    ColumnOffset[1] = 5;
    LastColumnMax = 0;
    for (int row = 1; row <= kSlots; ++row) {
        float largest = 0;
        for (int place = 1; place <= SampleCount; ++place) largest = std::max(largest, SamplePercent[row][place] * 100);
        LastColumnMax = largest;
        ColumnOffset[row + 1] = largest + ColumnOffset[row] + ColumnGap;
    }
}

void SetScrollRange(double units_per_screen_unit) {
    const double width = units_per_screen_unit * frmDiagram.Picture1.ScaleWidth();
    frmDiagram.HScroll1.SetRange(0, ToInteger(ColumnOffset[kSlots] - width + LastColumnMax + 2 * ColumnGap));
    frmDiagram.HScroll1.SetSteps(10, ToInteger(width));
}
}  // namespace

void SamplePercentages(std::int16_t sample) {
    const std::int32_t sum = Counts[0][sample] = BasisSum(sample, BasisWeights());
    for (int slot = 0; slot <= kSlots; ++slot)
        SamplePercent[slot][sample] = sum != 0 ? static_cast<float>(static_cast<double>(Counts[slot][sample]) / sum) : kNoBasis;
}

void ComputeDiagramData() {
    const double units_per_screen_unit = 5.0 / frmDiagram.Slider2.Value();
    ColumnGap = ToInteger(units_per_screen_unit * 10);
    RankSamples();
    FillFractions();
    for (int slot = 1; slot <= kSlots; ++slot) DiagramNames[RowOfSlot[slot]] = TaxonTable[slot][4].Text();
    LayOutColumns();
    SetScrollRange(units_per_screen_unit);
}
