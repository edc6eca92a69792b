#include "figure/drawing/headings.h"

#include <algorithm>
#include <cstddef>

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

void DrawHeadings(Pen& pen, const Core& core, const std::vector<Heading>& headings, double y) {
    constexpr double kLine = 1.5, kAboveLine = 3;
    for (std::size_t i = 0; i < headings.size(); ++i) {
        const auto& [group, left, right] = headings[i];
        const std::string name = GroupName(core, group);
        pen.Line({left, y}, {right, y}, kLine, ColourOf(group));
        const bool has_room = i + 1 == headings.size() || left + pen.WidthOf(name, kBold) < headings[i + 1].left;
        if (has_room) pen.Write({{left, y - kAboveLine}, name, kBold});
    }
}

double DrawLegend(Pen& pen, const Core& core, const std::vector<std::string>& remarks, const std::vector<Group>& groups, PagePoint at) {
    constexpr Lettering kSmall{kNumberSize};
    constexpr double kGap = 12, kSquare = 0.7 * kNumberSize;
    const auto write = [&](const std::string& text) {
        pen.Write({at, text, kSmall});
        at.x += pen.WidthOf(text, kSmall) + kGap;
    };
    for (const std::string& remark : remarks) write(remark);
    for (const Group group : groups) {
        pen.Rectangle(at.x, at.y - kSquare, at.x + kSquare, at.y, ColourOf(group));
        at.x += kNumberSize;
        write(GroupName(core, group));
    }
    return at.x - kGap;
}
