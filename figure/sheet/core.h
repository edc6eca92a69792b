// A counted core as its figure and its tables need it: what the sheet says, by sample and by taxon, apart from all windows.
#pragma once
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "sheet/sizes.h"

// What percentages are taken of.
enum Basis { kBasisAll, kBasisSubtotal1, kBasisSubtotal2, kBases };
constexpr const char* kBasisWords[kBases] = {"all", "subtotal-1", "subtotal-2"};

struct Taxon {
    std::string name;
    bool in_subtotal[kSubtotals] = {};
    bool italic = false;  // by the rule of the counter's diagram
    bool InsideSum(Basis basis) const { return basis == kBasisAll || in_subtotal[basis - kBasisSubtotal1]; }
};

struct Sample {
    std::string name;                         // as the sheet has it
    std::optional<double> depth;              // nothing if the name is not just a number, or none was given
    std::array<std::string, kParams> values;  // of Additional info, as typed; "---" for none
    std::string note;
    bool is_named = true;                            // false: the sheet's first sample, until its user gives it a name
    std::vector<std::int32_t> counts;                // [taxon], 0 or more
    std::array<std::int64_t, kBases> sums{};         // [basis]
    std::array<std::vector<double>, kBases> shares;  // [basis][taxon]: of the sum, 1 being 100 %; empty if that is 0
};

// Two neighbouring clusters of samples joined.
struct TreeMerge {
    double upper = 0, lower = 0;  // where the two stand on the axis: 0 is the uppermost sample, 1 the lowest
    double height = 0;
    std::size_t middle = 0;  // the first sample of the lower one
};

struct Core {
    std::string title;                              // the name of the file without its ending
    std::array<std::string, kSubtotals> subtotals;  // their names
    std::array<std::string, kParams> params;        // the names of Additional info
    std::vector<Taxon> taxa;                        // the counted ones, in the order of the sheet's rows; "---" has no name
    std::vector<Sample> samples;                    // from the top down: by their names if all are just numbers, else as in the sheet
    std::array<std::vector<TreeMerge>, kBases>
        trees;  // [basis]: the counter's own, in the order of joining; empty for less than two samples
};
