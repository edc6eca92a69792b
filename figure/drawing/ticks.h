// Round numbers along an axis.
#pragma once
#include <string>
#include <vector>

// The least of 1, 2, 5, 10, 20, 50 ... (and 0.5, 0.2 ...) of which no more than `most` fit into `span`. `span` > 0, `most` >= 1.
double RoundStep(double span, int most);

std::vector<double> Multiples(double step, double from, double to);  // of `step` > 0, both ends included, rising

std::string RoundNumberText(double number);  // its shortest text of nine decimals at the most: 0.3 of 3 * 0.1
