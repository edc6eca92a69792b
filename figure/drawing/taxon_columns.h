// The columns of percentages: the taxa, and the sums of their groups side by side.
#pragma once
#include <string>
#include <vector>

#include "figure/drawing/column.h"
#include "figure/drawing/options.h"
#include "figure/sheet/core.h"

// Raises FigureFault for a taxon that the sheet does not have, a basis without a grain, and if no taxon is left.
std::vector<Column> TaxonColumns(const Core& core, const FigureOptions& options);

// None where all taxa are of one group.
std::vector<Column> SummaryColumns(const Core& core, const FigureOptions& options);
