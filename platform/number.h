// Checked conversions into the declared widths of the shared state. Rounding is half to even. Each raises "Overflow" for a value
// outside its type and for what is no number.
#pragma once
#include <cstdint>

std::int16_t ToInt16(double number);
std::int32_t ToInt32(double number);
double RoundHalfEven(double number, int decimals);  // decimals: 0..15 digits kept after the period
