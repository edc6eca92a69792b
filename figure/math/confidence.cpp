#include "figure/math/confidence.h"

#include <cmath>

namespace {
constexpr double kZ = 1.96;  // standard deviations on either side that hold 95 % of a normal distribution
constexpr double kZSquared = kZ * kZ;
}  // namespace

std::optional<Limits> LimitsInsideSum(double count, double sum) {
    if (sum <= 0) return std::nullopt;
    const double p = count / sum;
    const double middle = p + kZSquared / (2 * sum);
    const double reach = kZ * std::sqrt(p * (1 - p) / sum + kZSquared / (4 * sum * sum));
    const double scale = 1 + kZSquared / sum;
    return Limits{(middle - reach) / scale, (middle + reach) / scale};
}

std::optional<Limits> LimitsOutsideSum(double count, double sum) {
    if (sum <= kZSquared) return std::nullopt;
    const double p = count / sum;
    const double middle = p + kZSquared / (2 * sum);
    const double reach = kZ * std::sqrt(p * (1 + p) / sum + kZSquared / (4 * sum * sum));
    const double scale = 1 - kZSquared / sum;
    return Limits{(middle - reach) / scale, (middle + reach) / scale};
}
