#include "figure/results/concentrations.h"

#include <algorithm>

#include "figure/sheet/fault.h"
#include "platform/text.h"

namespace {
Quantity AboveNothing(const Core& core, const std::string& text) {
    const Quantity values = QuantityOf(core, text);
    for (std::size_t sample = 0; sample < values.size(); ++sample)
        if (values[sample] && *values[sample] <= 0)
            throw FigureFault("\"" + text + "\" of sample " + core.samples[sample].name + " is not above 0");
    return values;
}

// The text in front of the mark and the one behind it, which is empty if there is no mark.
std::pair<std::string, std::string> PartAt(const std::string& text, const std::string& mark) {
    const std::size_t at = text.rfind(mark);
    if (at == std::string::npos) return {text, ""};
    return {text.substr(0, at), text.substr(at + mark.size())};
}

struct Tablet {
    double markers = 1, deviation = 0;
};

Tablet TabletOf(const std::string& text) {
    const auto [markers, deviation] = PartAt(text, text.find("+-") == std::string::npos ? "±" : "+-");
    const Tablet tablet = {AsNumber(markers).value_or(0), deviation.empty() ? 0 : AsNumber(deviation).value_or(-1)};
    if (tablet.markers <= 0 || tablet.deviation < 0)
        throw FigureFault("\"" + text + "\" is no number of markers a tablet, such as 18583 or 18583±370");
    return tablet;
}

// [sample]; nothing where the row of tablets is empty.
std::vector<std::optional<Added>> AddedTo(const Core& core, const std::string& text) {
    const auto [count, each] = PartAt(text, "*");
    const Tablet tablet = each.empty() ? Tablet{} : TabletOf(each);
    std::vector<std::optional<Added>> added;
    for (const std::optional<double>& tablets : AboveNothing(core, count)) {
        added.emplace_back();
        if (tablets) added.back() = AddedTablets(*tablets, tablet.markers, tablet.deviation);
    }
    return added;
}

Quantity AmountOf(const Core& core, const MarkerOptions& options) {
    if (options.volume.empty() == options.weight.empty())
        throw FigureFault("concentrations take either the volume or the weight of a sample");
    return AboveNothing(core, options.volume.empty() ? options.weight : options.volume);
}

std::optional<Concentration> Of(std::int64_t counted, std::int64_t markers, const std::optional<Added>& added,
                                const std::optional<double>& amount) {
    if (!added || !amount) return std::nullopt;
    return ConcentrationOf(static_cast<double>(counted), static_cast<double>(markers), *added, *amount);
}
}  // namespace

std::size_t MarkerOf(const Core& core, const std::string& name) {
    const auto marker = std::ranges::find(core.taxa, name, &Taxon::name);
    if (marker == core.taxa.end()) throw FigureFault("no taxon named \"" + name + "\" was counted: there is no such marker");
    if (std::ranges::count(core.taxa, name, &Taxon::name) > 1)
        throw FigureFault("more than one taxon is named \"" + name + "\": which of them is the marker?");
    return marker - core.taxa.begin();
}

std::int64_t CountedBesides(const Core& core, std::size_t marker, std::size_t sample, Basis basis) {
    return core.samples[sample].sums[basis] - (core.taxa[marker].InsideSum(basis) ? core.samples[sample].counts[marker] : 0);
}

Concentrations ConcentrationsOf(const Core& core, const MarkerOptions& options) {
    Concentrations found = {
        MarkerOf(core, options.taxon), options.volume.empty(), AmountOf(core, options), AddedTo(core, options.added), {}, {}};
    for (std::size_t i = 0; i < core.samples.size(); ++i) {
        const std::vector<std::int32_t>& counts = core.samples[i].counts;
        const std::int32_t markers = counts[found.marker];
        const auto of = [&](std::int64_t counted) { return Of(counted, markers, found.added[i], found.amounts[i]); };
        auto& taxa = found.taxa.emplace_back();
        for (const std::int32_t count : counts) taxa.push_back(of(count));
        taxa[found.marker] = std::nullopt;
        auto& sums = found.sums.emplace_back();
        for (const Basis basis : {kBasisAll, kBasisSubtotal1, kBasisSubtotal2})
            sums[basis] = of(CountedBesides(core, found.marker, i, basis));
    }
    return found;
}
