#include "figure/math/confidence.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double kZ = 1.96;  // standard deviations on either side that hold 95 % of a normal distribution
constexpr double kZSquared = kZ * kZ;

// The shares whose distance from `p` is z times their own standard error, which is sqrt(share (1 - share) / sum) for `sign` -1 and
// sqrt(share (1 + share) / sum) for 1. Rounding must not make the lower one negative.
Limits ScoreLimits(double p, double sum, int sign) {
    const double middle = p + kZSquared / (2 * sum);
    const double reach = kZ * std::sqrt(p * (1 + sign * p) / sum + kZSquared / (4 * sum * sum));
    const double scale = 1 - sign * kZSquared / sum;
    return {std::max((middle - reach) / scale, 0.0), (middle + reach) / scale};
}
}  // namespace

std::optional<Limits> LimitsInsideSum(double count, double sum) {
    if (sum <= 0) return std::nullopt;
    const Limits limits = ScoreLimits(count / sum, sum, -1);
    return Limits{limits.low, std::min(limits.high, 1.0)};
}

std::optional<Limits> LimitsOutsideSum(double count, double sum) {
    if (sum <= kZSquared) return std::nullopt;
    return ScoreLimits(count / sum, sum, 1);
}
