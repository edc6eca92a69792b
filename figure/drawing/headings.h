// What tells the groups of taxa by name: headings above their columns, and the legend below.
#pragma once
#include <string>
#include <vector>

#include "figure/drawing/column.h"
#include "figure/drawing/groups.h"
#include "figure/drawing/pen.h"
#include "figure/sheet/core.h"

constexpr double kHeightOfHeadings = 16;  // points: a group's name and the line below it

// Only then is a heading over each group clear. Not so of a single group, which needs none.
bool GroupsStandTogether(const std::vector<Column>& columns);

struct Heading {
    Group group;
    double left, right;  // of its columns on the page
};

// From left to right, their lines at the height `y`. A name that would run into the next one is left out: the legend has it too.
void DrawHeadings(Pen& pen, const Core& core, const std::vector<Heading>& headings, double y);

// In one line that begins at `at`: the remarks, then the groups with their colours. Returns its right end.
double DrawLegend(Pen& pen, const Core& core, const std::vector<std::string>& remarks, const std::vector<Group>& groups, PagePoint at);
