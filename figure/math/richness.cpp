#include "figure/math/richness.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {
std::int64_t SumOf(std::span<const std::int32_t> counts) {
    return std::accumulate(counts.begin(), counts.end(), std::int64_t{0});
}

// C(whole - count, drawn) / C(whole, drawn), multiplied out.
double ProductToMiss(double whole, double fewer, double more) {
    double chance = 1;
    for (double i = 0; i < fewer; ++i) chance *= std::max(whole - more - i, 0.0) / (whole - i);
    return chance;
}

// The same by Stirling's series of the four factorials. Each is divided by the powers of `whole` in it, which leave the quotient as it is:
// the logarithms themselves are so large that rounding takes what their difference is about.
double SeriesToMiss(double whole, double fewer, double more) {
    const auto logarithm_without = [whole](double taken) {
        return (whole - taken + 0.5) * std::log1p(-taken / whole) + 1 / (12 * (whole - taken));
    };
    return std::exp(logarithm_without(fewer) + logarithm_without(more) - logarithm_without(0) - logarithm_without(fewer + more));
}

// The chance that `drawn` of `whole` grains miss all `count` of a taxon. It is no more than exp(-count * drawn / whole).
double ChanceToMiss(double whole, double count, double drawn) {
    constexpr double kLost = 40;      // exp(-40) is lost beside 1
    constexpr double kMany = 10'000;  // factors: beyond, what is not lost has counts so small beside `whole` that the series is exact
    const double fewer = std::min(count, drawn), more = std::max(count, drawn);
    if (fewer * more > kLost * whole) return 0;
    return fewer > kMany ? SeriesToMiss(whole, fewer, more) : ProductToMiss(whole, fewer, more);
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
