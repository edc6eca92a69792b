#include "figure/math/richness.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {
std::int64_t SumOf(std::span<const std::int32_t> counts) {
    return std::accumulate(counts.begin(), counts.end(), std::int64_t{0});
}

// The logarithm of n over k.
double LogChoose(double n, double k) {
    return std::lgamma(n + 1) - std::lgamma(k + 1) - std::lgamma(n - k + 1);
}
}  // namespace

std::optional<double> RarefiedRichness(std::span<const std::int32_t> counts, std::int64_t size) {
    const std::int64_t sum = SumOf(counts);
    if (size > sum || size < 0 || std::ranges::any_of(counts, [](std::int32_t count) { return count < 0; })) return std::nullopt;
    double expected = 0;
    for (const std::int32_t count : counts) {
        if (count == 0) continue;
        const auto others = static_cast<double>(sum - count), whole = static_cast<double>(sum), drawn = static_cast<double>(size);
        expected += others < drawn ? 1 : 1 - std::exp(LogChoose(others, drawn) - LogChoose(whole, drawn));
    }
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
