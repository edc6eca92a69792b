#include "figure/math/richness.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {
std::int64_t SumOf(std::span<const std::int32_t> counts) {
    return std::accumulate(counts.begin(), counts.end(), std::int64_t{0});
}

// The chance that `drawn` of `whole` grains miss all `count` of a taxon: C(whole - count, drawn) / C(whole, drawn), multiplied out, since
// the logarithms of large factorials lose what the difference of two of them is about.
double ChanceToMiss(double whole, double count, double drawn) {
    const double fewer = std::min(count, drawn), more = std::max(count, drawn);
    double chance = 1;
    for (double i = 0; i < fewer; ++i) chance *= std::max(whole - more - i, 0.0) / (whole - i);
    return chance;
}
}  // namespace

std::optional<double> RarefiedRichness(std::span<const std::int32_t> counts, std::int64_t size) {
    const std::int64_t sum = SumOf(counts);
    if (size > sum || size < 0 || std::ranges::any_of(counts, [](std::int32_t count) { return count < 0; })) return std::nullopt;
    double expected = 0;
    for (const std::int32_t count : counts) expected += 1 - ChanceToMiss(static_cast<double>(sum), count, static_cast<double>(size));
    return expected;
}

double Shannon(std::span<const std::int32_t> counts) {
    const auto sum = static_cast<double>(SumOf(counts));
    double index = 0;
    for (const std::int32_t count : counts)
        if (count > 0) index -= count / sum * std::log(count / sum);
    return index;
}

double Simpson(std::span<const std::int32_t> counts) {
    const auto sum = static_cast<double>(SumOf(counts));
    if (sum <= 0) return 0;
    double squares = 0;
    for (const std::int32_t count : counts) squares += (count / sum) * (count / sum);
    return 1 - squares;
}
