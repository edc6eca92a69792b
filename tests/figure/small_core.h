// A core small enough to reckon by hand.
#pragma once
#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "figure/sheet/core.h"

inline Sample SmallSample(double depth, std::vector<std::int32_t> counts, std::initializer_list<const char*> values,
                          const std::vector<Taxon>& taxa) {
    Sample sample;
    sample.name = std::to_string(static_cast<int>(depth));
    sample.depth = depth;
    sample.values.fill(kEmpty);
    std::copy(values.begin(), values.end(), sample.values.begin());
    sample.counts = std::move(counts);
    for (const Basis basis : {kBasisAll, kBasisSubtotal1, kBasisSubtotal2}) {
        for (std::size_t taxon = 0; taxon < taxa.size(); ++taxon)
            if (taxa[taxon].InsideSum(basis)) sample.sums[basis] += sample.counts[taxon];
        for (const std::int32_t count : sample.counts)
            if (sample.sums[basis] > 0)
                sample.shares[basis].push_back(static_cast<double>(count) / static_cast<double>(sample.sums[basis]));
    }
    return sample;
}

inline Taxon SmallTaxon(const char* name, bool tree, bool herb) {
    Taxon taxon;
    taxon.name = name;
    taxon.in_subtotal[0] = tree;
    taxon.in_subtotal[1] = herb;
    return taxon;
}

//     sample            10    20    40
//     Pinus, tree       30    10     0
//     Betula, tree      10    30    50
//     Poaceae, herb     10     0     0
//     Lycopodium        50    20    25
//     Volume (cm3)     0.5     2   ---
//     Tablets            2     2     2
//     Age (BP)         100   300  1300
inline Core SmallCore() {
    Core core;
    core.title = "small";
    core.subtotals = {"Trees", "Herbs"};
    core.params = {"Volume (cm3)", "Tablets", "Age (BP)", "Lithology", "Additional info-5", "Additional info-6"};
    core.taxa = {SmallTaxon("Pinus", true, false), SmallTaxon("Betula", true, false), SmallTaxon("Poaceae", false, true),
                 SmallTaxon("Lycopodium", false, false)};
    core.samples = {SmallSample(10, {30, 10, 10, 50}, {"0.5", "2", "100", "peat"}, core.taxa),
                    SmallSample(20, {10, 30, 0, 20}, {"2", "2", "300", "peat"}, core.taxa),
                    SmallSample(40, {0, 50, 0, 25}, {"---", "2", "1300", "clay"}, core.taxa)};
    core.trees[kBasisAll] = {{0, 1.0 / 3, 0.1, 1}, {1.0 / 6, 1, 0.5, 2}};
    return core;
}
