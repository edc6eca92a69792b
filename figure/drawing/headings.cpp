#include "figure/drawing/headings.h"

#include <algorithm>

namespace {
constexpr Lettering kBold{kNameSize, false, true};
}

bool GroupsStandTogether(const std::vector<Column>& columns) {
    std::vector<Group> met;
    for (const Column& column : columns) {
        if (!column.group || (!met.empty() && met.back() == *column.group)) continue;
        if (std::find(met.begin(), met.end(), *column.group) != met.end()) return false;
        met.push_back(*column.group);
    }
    return met.size() > 1;
}

void DrawHeadings(Pen& pen, const std::vector<Heading>& headings, double y) {
    constexpr double kLine = 1.5, kAboveLine = 3, kRoom = 2;
    for (const Heading& heading : headings) {
        pen.Line({heading.left, y}, {heading.right, y}, kLine, heading.colour);
        if (heading.left + pen.WidthOf(heading.name, kBold) + kRoom <= heading.end)
            pen.Write({{heading.left, y - kAboveLine}, heading.name, kBold});
    }
}

double DrawLegend(Pen& pen, const std::vector<LegendEntry>& entries, PagePoint at, double room) {
    constexpr Lettering kSmall{kNumberSize};
    constexpr double kGap = 12, kSquare = 0.7 * kNumberSize;
    double width = -kGap;
    for (const LegendEntry& entry : entries) width += (entry.colour ? kNumberSize : 0) + pen.WidthOf(entry.text, kSmall) + kGap;
    const double scale = std::min(1.0, room / width);
    for (const auto& [text, colour] : entries) {
        if (colour) {
            pen.Rectangle(at.x, at.y - kSquare * scale, at.x + kSquare * scale, at.y, *colour);
            at.x += kNumberSize * scale;
        }
        pen.Write({at, text, {kNumberSize * scale}});
        at.x += (pen.WidthOf(text, kSmall) + kGap) * scale;
    }
    return at.x - kGap * scale;
}
