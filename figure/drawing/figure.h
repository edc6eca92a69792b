// The figure of a core, as in a paper: samples from top to bottom, a column for each taxon, the tree at the right.
#pragma once
#include <vector>

#include "figure/drawing/options.h"
#include "figure/sheet/core.h"
#include "platform/page.h"

// One page or more. Raises FigureFault for what the core does not have, and for a page that is too small to draw on.
std::vector<Page> DrawFigure(const Core& core, const FigureOptions& options, const FontMetrics& metrics);
