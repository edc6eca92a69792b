// From counts to the fractions, the sample order and the column layout that tables and the diagram are made of.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "session/sheet_state.h"

extern float SamplePercent[kSlots + 1][kColumns + 1];  // a fraction, 1 is 100 %. After ComputeDiagramData: [sheet row][display position],
                                                       // row 0 is 1 where the sample has data, else 0. After SamplePercentages: [slot][sample]
extern std::vector<std::int16_t> SampleRank;           // [sample]: its display position; [0] unused
extern std::vector<std::int16_t> SampleAtRank;         // [display position]: the sample
extern float ColumnOffset[kSlots + 2];                 // [sheet row]: left edge of its column in percent units; [136]: the right end
extern std::int16_t ColumnGap;                         // empty space between two columns, in percent units
extern float LastColumnMax;                            // the largest percentage of sheet row 135
extern std::string DiagramNames[kSlots + 1];           // [sheet row]: taxon name; [0] unused

constexpr float kNoBasis = 99.99f;  // the mark of a sample whose basis sum is 0

// The fractions of one sample on the basis selected in frmMain.Option1, into SamplePercent[slot][sample]; kNoBasis if its sum is 0,
// which goes to Counts[0][sample]. Raises "Overflow" if the sum leaves 32 bits.
void SamplePercentages(std::int16_t sample);

// Everything that the diagram draws from, on the same basis, with the horizontal scale of frmDiagram.Slider2; sets the range of its
// scroll bar. Calls CheckSampleNames. Raises "Overflow" as above.
void ComputeDiagramData();
