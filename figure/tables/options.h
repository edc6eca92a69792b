// What the tables of a core are to tell.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "figure/results/concentrations.h"
#include "figure/results/stratigraphy.h"
#include "figure/sheet/core.h"

struct TableOptions {
    Basis basis = kBasisAll;                          // of zones, richness and the scripts' figures
    ZoneOptions zones;                                // its basis and what it leaves out follow the other options
    std::optional<MarkerOptions> marker;              // with it come concentrations
    std::optional<AccumulationOptions> accumulation;  // and with both influx
    std::string age;                                  // a row of Additional info to be shown beside depths; may be empty
    std::string depth_unit = "cm";
    bool r_script = false, python_script = false;  // that draw the figure from the tables
};
