// The first cells of each row: which sample it is of.
#pragma once
#include <string>
#include <vector>

#include "figure/sheet/core.h"
#include "figure/tables/options.h"

struct SampleCells {
    std::string head;                 // "Sample,Depth (cm)", and the row of ages where one is shown
    std::vector<std::string> values;  // [sample]
};

SampleCells CellsOfSamples(const Core& core, const TableOptions& options);

std::string DepthHead(const TableOptions& options);  // "Depth (cm)"
std::string DepthText(const Sample& sample);         // "" without a depth
