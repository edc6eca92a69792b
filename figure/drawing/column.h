// A column of the figure: its name, how much room it takes, and how it is drawn.
#pragma once
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "figure/drawing/groups.h"
#include "figure/drawing/options.h"
#include "figure/drawing/pen.h"
#include "figure/drawing/sample_axis.h"

// Where a column has come to stand.
struct ColumnPlace {
    const SampleAxis& axis;
    double left;
    double width;
    double points_per_percent;
};

// Numbers below a column. A number that would touch the one before it is left out.
struct ColumnScale {
    double unit = 0;         // of the numbers, in points; 0: no scale
    double length = 0;       // in units
    double short_step = 0;   // between two ticks
    double number_step = 0;  // between two numbers
};

struct Column {
    std::string name;
    bool italic = false;
    std::optional<Group> group;  // that heads it
    double percent = 0;          // its length, on the scale that all percentages share; 0: `width` holds
    double width = 0;            // in points
    std::string measure;         // of the numbers below it, as the name does not say it; may be empty
    std::function<void(Pen&, const ColumnPlace&)> draw;
    std::function<ColumnScale(const ColumnPlace&)> scale;
};

using Values = std::vector<std::optional<double>>;  // [sample]
