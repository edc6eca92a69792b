// A number for each sample, as a user names it: a row of Additional info ("Weight (g)"), or one number for all samples ("1.5").
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "figure/sheet/core.h"

using Quantity = std::vector<std::optional<double>>;  // [sample]; nothing where the row is empty

// Raises FigureFault if `text` is neither the name of a row nor a number, and if a value in that row is no number.
Quantity QuantityOf(const Core& core, const std::string& text);
