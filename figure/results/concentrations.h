// Concentrations in a core, from a marker that was added to its samples.
#pragma once
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "figure/math/concentration.h"
#include "figure/results/quantity.h"
#include "figure/sheet/core.h"

struct MarkerOptions {
    std::string taxon;   // the marker's name in the sheet
    std::string added;   // tablets * markers a tablet ± its standard deviation: "Tablets*18583", "2*18583±370"; +- does for ±
    std::string volume;  // of a sample, in cm3: a row of Additional info or a number
    std::string weight;  // the same in g; one of the two is empty
};

struct Concentrations {
    std::size_t marker = 0;                                              // which taxon
    bool by_weight = false;                                              // grains/g, else grains/cm3
    Quantity amounts;                                                    // [sample]: g or cm3
    std::vector<std::optional<Added>> added;                             // [sample]
    std::vector<std::vector<std::optional<Concentration>>> taxa;         // [sample][taxon]; of the marker itself nothing
    std::vector<std::array<std::optional<Concentration>, kBases>> sums;  // [sample][basis]: of all in the sum but the marker
};

// Which taxon it is. Raises FigureFault unless just one has this name.
std::size_t MarkerOf(const Core& core, const std::string& name);

std::int64_t CountedBesides(const Core& core, std::size_t marker, std::size_t sample, Basis basis);  // in the sum, the marker aside

// Nothing stands where a sample has no marker or no amount. Raises FigureFault as MarkerOf, for a row or a number that is not there, for an
// amount or an addition that is not above 0, and unless one of volume and weight is given.
Concentrations ConcentrationsOf(const Core& core, const MarkerOptions& options);
