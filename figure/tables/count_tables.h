// Tables of what was counted.
#pragma once
#include <string>

#include "figure/tables/options.h"
#include "figure/tables/sample_cells.h"

std::string PercentageFile(Basis basis);  // "percentages_subtotal-1.csv"

// A row for each sample and taxon: its count, the sum of the sample on the basis, its percentage and the 95 % limits of that, by whether
// the taxon is inside the sum. Percentages are empty where the sum is 0.
std::string PercentageTable(const Core& core, const SampleCells& samples, Basis basis);

// A row for each sample: the rows of Additional info that are in use, as typed, but for that of the ages; and a column for each taxon.
std::string CountTable(const Core& core, const SampleCells& samples, const std::string& age);

// A row for each count above 0, in the columns that data bases of pollen import. Those of the site and the core are empty: a sheet does not
// know them. The context of a count of `marker` is "marker".
std::string LongTable(const Core& core, const std::string& depth_head, const std::string& marker);
