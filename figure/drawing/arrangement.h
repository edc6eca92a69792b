// Where the columns stand, and on how many pages.
#pragma once
#include <cstddef>
#include <vector>

#include "figure/drawing/column.h"

struct PlacedColumn {
    std::size_t column;
    double left;  // in points, 0 being the left edge of the first column
    double width;
};

struct Arrangement {
    double points_per_percent = 1;
    std::vector<std::vector<PlacedColumn>> pages;
    double width = 0;  // of the widest page's columns with their names
};

struct NameRoom {
    std::vector<double> widths;  // [column]: of its name, in points
    double angle = 90;           // degrees, as it is written

    double Height() const;                   // that the longest takes above the columns
    double Right(std::size_t column) const;  // how far it reaches to the right of its column's left edge
    double LeastDistance() const;            // of two columns, that their names may not touch
};

// All percentages have one scale, the largest that the room allows. Columns that find no place in `room` at a scale that can be read go to
// further pages or, with `one_page`, make the page wider than the room.
Arrangement Arrange(const std::vector<Column>& columns, const NameRoom& names, double room, bool one_page);
