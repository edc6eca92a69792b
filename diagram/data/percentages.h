// From counts to the fractions, the sample order and the column layout that tables and the diagram are made of.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "session/state/sheet_state.h"

// Fractions: 1 is 100 %. After ComputeDiagramData [sheet row][display position], row 0 being 1 where the sample has data, else 0. After
// SamplePercentages [slot][sample].
inline float SamplePercent[kSlots + 1][kColumns + 1];

inline std::vector<std::int16_t> SampleRank;    // [sample]: its display position; [0] unused
inline std::vector<std::int16_t> SampleAtRank;  // [display position]: the sample
inline float ColumnOffset[kSlots + 2];          // [sheet row]: left edge of its column in percent units; [136]: the right end
inline std::int16_t ColumnGap;                  // empty space between two columns, in percent units
inline float LastColumnMax;                     // the largest percentage of sheet row 135
inline std::string DiagramNames[kSlots + 1];    // [sheet row]: taxon name; [0] unused

constexpr float kNoBasis = 99.99f;  // the mark of a sample whose basis sum is 0

// The fractions of one sample on the basis selected in frmMain.BasisOptions, into SamplePercent[slot][sample]; kNoBasis if its sum is 0,
// which goes to Counts[0][sample]. Raises "Overflow" if the sum leaves 32 bits.
void SamplePercentages(std::int16_t sample);

// Everything that the diagram draws from, on the same basis, with the horizontal scale of frmDiagram.HorizontalScale; sets the range of its
// scroll bar. Calls CheckSampleNames. Raises "Overflow" as above.
void ComputeDiagramData();

// A percentage table or the % button may have put its own shares into SamplePercent: then those of the diagram are filled in again.
// For whoever reads them without a ComputeDiagramData of his own.
void RestoreDiagramShares();

// Sets the range of frmDiagram.ColumnScroll for a picture that shows so many percent units. Returns the end of the range before it is
// rounded and held within 32767: 0 or less if all columns are in view.
double SetScrollRange(double units_in_view);

// The variables above, as ForEachSheetVariable.
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
