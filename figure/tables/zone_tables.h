// Tables of the zones and of the trees that part them.
#pragma once
#include <string>

#include "figure/results/stratigraphy.h"
#include "figure/sheet/core.h"
#include "figure/tables/options.h"

// A row for each zone, from the top down: its samples, where it begins and ends by depth and, where ages are shown, by age, and the mean
// percentage of each taxon over the samples whose sum is not 0.
std::string ZoneTable(const Core& core, const std::vector<Zone>& zones, const TableOptions& options);

// A row for each merge of the tree that parts the zones, in the order of joining: what it joins, by the numbers of the samples from 1 and
// by their names; how much the sum of squares rises; and the split that the merge is from above, with its piece of the broken stick.
std::string MergeTable(const Core& core, const std::vector<Merge>& merges, bool square_roots);

// The same for the counter's own trees: what each merge joins, by the numbers of the samples from 1; where the two clusters stand, by depth
// or by the number of the sample; and the height.
std::string CounterTreeTable(const Core& core, const std::string& depth_unit);
