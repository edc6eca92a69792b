#include "figure/tables/tables.h"

#include "figure/results/diversity.h"
#include "figure/sheet/fault.h"
#include "figure/tables/count_tables.h"
#include "figure/tables/result_tables.h"
#include "figure/tables/scripts.h"
#include "figure/tables/zone_tables.h"

namespace {
using Tables = std::vector<NamedText>;

void AddConcentrations(Tables& tables, const Core& core, const SampleCells& samples, const TableOptions& options) {
    if (!options.marker && options.accumulation) throw FigureFault("influx takes a marker");
    if (!options.marker) return;
    const Concentrations concentrations = ConcentrationsOf(core, *options.marker);
    tables.push_back({"concentrations.csv", ConcentrationTable(core, samples, concentrations)});
    const bool by_age = options.accumulation && !options.accumulation->age.empty();
    if (!options.accumulation || (by_age && concentrations.by_weight)) return;  // cm a year say nothing of g
    const Quantity rates = AccumulationRates(core, *options.accumulation, options.depth_unit);
    tables.push_back({"influx.csv", InfluxTable(core, samples, concentrations, rates)});
}

void AddZones(Tables& tables, const Core& core, const TableOptions& options) {
    const Stratigraphy found = StratigraphyOf(core, options.zones);
    tables.push_back({"zones.csv", ZoneTable(core, found.zones, options)});
    tables.push_back({"merges.csv", MergeTable(core, found.merges, options.zones.square_roots)});
    tables.push_back({"counter_tree.csv", CounterTreeTable(core, options.depth_unit)});
}
}  // namespace

std::vector<NamedText> TablesOf(const Core& core, const TableOptions& options) {
    const SampleCells samples = CellsOfSamples(core, options);
    const std::string& marker = options.zones.left_out;
    Tables tables;
    for (const Basis basis : {kBasisAll, kBasisSubtotal1, kBasisSubtotal2})
        tables.push_back({PercentageFile(basis), PercentageTable(core, samples, basis)});
    tables.push_back({"counts.csv", CountTable(core, samples, options.age)});
    tables.push_back({"counts_long.csv", LongTable(core, DepthHead(options), marker)});
    AddConcentrations(tables, core, samples, options);
    tables.push_back({"diversity.csv", DiversityTable(samples, DiversityOf(core, options.basis, marker))});
    AddZones(tables, core, options);
    if (options.scripts.r) tables.push_back({"figure.R", RScript(core, options)});
    if (options.scripts.python) tables.push_back({"figure.py", PythonScript(core, options)});
    return tables;
}
