// From counts to the fractions, the sample order and the column layout that tables and the diagram are made of.
#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "session/state/sheet_state.h"

// The percent basis: all taxa, or the members of a subtotal. frmMain.BasisOptions holds the choice, the menu of the diagram shows it.
using BasisWeights = std::array<double, kSlots + 1>;  // [slot]: how often a grain counts in the basis; [0] is 0

BasisWeights WeightsOfBasis();
void ShowBasisInMenu();  // the check marks of the diagram's menu

// What the diagram and the clusters are made of, as ComputeDiagramData left it: fractions, 1 being 100 %. Row 0 is 1 where the sample has
// data, else 0.
inline float DiagramShares[kSlots + 1][kColumns + 1];  // [sheet row][display position]

// For scripts: what was computed or drawn last. DiagramShares, or after SamplePercentages its shares, as [slot][sample].
inline float SamplePercent[kSlots + 1][kColumns + 1];

inline std::vector<std::int16_t> SampleRank;    // [sample]: its display position; [0] unused
inline std::vector<std::int16_t> SampleAtRank;  // [display position]: the sample
inline float ColumnOffset[kSlots + 2];          // [sheet row]: left edge of its column in percent units; [136]: the right end
inline std::int16_t ColumnGap;                  // empty space between two columns, in percent units
inline float LastColumnMax;                     // the largest percentage of sheet row 135
inline std::string DiagramNames[kSlots + 1];    // [sheet row]: taxon name; [0] unused

constexpr float kNoBasis = 99.99f;  // the mark of a sample whose basis sum is 0

struct Shares {
    std::int32_t sum = 0;                       // of the basis
    std::array<float, kSlots + 1> fractions{};  // [slot]: of the sum; kNoBasis if that is 0. [0]: of the sum itself
};

Shares SharesOf(std::int16_t sample, const BasisWeights& basis);  // raises "Overflow" if the sum leaves 32 bits

// The shares of one sample on the basis selected in frmMain.BasisOptions, for a table: they go to SamplePercent[slot][sample] too, and the
// sum to Counts[0][sample]. Raises "Overflow" as above.
Shares SamplePercentages(std::int16_t sample);
void AllSamplePercentages();  // of each sample, row by row as they lie in memory

// Everything that the diagram draws from, on the same basis, with the horizontal scale of frmDiagram.HorizontalScale; sets the range of its
// scroll bar. Calls CheckSampleNames. Raises "Overflow" as above.
void ComputeDiagramData();

void ShowDiagramShares();  // in SamplePercent, where those of a table may stand

// Sets the range of frmDiagram.ColumnScroll for a picture that shows so many percent units. Returns the end of the range before it is
// rounded and held within 32767: 0 or less if all columns are in view.
double SetScrollRange(double units_in_view);

// The variables above that scripts read, as ForEachSheetVariable.
template <class Visit>
void ForEachDiagramVariable(Visit visit) {
    visit("SamplePercent", SamplePercent);
    visit("SampleRank", SampleRank);
    visit("SampleAtRank", SampleAtRank);
    visit("ColumnOffset", ColumnOffset);
    visit("ColumnGap", ColumnGap);
    visit("LastColumnMax", LastColumnMax);
    visit("DiagramNames", DiagramNames);
}

// The same for the other.
template <class Visit>
void ForEachHiddenDiagramVariable(Visit visit) {
    visit("DiagramShares", DiagramShares);
}
