// Concentrations from a marker that was added to the sample in a known number: J. Stockmarr 1971, Pollen et Spores 13, 615-621.
#pragma once
#include <optional>

struct Added {            // markers, in all tablets together
    double markers = 0;   // tablets times markers a tablet
    double relative = 0;  // standard error of that, as a part of it: that of a tablet by the root of the number of tablets
};

Added AddedTablets(double tablets, double markers_each, double deviation_each);  // each > 0 but the last, which may be 0

struct Concentration {
    double value = 0;  // grains a unit of the amount: cm3 or g
    double error = 0;  // standard error, in the same unit
};

// Nothing if no marker was counted, or the amount is not above 0. Of a taxon that was not found the value is 0 and the error 0.
std::optional<Concentration> ConcentrationOf(double counted, double markers_counted, const Added& added, double amount);
