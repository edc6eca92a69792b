// The zones of a core, by the incremental sum of squares.
#pragma once
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "figure/math/zones.h"
#include "figure/results/quantity.h"
#include "figure/sheet/core.h"

struct ZoneOptions {
    Basis basis = kBasisAll;           // the taxa inside its sum are compared, by their shares of what they add up to
    std::string left_out;              // but for this one: a marker; may be empty
    bool square_roots = true;          // of the shares, so that rare taxa weigh more; else the shares themselves
    std::optional<std::size_t> zones;  // how many; nothing: as many as the broken stick leaves
    std::string prefix = "LPAZ-";      // of the zones' names: local pollen assemblage zones
};

struct Zone {
    std::string name;                // the prefix and a number, 1 being the lowest
    std::size_t first = 0, end = 0;  // samples first .. end - 1
};

struct Stratigraphy {
    std::vector<Merge> merges;  // of samples, 0 being the uppermost
    std::vector<Zone> zones;    // from the top down
};

// A sample without a grain of the compared taxa counts as one whose shares are all 0. Raises FigureFault for less than two samples, and for
// a number of zones that is 0 or above that of the samples.
Stratigraphy StratigraphyOf(const Core& core, const ZoneOptions& options);

// Where a zone ends and one begins whose first is `sample`, by the depths or ages of the samples: half-way to the sample above. At the ends
// of the core, 0 and the number of samples, that of the last sample there. Nothing if one of the two has no place.
std::optional<double> BoundaryAbove(const Quantity& places, std::size_t sample);
