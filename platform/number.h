// Checked conversions into the declared widths of the shared state. Rounding is half to even. Each raises "Overflow" for a value
// outside its type and for what is no number.
#pragma once
#include <cstdint>
#include <limits>

template <class T>
bool Fits(double number) {  // not so for what is no number
    return number >= std::numeric_limits<T>::min() && number <= std::numeric_limits<T>::max();
}

std::int16_t RoundToInt16(double number);
std::int32_t RoundToInt32(double number);

// The same; nearly all numbers of a sheet are whole, and these are spared the call.
inline std::int16_t ToInt16(double number) {
    return Fits<std::int16_t>(number) && number == static_cast<std::int16_t>(number) ? static_cast<std::int16_t>(number)
                                                                                     : RoundToInt16(number);
}
inline std::int32_t ToInt32(double number) {
    return Fits<std::int32_t>(number) && number == static_cast<std::int32_t>(number) ? static_cast<std::int32_t>(number)
                                                                                     : RoundToInt32(number);
}

double RoundHalfEven(double number, int decimals);  // decimals: 0..15 digits kept after the period
