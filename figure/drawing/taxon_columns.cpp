#include "figure/drawing/taxon_columns.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>

#include "figure/drawing/curves.h"
#include "figure/results/concentrations.h"
#include "figure/sheet/fault.h"
#include "platform/text.h"

namespace {
constexpr double kShortTick = 5;       // percent
constexpr double kRareWidth = 5;       // points: of a column of dots
constexpr double kRoomOfNumber = 1.5;  // points between two numbers

using Taxa = std::vector<std::size_t>;

std::size_t TaxonNamed(const Core& core, const std::string& name) {
    const auto found = std::find_if(core.taxa.begin(), core.taxa.end(), [&](const Taxon& taxon) { return taxon.name == name; });
    if (found == core.taxa.end()) throw FigureFault("no taxon \"" + name + "\" has been counted in this sheet");
    return static_cast<std::size_t>(found - core.taxa.begin());
}

std::set<std::size_t> TaxaNamed(const Core& core, const std::vector<std::string>& names) {
    std::set<std::size_t> taxa;
    for (const std::string& name : names) taxa.insert(TaxonNamed(core, name));
    return taxa;
}

Taxa TaxaInOrder(const Core& core, const FigureOptions& options) {
    Taxa taxa;
    const auto add = [&](std::size_t taxon) {
        if (core.taxa[taxon].name != options.left_out && std::find(taxa.begin(), taxa.end(), taxon) == taxa.end()) taxa.push_back(taxon);
    };
    for (const std::string& name : options.order) add(TaxonNamed(core, name));
    for (std::size_t taxon = 0; taxon < core.taxa.size(); ++taxon) add(taxon);
    return taxa;
}

Values PercentagesOf(const Core& core, const FigureOptions& options, std::size_t taxon) {
    Values values;
    for (const Sample& sample : core.samples) {
        const std::vector<double>& shares = sample.shares[options.basis];
        values.push_back(shares.empty() ? std::nullopt : std::optional(100 * shares[taxon]));
    }
    return values;
}

double Largest(const Values& values) {
    double largest = 0;
    for (const std::optional<double>& value : values) largest = std::max(largest, value.value_or(0));
    return largest;
}

double UpToShortTick(double percent) {
    return std::max(kShortTick, std::ceil(percent / kShortTick) * kShortTick);
}

// An exaggerated curve may reach 10 percent even where the taxon does not.
double LengthOf(double largest, double exaggeration) {
    constexpr double kRoomToExaggerate = 10;
    return UpToShortTick(std::max(largest, std::min(exaggeration * largest, kRoomToExaggerate)));
}

// As the widest number of the figure takes it.
double PercentNumberStep(double points_per_percent) {
    constexpr double kWidthOfNumber = 2.2 * kNumberSize;  // "100"
    for (const double step : {5.0, 10.0, 20.0, 50.0})
        if (step * points_per_percent >= kWidthOfNumber + kRoomOfNumber) return step;
    return 100;
}

ColumnScale PercentScale(double length, const ColumnPlace& place) {
    const double number_step = PercentNumberStep(place.points_per_percent);
    return {place.points_per_percent, length, std::min(kShortTick * std::ceil(number_step / 50), number_step), number_step};
}

// `exaggeration`: of the curve behind; 0: none.
void DrawTaxon(Pen& pen, const ColumnPlace& place, const Values& percentages, Group group, double exaggeration, CurveStyle style) {
    if (exaggeration > 0) DrawExaggerated(pen, place, {percentages, place.points_per_percent * exaggeration, PaleColourOf(group)});
    DrawCurve(pen, place, {percentages, place.points_per_percent, ColourOf(group)}, style);
}

Column RareColumn(Column column, const Values& percentages, Group group) {
    column.width = kRareWidth;
    column.draw = [percentages, group](Pen& pen, const ColumnPlace& place) { DrawPresence(pen, place, {percentages, 1, ColourOf(group)}); };
    return column;
}

Column ColumnOf(const Core& core, const FigureOptions& options, std::size_t taxon) {
    const Group group = GroupOf(core.taxa[taxon]);
    const Values percentages = PercentagesOf(core, options, taxon);
    Column column;
    column.name = core.taxa[taxon].name;
    column.italic = core.taxa[taxon].italic;
    column.group = group;
    const double largest = Largest(percentages);
    if (largest < options.least_percent) return RareColumn(column, percentages, group);
    column.percent = LengthOf(largest, options.exaggeration);
    column.draw = [percentages, group, exaggeration = options.exaggeration, style = options.style](Pen& pen, const ColumnPlace& place) {
        DrawTaxon(pen, place, percentages, group, exaggeration, style);
    };
    column.scale = [length = column.percent](const ColumnPlace& place) { return PercentScale(length, place); };
    return column;
}

bool IsLeftOut(const Column& column, const FigureOptions& options) {
    return column.percent == 0 && !options.rare_as_dots;
}

void CheckBasis(const Core& core, Basis basis) {
    if (std::any_of(core.samples.begin(), core.samples.end(), [basis](const Sample& sample) { return sample.sums[basis] != 0; })) return;
    throw FigureFault("no grain belongs to " + core.subtotals[basis - kBasisSubtotal1] + ", which is to be 100 %");
}

// From the top down and back: the rim between two groups belongs to both.
void DrawGroup(Pen& pen, const ColumnPlace& place, const std::vector<std::vector<double>>& shares, Group group) {
    const auto which = static_cast<std::size_t>(group);
    std::vector<PagePoint> left, right;
    const auto flush = [&] {
        if (left.size() == 1 && left.front().x < right.front().x) pen.Line(left.front(), right.front(), kRim, ColourOf(group));
        left.insert(left.end(), right.rbegin(), right.rend());
        pen.Area(std::move(left), ColourOf(group));
        left.clear();
        right.clear();
    };
    for (std::size_t sample = 0; sample < shares.size(); ++sample) {
        if (shares[sample].empty()) {
            flush();
            continue;
        }
        const double y = place.axis.Y(sample), percent = 100 * place.points_per_percent;
        left.push_back({place.left + (which == 0 ? 0 : shares[sample][which - 1]) * percent, y});
        right.push_back({place.left + shares[sample][which] * percent, y});
    }
    flush();
}
}  // namespace

std::vector<Column> TaxonColumns(const Core& core, const FigureOptions& options) {
    CheckBasis(core, options.basis);
    if (!options.left_out.empty()) MarkerOf(core, options.left_out);
    const std::set<std::size_t> upright = TaxaNamed(core, options.upright), italic = TaxaNamed(core, options.italic);
    std::vector<Column> columns;
    for (const std::size_t taxon : TaxaInOrder(core, options)) {
        Column column = ColumnOf(core, options, taxon);
        column.italic = italic.count(taxon) || (column.italic && !upright.count(taxon));
        if (!IsLeftOut(column, options)) columns.push_back(std::move(column));
    }
    if (columns.empty()) throw FigureFault("no taxon reaches " + NumberText(options.least_percent) + " %");
    return columns;
}

std::vector<Column> SummaryColumns(const Core& core, const FigureOptions& options) {
    std::set<Group> groups;
    for (const Taxon& taxon : core.taxa)
        if (taxon.name != options.left_out) groups.insert(GroupOf(taxon));
    if (groups.size() < 2) return {};
    std::vector<std::vector<double>> shares;
    for (std::size_t sample = 0; sample < core.samples.size(); ++sample) shares.push_back(GroupShares(core, sample, options.left_out));
    Column column;
    column.name = "Summary";
    column.percent = 100;
    column.draw = [shares, groups](Pen& pen, const ColumnPlace& place) {
        for (const Group group : groups) DrawGroup(pen, place, shares, group);
    };
    column.scale = [](const ColumnPlace& place) { return PercentScale(100, place); };
    return {column};
}
