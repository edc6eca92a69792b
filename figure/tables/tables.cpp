#include "figure/tables/tables.h"

#include "figure/results/diversity.h"
#include "figure/sheet/fault.h"
#include "figure/tables/count_tables.h"
#include "figure/tables/result_tables.h"
#include "figure/tables/scripts.h"
#include "figure/tables/zone_tables.h"

namespace {
void AddInflux(Tables& tables, const Core& core, const SampleCells& samples, const TableOptions& options,
               const Concentrations& concentrations) {
    const bool by_age = !options.accumulation->age.empty();
    if (by_age && concentrations.by_weight) return;  // cm a year say nothing of g
    try {
        const Quantity rates = AccumulationRates(core, *options.accumulation, options.depth_unit);
        tables.files.push_back({"influx.csv", InfluxTable(core, samples, concentrations, rates)});
    } catch (const FigureFault& fault) {
        if (!by_age) throw;
        tables.remarks.push_back(std::string("influx.csv is left out: ") + fault.what());
    }
}

void AddConcentrations(Tables& tables, const Core& core, const SampleCells& samples, const TableOptions& options) {
    if (!options.marker && options.accumulation) throw FigureFault("influx takes a marker");
    if (!options.marker) return;
    const Concentrations concentrations = ConcentrationsOf(core, *options.marker);
    tables.files.push_back({"concentrations.csv", ConcentrationTable(core, samples, concentrations)});
    if (options.accumulation) AddInflux(tables, core, samples, options, concentrations);
}

void AddZones(Tables& tables, const Core& core, const TableOptions& options) {
    const Stratigraphy found = StratigraphyOf(core, options.zones);
    tables.files.push_back({"zones.csv", ZoneTable(core, found.zones, options)});
    tables.files.push_back({"merges.csv", MergeTable(core, found.merges, options.zones.square_roots)});
    tables.files.push_back({"counter_tree.csv", CounterTreeTable(core, options.depth_unit)});
}
}  // namespace

Tables TablesOf(const Core& core, const TableOptions& options) {
    const SampleCells samples = CellsOfSamples(core, options);
    const std::string& marker = options.zones.left_out;
    Tables tables;
    for (const Basis basis : {kBasisAll, kBasisSubtotal1, kBasisSubtotal2})
        tables.files.push_back({PercentageFile(basis), PercentageTable(core, samples, basis)});
    tables.files.push_back({"counts.csv", CountTable(core, samples, options.age)});
    tables.files.push_back({"counts_long.csv", LongTable(core, DepthHead(options), marker)});
    AddConcentrations(tables, core, samples, options);
    tables.files.push_back({"diversity.csv", DiversityTable(samples, DiversityOf(core, options.basis, marker))});
    AddZones(tables, core, options);
    if (options.scripts.r) tables.files.push_back({"figure.R", RScript(core, options)});
    if (options.scripts.python) tables.files.push_back({"figure.py", PythonScript(core, options)});
    return tables;
}
