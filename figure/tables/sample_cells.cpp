#include "figure/tables/sample_cells.h"

#include "figure/results/quantity.h"
#include "figure/tables/table_text.h"
#include "platform/text.h"

std::string DepthHead(const TableOptions& options) {
    return "Depth (" + options.depth_unit + ")";
}

std::string DepthText(const Sample& sample) {
    return sample.depth ? NumberText(*sample.depth) : "";
}

SampleCells CellsOfSamples(const Core& core, const TableOptions& options) {
    SampleCells cells = {"Sample," + Quoted(DepthHead(options)), {}};
    for (const Sample& sample : core.samples) cells.values.push_back(Quoted(sample.name) + ',' + DepthText(sample));
    if (options.age.empty()) return cells;
    cells.head += ',' + Quoted(options.age);
    const Quantity ages = QuantityOf(core, options.age);
    for (std::size_t sample = 0; sample < ages.size(); ++sample)
        cells.values[sample] += ages[sample] ? ',' + NumberText(*ages[sample]) : ",";
    return cells;
}
