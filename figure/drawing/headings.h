// What tells the groups of taxa by name: headings above their columns, and the legend below.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "figure/drawing/column.h"
#include "figure/drawing/pen.h"

constexpr double kHeightOfHeadings = 16;  // points: a group's name and the line below it

// Only then is a heading over each group clear. Not so of a single group, which needs none.
bool GroupsStandTogether(const std::vector<Column>& columns);

struct Heading {
    std::string name;
    Colour colour;
    double left, right;  // of its columns on the page
    double end;          // where something else begins
};

// From left to right, their lines at the height `y`. A name that would run into something else is left out: the legend has it too.
void DrawHeadings(Pen& pen, const std::vector<Heading>& headings, double y);

struct LegendEntry {
    std::string text;
    std::optional<Colour> colour;  // of a square before it
};

// From `at` on, smaller where `room` is not enough for it. Returns its right end.
double DrawLegend(Pen& pen, const std::vector<LegendEntry>& entries, PagePoint at, double room);
