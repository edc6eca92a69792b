#include "figure/results/stratigraphy.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "figure/sheet/fault.h"

namespace {
std::vector<std::size_t> Compared(const Core& core, const ZoneOptions& options) {
    std::vector<std::size_t> compared;
    for (std::size_t taxon = 0; taxon < core.taxa.size(); ++taxon)
        if (core.taxa[taxon].InsideSum(options.basis) && core.taxa[taxon].name != options.left_out) compared.push_back(taxon);
    return compared;
}

// Of the sum of the compared counts: of one with a marker in it, shares would fall where many markers were counted.
Assemblage AssemblageOf(const Sample& sample, const std::vector<std::size_t>& taxa, bool square_roots) {
    Assemblage assemblage;
    for (const std::size_t taxon : taxa) assemblage.push_back(sample.counts[taxon]);
    const double sum = std::accumulate(assemblage.begin(), assemblage.end(), 0.0);
    if (sum == 0) return assemblage;
    for (double& part : assemblage) part = square_roots ? std::sqrt(part / sum) : part / sum;
    return assemblage;
}

std::vector<Zone> ZonesFrom(const Core& core, std::vector<std::size_t> bounds, const std::string& prefix) {
    const std::size_t zones = bounds.size();
    bounds.push_back(core.samples.size());
    std::vector<Zone> found;
    for (std::size_t zone = 0; zone < zones; ++zone)
        found.push_back({prefix + std::to_string(zones - zone), bounds[zone], bounds[zone + 1]});
    return found;
}
}  // namespace

std::optional<double> BoundaryAbove(const Quantity& places, std::size_t sample) {
    const std::optional<double>&above = places[sample > 0 ? sample - 1 : 0], &below = places[std::min(sample, places.size() - 1)];
    return above && below ? std::optional((*above + *below) / 2) : std::nullopt;
}

Stratigraphy StratigraphyOf(const Core& core, const ZoneOptions& options) {
    const std::size_t samples = core.samples.size();
    if (samples < 2) throw FigureFault("zones take two samples or more");
    if (options.zones && (*options.zones < 1 || *options.zones > samples))
        throw FigureFault("there can be 1 to " + std::to_string(samples) + " zones, not " + std::to_string(*options.zones));
    const std::vector<std::size_t> taxa = Compared(core, options);
    std::vector<Assemblage> assemblages;
    for (const Sample& sample : core.samples) assemblages.push_back(AssemblageOf(sample, taxa, options.square_roots));
    std::vector<Merge> merges = ClusterByIncrementalSumOfSquares(assemblages);
    const std::size_t zones = options.zones.value_or(ZonesByBrokenStick(merges));
    std::vector<Zone> found = ZonesFrom(core, ZoneStarts(merges, zones), options.prefix);
    return {std::move(merges), std::move(found)};
}
