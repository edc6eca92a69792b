// The tree of the samples: leaves at the left, each junction a bracket open to the left.
#pragma once
#include <vector>

#include "figure/drawing/column.h"
#include "figure/drawing/options.h"
#include "figure/results/stratigraphy.h"
#include "figure/sheet/core.h"

// None for TreeKind::None. `zones`: what a tree of the sum of squares is drawn from. What is handed in need not outlive the column.
std::vector<Column> TreeColumns(const Core& core, const FigureOptions& options, const Stratigraphy* zones);
