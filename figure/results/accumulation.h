// How fast the sediment of a core was laid down: what turns concentrations into influx.
#pragma once
#include <string>

#include "figure/results/quantity.h"
#include "figure/sheet/core.h"

struct AccumulationOptions {
    std::string age;   // in years, before or after a date: a row of Additional info. Rates then follow from depths and ages, in cm/yr
    std::string rate;  // cm/yr, or g/(cm2 yr) where concentrations are by weight: a row or a number. One of the two is empty
};

// By ages, the rate of a sample is the one between the next samples with ages above and below it; a sample without an age has none.
// `depth_unit`: "mm", "cm" or "m". Raises FigureFault as QuantityOf, unless one of the two is given, for rates below 0, and for ages
// without depths, of less than two samples, or that do not all rise or all fall downwards.
Quantity AccumulationRates(const Core& core, const AccumulationOptions& options, const std::string& depth_unit);
