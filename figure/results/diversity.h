// How rich the samples of a core are.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "figure/sheet/core.h"

struct SampleDiversity {
    std::int64_t sum = 0;            // of the taxa that are compared
    int taxa = 0;                    // of these found
    std::optional<double> rarefied;  // taxa to be expected in `size` grains; nothing of an empty sample
    double shannon = 0, simpson = 0;
};

struct Diversity {
    std::int64_t size = 0;                 // the smallest sum of a sample that is not empty
    std::vector<SampleDiversity> samples;  // [sample]
};

// Of the taxa inside the sum of `basis`, but for the one named `left_out`: a marker, or "".
Diversity DiversityOf(const Core& core, Basis basis, const std::string& left_out);
