// Checked conversions into the declared widths of the shared state. Rounding is half to even. Each raises "Overflow" for a value
// outside its type and for what is no number.
#pragma once
#include <cstdint>

std::int16_t ToInteger(double number);
std::int32_t ToLong(double number);
double RoundHalfEven(double number, int decimals);  // decimals: 0..15 digits kept after the period
