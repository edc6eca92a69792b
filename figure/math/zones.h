// Zones of a core: neighbouring samples that belong together.
#pragma once
#include <cstddef>
#include <span>
#include <vector>

using Assemblage = std::vector<double>;  // the shares of the taxa in a sample, or their square roots

struct Merge {
    std::size_t first = 0, middle = 0, end = 0;  // the samples first .. middle - 1 and middle .. end - 1, in the order of depth
    double rise = 0;                             // of the sum of squares within clusters by this merge
    double total = 0;                            // sum of squares within all clusters after it
};

// Clusters neighbours by the incremental sum of squares: of all pairs of neighbouring clusters that is joined which raises the sum of
// squares within clusters least, of equal ones the upper. E. C. Grimm 1987, Computers & Geosciences 13, 13-35. In the order of joining, one
// merge less than there are samples; all samples have equally many taxa.
std::vector<Merge> ClusterByIncrementalSumOfSquares(std::span<const Assemblage> samples);

// A stick broken at random: the mean share of its k-th largest piece is (1/N) (1/k + 1/(k+1) + ... + 1/N). [k - 1]
std::vector<double> BrokenStick(std::size_t pieces);

// Of the sum of squares of all samples, what each split takes, the last merge being the first split. 0 if all samples are equal. [k - 1]
std::vector<double> SplitShares(std::span<const Merge> merges);

// How many zones the broken stick leaves: splits count, from the first on, while each takes more than the piece of its rank. K. D. Bennett
// 1996, New Phytologist 132, 155-170. 1 at the least.
std::size_t ZonesByBrokenStick(std::span<const Merge> merges);

std::vector<std::size_t> ZoneStarts(std::span<const Merge> merges, std::size_t zones);  // the first sample of each zone, rising; [0] is 0
