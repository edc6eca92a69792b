// Columns of what is not a percentage: sums, taxa found, richness, concentration.
#pragma once
#include <vector>

#include "figure/drawing/column.h"
#include "figure/drawing/options.h"
#include "figure/sheet/core.h"

// Those that are asked for. Raises FigureFault as ConcentrationsOf does.
std::vector<Column> ExtraColumns(const Core& core, const FigureOptions& options);
