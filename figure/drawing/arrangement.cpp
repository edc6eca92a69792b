#include "figure/drawing/arrangement.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace {
constexpr double kLeastScale = 0.8, kLargestScale = 6;  // points a percent
constexpr double kGap = 6;                              // points between two columns
constexpr double kLineOfNames = 1.25 * kNameSize;

double Radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

double WidthOf(const Column& column, double scale) {
    return column.percent > 0 ? column.percent * scale : column.width;
}

Arrangement ArrangeAt(const std::vector<Column>& columns, const NameRoom& names, double room, double scale) {
    Arrangement arrangement{scale, {{}}};
    double left = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const double width = WidthOf(columns[i], scale);
        const auto right = [&] { return left + std::max(width, names.Right(i)); };
        if (right() > room && !arrangement.pages.back().empty()) {
            arrangement.pages.emplace_back();
            left = 0;
        }
        arrangement.pages.back().push_back({i, left, width});
        arrangement.width = std::max(arrangement.width, right());
        left += std::max(width + kGap, names.LeastDistance());
    }
    return arrangement;
}

// At which the longest column has its place.
double LeastScale(const std::vector<Column>& columns, double room) {
    double least = kLeastScale;
    for (const Column& column : columns)
        if (column.percent > 0) least = std::min(least, room / column.percent);
    return least;
}
}  // namespace

double NameRoom::Height() const {
    const double longest = widths.empty() ? 0 : *std::max_element(widths.begin(), widths.end());
    return longest * std::sin(Radians(angle)) + kNameSize * std::cos(Radians(angle));
}

double NameRoom::Right(std::size_t column) const {
    return widths[column] * std::cos(Radians(angle)) + kNameSize;
}

double NameRoom::LeastDistance() const {
    return kLineOfNames / std::sin(Radians(angle));
}

Arrangement Arrange(const std::vector<Column>& columns, const NameRoom& names, double room, bool one_page) {
    const double without_end = std::numeric_limits<double>::infinity();
    double scale = one_page ? kLeastScale : LeastScale(columns, room), above = kLargestScale;
    const double limit = one_page ? without_end : room;
    const auto fits = [&, pages = ArrangeAt(columns, names, limit, scale).pages.size()](const Arrangement& arrangement) {
        return arrangement.pages.size() <= pages && arrangement.width <= room;
    };
    for (int halving = 0; halving < 30; ++halving) {
        const double middle = (scale + above) / 2;
        (fits(ArrangeAt(columns, names, limit, middle)) ? scale : above) = middle;
    }
    return ArrangeAt(columns, names, limit, scale);
}
