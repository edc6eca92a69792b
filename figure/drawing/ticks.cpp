#include "figure/drawing/ticks.h"

#include <cmath>

#include "platform/number.h"
#include "platform/text.h"

namespace {
constexpr double kSlack = 1e-9;  // of a step: 0.3 is a multiple of 0.1
}

double RoundStep(double span, int most) {
    const double least = span / most;
    const double decade = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (factor * decade >= least * (1 - kSlack)) return factor * decade;
    return 10 * decade;
}

std::vector<double> Multiples(double step, double from, double to) {
    std::vector<double> numbers;
    const double last = std::floor(to / step + kSlack);
    for (double n = std::ceil(from / step - kSlack); n <= last; ++n) numbers.push_back(n == 0 ? 0 : n * step);
    return numbers;
}

std::string RoundNumberText(double number) {
    constexpr int kDecimals = 9;
    return NumberText(RoundHalfEven(number, kDecimals));
}
