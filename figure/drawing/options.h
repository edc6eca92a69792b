// What a figure is to show and how.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "figure/results/concentrations.h"
#include "figure/results/stratigraphy.h"
#include "figure/sheet/core.h"

enum class CurveStyle { Bar, Curve, Silhouette, Dot, BarAndCurve };
enum class TreeKind { None, Counter, SumOfSquares };

struct FigureOptions {
    Basis basis = kBasisAll;
    CurveStyle style = CurveStyle::Bar;
    double exaggeration = 0;                   // 0: none
    double least_percent = 0;                  // taxa that never reach it are left out
    bool rare_as_dots = false;                 // or else drawn as a dot for each sample that has them
    std::vector<std::string> order;            // the taxa that come first, by name; those that are not named keep their order behind them
    std::vector<std::string> upright, italic;  // names of taxa that are set otherwise than by the rule
    double name_angle = 90;                    // degrees: 90 or 45
    std::string title;                         // above all; may be empty
    std::string age;                           // a row of Additional info that gives the places of the samples; empty: their depths
    std::string depth_unit = "cm";
    bool summary = true;  // the sums of the groups side by side, where there are two groups or more
    TreeKind tree = TreeKind::Counter;
    bool has_zones = false;                             // lines across, and names
    ZoneOptions zones;                                  // of these and of TreeKind::SumOfSquares
    std::string left_out;                               // a taxon that is no column and in no group: a marker; may be empty
    bool sums = false, taxa = false, richness = false;  // columns at the right
    std::optional<MarkerOptions> concentration;         // one more of them
    double page_width = 842, page_height = 595;         // in points: A4 lying
    bool one_page = false;                              // that grows in width with what it has to show; else as many as it takes
};
