#include "platform/number.h"

#include <cassert>
#include <cmath>

#include "platform/failure.h"

namespace {

constexpr double kAllWhole = 4503599627370496.0;  // 2^52: a double from here on has no fraction

// std::nearbyint rounds half to even: nothing in the program sets another way of rounding.
template <class T>
T RoundToWhole(double number) {
    const double whole = std::nearbyint(number);
    if (!Fits<T>(whole)) throw Failure(kOverflow);
    return static_cast<T>(whole);
}

double PowerOfTen(int exponent) {
    double power = 1;
    for (; exponent > 0; --exponent) power *= 10;
    return power;
}

}  // namespace

std::int16_t RoundToInt16(double number) {
    return RoundToWhole<std::int16_t>(number);
}

std::int32_t RoundToInt32(double number) {
    return RoundToWhole<std::int32_t>(number);
}

double RoundHalfEven(double number, int decimals) {
    assert(decimals >= 0 && decimals <= 15);
    if (!std::isfinite(number)) throw Failure(kOverflow);
    const double power = PowerOfTen(decimals);  // exact, so that the quotient is the double nearest to the decimal
    const double scaled = number * power;
    return std::abs(scaled) < kAllWhole ? std::nearbyint(scaled) / power : number;
}
