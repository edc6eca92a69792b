#include "figure/math/zones.h"

#include <algorithm>

namespace {
struct Cluster {
    std::size_t first, end;
    Assemblage mean;
};

// The sum of squares within the joined cluster, less those within the two.
double RiseOf(const Cluster& upper, const Cluster& lower) {
    const auto m = static_cast<double>(upper.end - upper.first), n = static_cast<double>(lower.end - lower.first);
    double squared = 0;
    for (std::size_t taxon = 0; taxon < upper.mean.size(); ++taxon)
        squared += (upper.mean[taxon] - lower.mean[taxon]) * (upper.mean[taxon] - lower.mean[taxon]);
    return m * n / (m + n) * squared;
}

void Join(Cluster& upper, const Cluster& lower) {
    const auto m = static_cast<double>(upper.end - upper.first), n = static_cast<double>(lower.end - lower.first);
    for (std::size_t taxon = 0; taxon < upper.mean.size(); ++taxon)
        upper.mean[taxon] = (m * upper.mean[taxon] + n * lower.mean[taxon]) / (m + n);
    upper.end = lower.end;
}
}  // namespace

std::vector<Merge> ClusterByIncrementalSumOfSquares(std::span<const Assemblage> samples) {
    std::vector<Cluster> clusters;
    for (std::size_t sample = 0; sample < samples.size(); ++sample) clusters.push_back({sample, sample + 1, samples[sample]});
    std::vector<double> rises;  // [cluster]: of joining it with the one below
    for (std::size_t i = 0; i + 1 < clusters.size(); ++i) rises.push_back(RiseOf(clusters[i], clusters[i + 1]));
    std::vector<Merge> merges;
    double total = 0;
    while (!rises.empty()) {
        const auto least = static_cast<std::ptrdiff_t>(std::ranges::min_element(rises) - rises.begin());
        Cluster& upper = clusters[least];
        total += rises[least];
        merges.push_back({upper.first, upper.end, clusters[least + 1].end, rises[least], total});
        Join(upper, clusters[least + 1]);
        clusters.erase(clusters.begin() + least + 1);
        rises.erase(rises.begin() + least);
        if (least > 0) rises[least - 1] = RiseOf(clusters[least - 1], clusters[least]);
        if (static_cast<std::size_t>(least) < rises.size()) rises[least] = RiseOf(clusters[least], clusters[least + 1]);
    }
    return merges;
}

std::vector<double> BrokenStick(std::size_t pieces) {
    std::vector<double> shares(pieces);
    double sum = 0;
    for (std::size_t k = pieces; k >= 1; --k) {
        sum += 1 / static_cast<double>(k);
        shares[k - 1] = sum / static_cast<double>(pieces);
    }
    return shares;
}

std::vector<double> SplitShares(std::span<const Merge> merges) {
    constexpr double kRounding = 1e-24;  // equal samples may come to less: the mean of equal shares is not always exactly these
    std::vector<double> shares;
    if (merges.empty() || merges.back().total < kRounding) return std::vector<double>(merges.size());
    for (auto merge = merges.rbegin(); merge != merges.rend(); ++merge) shares.push_back(merge->rise / merges.back().total);
    return shares;
}

std::size_t ZonesByBrokenStick(std::span<const Merge> merges) {
    const std::vector<double> taken = SplitShares(merges), expected = BrokenStick(merges.size());
    std::size_t zones = 1;
    while (zones <= taken.size() && taken[zones - 1] > expected[zones - 1]) ++zones;
    return zones;
}

std::vector<std::size_t> ZoneStarts(std::span<const Merge> merges, std::size_t zones) {
    std::vector<std::size_t> starts = {0};
    for (std::size_t k = 1; k < zones && k <= merges.size(); ++k) starts.push_back(merges[merges.size() - k].middle);
    std::ranges::sort(starts);
    return starts;
}
