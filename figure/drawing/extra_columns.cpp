#include "figure/drawing/extra_columns.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "figure/drawing/curves.h"
#include "figure/drawing/ticks.h"
#include "figure/results/concentrations.h"
#include "figure/results/diversity.h"

namespace {
constexpr double kWidth = 44;  // points
constexpr int kMostNumbers = 3;
constexpr double kThousand = 1000;
constexpr double kMany = 10 * kThousand;  // from here on numbers are thousands

double LargestOf(const Values& values) {
    double largest = 0;
    for (const std::optional<double>& value : values) largest = std::max(largest, value.value_or(0));
    return largest;
}

void InThousands(Values& values) {
    for (std::optional<double>& value : values)
        if (value) *value /= kThousand;
}

std::string WithUnit(const std::string& name, const std::string& unit) {
    return unit.empty() ? name : name + " (" + unit + ")";
}

Column ValueColumn(const std::string& name, const std::string& unit, Values values) {
    const bool many = LargestOf(values) >= kMany;
    if (many) InThousands(values);
    Column column;
    column.name = WithUnit(name, many ? "10³ " + unit : unit);
    column.width = kWidth;
    const double largest = LargestOf(values), span = largest > 0 ? largest : 1;
    column.draw = [values, span](Pen& pen, const ColumnPlace& place) { DrawBars(pen, place, {values, place.width / span, kGrey}); };
    column.scale = [span](const ColumnPlace& place) {
        const double step = RoundStep(span, kMostNumbers);
        return ColumnScale{place.width / span, span, step, step};
    };
    return column;
}

// Of all taxa but the marker, whatever is 100 %.
Column ConcentrationColumn(const Core& core, const MarkerOptions& marker) {
    const Concentrations concentrations = ConcentrationsOf(core, marker);
    Values values;
    for (const auto& sums : concentrations.sums) values.push_back(sums[kBasisAll] ? std::optional(sums[kBasisAll]->value) : std::nullopt);
    return ValueColumn("Total concentration", concentrations.by_weight ? "grains/g" : "grains/cm³", std::move(values));
}

Values SumsOf(const Core& core, Basis basis) {
    Values sums;
    for (const Sample& sample : core.samples) sums.push_back(static_cast<double>(sample.sums[basis]));
    return sums;
}

// " of Trees"; nothing where all grains are the basis.
std::string OfBasis(const Core& core, Basis basis, const std::string& of = " of ") {
    return basis == kBasisAll ? "" : of + core.subtotals[basis - kBasisSubtotal1];
}

std::vector<Column> DiversityColumns(const Core& core, const FigureOptions& options) {
    if (!options.taxa && !options.richness) return {};
    const Diversity diversity = DiversityOf(core, options.basis, options.left_out);
    Values taxa, richness;
    for (const SampleDiversity& sample : diversity.samples) {
        taxa.push_back(sample.taxa);
        richness.push_back(sample.rarefied);
    }
    std::vector<Column> columns;
    if (options.taxa) columns.push_back(ValueColumn("Taxa found" + OfBasis(core, options.basis, " in "), "", std::move(taxa)));
    if (options.richness)
        columns.push_back(
            ValueColumn("Taxa in " + std::to_string(diversity.size) + " grains" + OfBasis(core, options.basis), "", std::move(richness)));
    return columns;
}
}  // namespace

std::vector<Column> ExtraColumns(const Core& core, const FigureOptions& options) {
    std::vector<Column> columns;
    if (options.concentration) columns.push_back(ConcentrationColumn(core, *options.concentration));
    if (options.sums) columns.push_back(ValueColumn("Sum" + OfBasis(core, options.basis), "grains", SumsOf(core, options.basis)));
    std::ranges::move(DiversityColumns(core, options), std::back_inserter(columns));
    return columns;
}
