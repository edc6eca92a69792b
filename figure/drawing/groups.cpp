#include "figure/drawing/groups.h"

#include <algorithm>
#include <numeric>

Group GroupOf(const Taxon& taxon) {
    return taxon.in_subtotal[0] ? Group::First : taxon.in_subtotal[1] ? Group::Second : Group::Rest;
}

std::string GroupName(const Core& core, Group group, const std::string& left_out) {
    if (group == Group::Rest) return "Others";
    if (group == Group::First) return core.subtotals[0];
    const bool share = std::ranges::any_of(
        core.taxa, [&](const Taxon& taxon) { return taxon.in_subtotal[0] && taxon.in_subtotal[1] && taxon.name != left_out; });
    return (share ? "Other " : "") + core.subtotals[1];
}

Colour ColourOf(Group group) {
    switch (group) {
        case Group::First:
            return {0, 158, 115};  // bluish green
        case Group::Second:
            return {230, 159, 0};  // orange
        case Group::Rest:
            break;
    }
    return {86, 180, 233};  // sky blue
}

Colour PaleColourOf(Group group) {
    const auto pale = [](unsigned char part) { return static_cast<unsigned char>(255 - (255 - part) * 3 / 10); };
    const Colour colour = ColourOf(group);
    return {pale(colour.red), pale(colour.green), pale(colour.blue)};
}

std::vector<double> GroupShares(const Core& core, std::size_t sample, const std::string& left_out) {
    std::vector<double> shares(std::size(kGroups));
    for (std::size_t taxon = 0; taxon < core.taxa.size(); ++taxon)
        if (core.taxa[taxon].name != left_out)
            shares[static_cast<std::size_t>(GroupOf(core.taxa[taxon]))] += core.samples[sample].counts[taxon];
    const double sum = std::accumulate(shares.begin(), shares.end(), 0.0);
    if (sum == 0) return {};
    double so_far = 0;
    for (double& share : shares) share = (so_far += share) / sum;
    return shares;
}
