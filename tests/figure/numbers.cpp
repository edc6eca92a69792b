// Prints what the mathematics of the figure makes of a matrix, for another program to compare:
//
//     figure_numbers < MATRIX       the number of samples, of taxa, and of grains to rarefy to; then the counts, sample by sample
//
// A line for each number: what it is, of which sample or step and taxon, and its value with 17 digits.
#include <cstdio>
#include <iostream>

#include "figure/math/confidence.h"
#include "figure/math/richness.h"
#include "figure/math/zones.h"

namespace {
using Counts = std::vector<std::int32_t>;

void Print(const char* what, std::size_t first, std::size_t second, double value) {
    std::printf("%s %zu %zu %.17g\n", what, first, second, value);
}

double SumOf(const Counts& counts) {
    double sum = 0;
    for (const std::int32_t count : counts) sum += count;
    return sum;
}

void PrintLimits(const Counts& counts, std::size_t sample) {
    for (std::size_t taxon = 0; taxon < counts.size(); ++taxon) {
        const Limits limits = LimitsInsideSum(counts[taxon], SumOf(counts)).value();
        Print("low", sample, taxon, limits.low);
        Print("high", sample, taxon, limits.high);
    }
}

void PrintRichness(const Counts& counts, std::size_t sample, std::int64_t size) {
    Print("rarefied", sample, 0, RarefiedRichness(counts, size).value());
    Print("shannon", sample, 0, Shannon(counts));
    Print("simpson", sample, 0, Simpson(counts));
}

Assemblage SharesOf(const Counts& counts) {
    Assemblage shares;
    for (const std::int32_t count : counts) shares.push_back(count / SumOf(counts));
    return shares;
}

void PrintTree(const std::vector<Assemblage>& samples) {
    const std::vector<Merge> merges = ClusterByIncrementalSumOfSquares(samples);
    for (std::size_t step = 0; step < merges.size(); ++step) {
        Print("middle", step, merges[step].end, static_cast<double>(merges[step].middle));
        Print("rise", step, merges[step].first, merges[step].rise);
        Print("total", step, 0, merges[step].total);
    }
    Print("zones", 0, 0, static_cast<double>(ZonesByBrokenStick(merges)));
}
}  // namespace

int main() {
    std::size_t samples = 0, taxa = 0;
    std::int64_t size = 0;
    std::cin >> samples >> taxa >> size;
    std::vector<Assemblage> shares;
    for (std::size_t sample = 0; sample < samples; ++sample) {
        Counts counts(taxa);
        for (std::int32_t& count : counts) std::cin >> count;
        PrintLimits(counts, sample);
        PrintRichness(counts, sample, size);
        shares.push_back(SharesOf(counts));
    }
    PrintTree(shares);
    for (std::size_t k = 1; k < samples; ++k) Print("piece", k, 0, BrokenStick(samples - 1)[k - 1]);
    return std::cin ? 0 : 1;
}
