#include "figure/math/concentration.h"

#include <cmath>

Added AddedTablets(double tablets, double markers_each, double deviation_each) {
    return {tablets * markers_each, deviation_each / markers_each / std::sqrt(tablets)};
}

std::optional<Concentration> ConcentrationOf(double counted, double markers_counted, const Added& added, double amount) {
    if (markers_counted <= 0 || amount <= 0) return std::nullopt;
    const double value = counted * added.markers / (markers_counted * amount);
    if (counted <= 0) return Concentration{};
    return Concentration{value, value * std::sqrt(added.relative * added.relative + 1 / counted + 1 / markers_counted)};
}
