// The zones of a core, by the incremental sum of squares.
#pragma once
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "figure/math/zones.h"
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
    std::optional<double> top,
        base;  // depths: half-way to the next zone's sample, at the ends those of the samples; nothing without depths
};

struct Stratigraphy {
    std::vector<Merge> merges;  // of samples, 0 being the uppermost
    std::vector<Zone> zones;    // from the top down
};

// A sample without a grain of the compared taxa counts as one whose shares are all 0. Raises FigureFault for less than two samples, and for
// a number of zones that is 0 or above that of the samples.
Stratigraphy StratigraphyOf(const Core& core, const ZoneOptions& options);
