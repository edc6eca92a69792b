#include "figure/tables/zone_tables.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <numeric>

#include "figure/results/quantity.h"
#include "figure/tables/table_text.h"
#include "platform/text.h"

namespace {
std::optional<double> MeanPercentage(const Core& core, const Zone& zone, Basis basis, std::size_t taxon) {
    double sum = 0;
    int samples = 0;
    for (std::size_t i = zone.first; i < zone.end; ++i) {
        const std::vector<double>& shares = core.samples[i].shares[basis];
        if (shares.empty()) continue;
        sum += 100 * shares[taxon];
        ++samples;
    }
    return samples > 0 ? std::optional(sum / samples) : std::nullopt;
}

struct Axis {
    double first, last;  // samples
    std::string unit;
};

Axis AxisOf(const Core& core, const std::string& depth_unit) {
    const bool by_depth = std::ranges::all_of(core.samples, [](const Sample& sample) { return sample.depth.has_value(); });
    if (by_depth && !core.samples.empty()) return {*core.samples.front().depth, *core.samples.back().depth, depth_unit};
    return {1, static_cast<double>(core.samples.size()), "number of the sample"};
}

// What each merge joins, by the samples: the first, the first of the lower cluster, and the last.
std::vector<std::array<std::size_t, 3>> RowsOf(const std::vector<TreeMerge>& merges) {
    std::vector<std::size_t> starts(merges.size() + 2);  // of the clusters, and the end of the last one
    std::iota(starts.begin(), starts.end(), std::size_t{0});
    std::vector<std::array<std::size_t, 3>> rows;
    for (const TreeMerge& merge : merges) {
        const auto lower = std::ranges::lower_bound(starts, merge.middle);
        rows.push_back({*std::prev(lower), merge.middle, *std::next(lower) - 1});
        starts.erase(lower);
    }
    return rows;
}

void WriteRows(TableText& table, const std::array<std::size_t, 3>& samples) {
    for (const std::size_t sample : samples) table.Whole(static_cast<std::int64_t>(sample + 1));
}

// Where zones begin and end, on one axis.
struct Bounds {
    std::string top, base;  // heads of the columns
    Quantity places;        // of the samples
};

std::vector<Bounds> BoundsOf(const Core& core, const TableOptions& options) {
    Bounds depths = {"Top (" + options.depth_unit + ")", "Base (" + options.depth_unit + ")", {}};
    for (const Sample& sample : core.samples) depths.places.push_back(sample.depth);
    if (options.age.empty()) return {depths};
    return {depths, {"Top: " + options.age, "Base: " + options.age, QuantityOf(core, options.age)}};
}

void WritePlace(TableText& table, const std::optional<double>& place) {
    table.Text(place ? NumberText(*place) : "");
}
}  // namespace

std::string ZoneTable(const Core& core, const std::vector<Zone>& zones, const TableOptions& options) {
    const std::vector<Bounds> axes = BoundsOf(core, options);
    TableText table;
    table.Texts({"Zone", "First sample", "Last sample", "Samples"});
    for (const Bounds& axis : axes) table.Texts({axis.top, axis.base});
    for (const Taxon& taxon : core.taxa) table.Text(taxon.name + " (mean %)");
    table.EndRow();
    for (const Zone& zone : zones) {
        table.Texts({zone.name, core.samples[zone.first].name, core.samples[zone.end - 1].name});
        table.Whole(static_cast<std::int64_t>(zone.end - zone.first));
        for (const Bounds& axis : axes) {
            WritePlace(table, BoundaryAbove(axis.places, zone.first));
            WritePlace(table, BoundaryAbove(axis.places, zone.end));
        }
        for (std::size_t taxon = 0; taxon < core.taxa.size(); ++taxon) table.Number(MeanPercentage(core, zone, options.zones.basis, taxon));
        table.EndRow();
    }
    return table.Take();
}

std::string MergeTable(const Core& core, const std::vector<Merge>& merges, bool square_roots) {
    const std::string unit = square_roots ? " (square roots of shares, squared)" : " (shares squared)";
    const std::vector<double> taken = SplitShares(merges), expected = BrokenStick(merges.size());
    TableText table;
    table.Texts({"Step", "First row", "Row of the split", "Last row", "First sample above", "Last sample above", "First sample below",
                 "Last sample below", "Rise of the sum of squares" + unit, "Sum of squares within clusters" + unit, "Split",
                 "Share of the sum of squares (0 to 1)", "Broken stick (0 to 1)"});
    table.EndRow();
    for (std::size_t step = 0; step < merges.size(); ++step) {
        const Merge& merge = merges[step];
        const std::size_t split = merges.size() - step;
        const auto name = [&](std::size_t sample) { return core.samples[sample].name; };
        table.Whole(static_cast<std::int64_t>(step + 1));
        WriteRows(table, {merge.first, merge.middle, merge.end - 1});
        table.Texts({name(merge.first), name(merge.middle - 1), name(merge.middle), name(merge.end - 1)});
        table.Number(merge.rise);
        table.Number(merge.total);
        table.Whole(static_cast<std::int64_t>(split));
        table.Number(taken[split - 1]);
        table.Number(expected[split - 1]);
        table.EndRow();
    }
    return table.Take();
}

std::string CounterTreeTable(const Core& core, const std::string& depth_unit) {
    const auto [first, last, unit] = AxisOf(core, depth_unit);
    TableText table;
    table.Texts({"Basis", "Step", "First row", "Row of the split", "Last row", "Upper cluster (" + unit + ")",
                 "Lower cluster (" + unit + ")", "Height (shares squared)"});
    table.EndRow();
    for (const Basis basis : {kBasisAll, kBasisSubtotal1, kBasisSubtotal2}) {
        const std::vector<TreeMerge>& merges = core.trees[basis];
        const std::vector<std::array<std::size_t, 3>> rows = RowsOf(merges);
        for (std::size_t step = 0; step < merges.size(); ++step) {
            table.Text(kBasisWords[basis]);
            table.Whole(static_cast<std::int64_t>(step + 1));
            WriteRows(table, rows[step]);
            table.Number(first + merges[step].upper * (last - first));
            table.Number(first + merges[step].lower * (last - first));
            table.Number(merges[step].height);
            table.EndRow();
        }
    }
    return table.Take();
}
