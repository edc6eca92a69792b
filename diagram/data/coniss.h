// Clusters the samples under a constraint: only neighbours in depth order may merge. Two clusters are as far apart as the square of the
// distance between their means; the mean of a merged cluster is the unweighted mean of the two means, so sizes play no part; its height
// is that distance plus the two heights below. This is the program's own criterion, not an incremental sum of squares.
#pragma once
#include <array>
#include <cstdint>
#include <vector>

#include "session/state/sheet_state.h"

using ClusterVector = std::array<float, kSlots + 1>;  // [slot]: its share, as a fraction, 0 outside the basis; [0] is 0

// Of the last run; all begin at index 0, which is unused.
inline std::vector<ClusterVector> ConissData;  // [cluster]
inline std::vector<double> ConissDistance;     // [cluster]: to the cluster below it
inline std::vector<float> ConissPosition;      // [cluster]: where it stands in the scale of the diagram
inline std::vector<double> ConissHeight;       // [cluster]: 0 of a single sample
inline std::vector<float> MergeUpper;          // [step]: positions of the two clusters joined, the last step being the root
inline std::vector<float> MergeLower;
inline std::vector<float> MergeHeight;  // [step]
inline std::int16_t ConissSkip;         // last samples that are left out: always 0

// Fills the arrays above from DiagramShares, which ComputeDiagramData must have filled. Shows the progress bar while it runs. Raises
// "Division by zero" if the first and the last sample have the same depth.
void ComputeConiss();

int LastMerge();  // the root's step

// The variables above, as ForEachSheetVariable.
template <class Visit>
void ForEachClusterVariable(Visit visit) {
    visit("ConissData", ConissData);
    visit("ConissDistance", ConissDistance);
    visit("ConissPosition", ConissPosition);
    visit("ConissHeight", ConissHeight);
    visit("MergeUpper", MergeUpper);
    visit("MergeLower", MergeLower);
    visit("MergeHeight", MergeHeight);
    visit("ConissSkip", ConissSkip);
}
