#include "figure/results/diversity.h"

#include <algorithm>
#include <numeric>

#include "figure/math/richness.h"

namespace {
using Counts = std::vector<std::int32_t>;

Counts Compared(const Core& core, const Sample& sample, Basis basis, const std::string& left_out) {
    Counts counts;
    for (std::size_t taxon = 0; taxon < core.taxa.size(); ++taxon)
        if (core.taxa[taxon].InsideSum(basis) && core.taxa[taxon].name != left_out) counts.push_back(sample.counts[taxon]);
    return counts;
}

std::int64_t SmallestSum(const std::vector<SampleDiversity>& samples) {
    std::int64_t smallest = 0;
    for (const SampleDiversity& sample : samples)
        if (sample.sum > 0 && (smallest == 0 || sample.sum < smallest)) smallest = sample.sum;
    return smallest;
}
}  // namespace

Diversity DiversityOf(const Core& core, Basis basis, const std::string& left_out) {
    Diversity diversity;
    std::vector<Counts> compared;
    for (const Sample& sample : core.samples) {
        const Counts& counts = compared.emplace_back(Compared(core, sample, basis, left_out));
        const auto found = std::ranges::count_if(counts, [](std::int32_t count) { return count > 0; });
        diversity.samples.push_back({std::accumulate(counts.begin(), counts.end(), std::int64_t{0}), static_cast<int>(found), std::nullopt,
                                     Shannon(counts), Simpson(counts)});
    }
    diversity.size = SmallestSum(diversity.samples);
    for (std::size_t sample = 0; sample < compared.size(); ++sample)
        if (diversity.samples[sample].sum > 0) diversity.samples[sample].rarefied = RarefiedRichness(compared[sample], diversity.size);
    return diversity;
}
