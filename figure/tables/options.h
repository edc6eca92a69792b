// What the tables of a core are to tell.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "figure/results/accumulation.h"
#include "figure/results/concentrations.h"
#include "figure/results/stratigraphy.h"
#include "figure/sheet/core.h"
#include "platform/control.h"

// Taxa of one colour.
struct ScriptGroup {
    Colour colour;
    std::vector<std::string> taxa;
};

// What the scripts draw.
struct ScriptOptions {
    bool r = false, python = false;   // which of them are written
    std::string title;                // above the figure; may be empty
    std::vector<std::string> taxa;    // in the order of their columns; empty: all, as in the sheet
    std::vector<std::string> italic;  // those whose names are set in italics
    std::vector<ScriptGroup> groups;  // those in none are black
    bool by_age = false;              // the axis, else by depth
    std::string style = "bar";        // as on the command line: bar, curve, silhouette, dot or bar-and-curve
    double exaggerate = 0;            // factor of the pale curve behind; 0 for none
    std::string tree = "counter";     // as on the command line: counter, grimm or none
    bool zones = false;               // lines across, and names
};

struct TableOptions {
    Basis basis = kBasisAll;                          // of richness and the scripts' figures
    ZoneOptions zones;                                // what they leave out, a marker, is no part of richness either
    std::optional<MarkerOptions> marker;              // with it come concentrations
    std::optional<AccumulationOptions> accumulation;  // and with both influx; by ages only of concentrations by volume, if ages allow it
    std::string age;                                  // a row of Additional info to be shown beside depths; may be empty
    std::string depth_unit = "cm";
    ScriptOptions scripts;
};
