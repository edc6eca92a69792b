// How rich a sample is, by the counts of its taxa.
#pragma once
#include <cstdint>
#include <optional>
#include <span>

// Taxa to be expected in `size` grains drawn from the sample without putting back: S. H. Hurlbert 1971, Ecology 52, 577-586. Nothing if the
// sample has fewer grains, or a count is below 0.
std::optional<double> RarefiedRichness(std::span<const std::int32_t> counts, std::int64_t size);

double Shannon(std::span<const std::int32_t> counts);  // by natural logarithms; 0 of an empty sample
double Simpson(std::span<const std::int32_t> counts);  // 1 less the sum of the squared shares; 0 of an empty sample
