// 95 % limits of a percentage, as fractions of the sum.
#pragma once
#include <optional>

struct Limits {
    double low = 0, high = 0;
};

// Of a taxon inside the sum: the score interval of E. B. Wilson 1927, Journal of the American Statistical Association 22, 209-212.
// `count` of `sum`, 0 <= count <= sum; nothing if `sum` is 0.
std::optional<Limits> LimitsInsideSum(double count, double sum);

// Of a taxon outside the sum, whose share may be above 1: L. J. Maher 1972, Review of Palaeobotany and Palynology 13, 85-93. `count` >= 0;
// nothing if `sum` is no greater than the square of 1.96.
std::optional<Limits> LimitsOutsideSum(double count, double sum);
