#include "figure/drawing/tree.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <iterator>
#include <utility>

#include "figure/drawing/ticks.h"

namespace {
constexpr double kWidth = 72;          // points
constexpr double kRoomForStem = 1.05;  // of the height of the root
constexpr int kMostNumbers = 4;

struct Junction {
    std::size_t middle;  // the first sample of the lower cluster
    double height;
};
using Junctions = std::vector<Junction>;  // in the order of joining

struct Cluster {
    std::size_t first;
    double y, height;
};

Junctions JunctionsOf(const std::vector<TreeMerge>& merges) {
    Junctions junctions;
    for (const TreeMerge& merge : merges) junctions.push_back({merge.middle, merge.height});
    return junctions;
}

Junctions JunctionsOf(const std::vector<Merge>& merges) {
    Junctions junctions;
    for (const Merge& merge : merges) junctions.push_back({merge.middle, merge.total});
    return junctions;
}

double Span(const Junctions& junctions) {
    const double root = junctions.empty() ? 0 : junctions.back().height;
    return root > 0 ? kRoomForStem * root : 1;  // samples that are all equal
}

std::vector<Cluster> Leaves(const SampleAxis& axis, std::size_t samples) {
    std::vector<Cluster> leaves;
    for (std::size_t sample = 0; sample < samples; ++sample) leaves.push_back({sample, axis.Y(sample), 0});
    return leaves;
}

// A cluster stands half-way between the two that it was joined from.
void DrawJunctions(Pen& pen, const ColumnPlace& place, const Junctions& junctions) {
    std::vector<Cluster> clusters = Leaves(place.axis, junctions.size() + 1);
    const auto x = [&, unit = place.width / Span(junctions)](double height) { return place.left + height * unit; };
    for (const Junction& junction : junctions) {
        const auto lower = std::find_if(clusters.begin(), clusters.end(), [&](const Cluster& c) { return c.first == junction.middle; });
        assert(lower != clusters.begin() && lower != clusters.end());
        Cluster& upper = *std::prev(lower);
        pen.Lines({{x(upper.height), upper.y}, {x(junction.height), upper.y}, {x(junction.height), lower->y}, {x(lower->height), lower->y}},
                  kHairline, kBlack);
        upper = {upper.first, (upper.y + lower->y) / 2, junction.height};
        clusters.erase(lower);
    }
    pen.Line({x(clusters.front().height), clusters.front().y}, {place.left + place.width, clusters.front().y});
}

Column TreeColumn(const char* measure, const Junctions& junctions) {
    Column column;
    column.name = "Cluster tree";
    column.measure = measure;
    column.width = kWidth;
    column.draw = [junctions](Pen& pen, const ColumnPlace& place) { DrawJunctions(pen, place, junctions); };
    column.scale = [span = Span(junctions)](const ColumnPlace& place) {
        const double step = RoundStep(span, kMostNumbers);
        return ColumnScale{place.width / span, span, step, step};
    };
    return column;
}
}  // namespace

std::vector<Column> TreeColumns(const Core& core, const FigureOptions& options, const Stratigraphy* zones) {
    if (options.tree == TreeKind::Counter) return {TreeColumn("Sum of squared differences", JunctionsOf(core.trees[options.basis]))};
    if (options.tree == TreeKind::SumOfSquares && zones) return {TreeColumn("Total sum of squares", JunctionsOf(zones->merges))};
    return {};
}
