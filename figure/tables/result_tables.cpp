#include "figure/tables/result_tables.h"

#include "figure/tables/table_text.h"

namespace {
std::string SumName(const Core& core, Basis basis) {
    return basis == kBasisAll ? "All total" : core.subtotals[basis - kBasisSubtotal1];
}

void WriteScaled(TableText& table, std::int64_t counted, const std::optional<Concentration>& found, const std::optional<double>& factor) {
    const bool known = found && factor;
    table.Number(known ? std::optional(found->value * *factor) : std::nullopt);
    table.Number(known && counted > 0 ? std::optional(found->error * *factor) : std::nullopt);
}

// The rows of one sample: its taxa but the marker, then its sums. `write` gets how many were counted and their concentration.
template <class Write>
void WriteRows(TableText& table, const Core& core, const std::string& cells, std::size_t i, const Concentrations& concentrations,
               Write write) {
    const Sample& sample = core.samples[i];
    for (std::size_t taxon = 0; taxon < core.taxa.size(); ++taxon) {
        if (taxon == concentrations.marker) continue;
        table.Cells(cells);
        table.Texts({"taxon", core.taxa[taxon].name});
        write(sample.counts[taxon], concentrations.taxa[i][taxon]);
        table.EndRow();
    }
    for (const Basis basis : {kBasisAll, kBasisSubtotal1, kBasisSubtotal2}) {
        table.Cells(cells);
        table.Texts({"sum", SumName(core, basis)});
        write(CountedBesides(core, concentrations.marker, i, basis), concentrations.sums[i][basis]);
        table.EndRow();
    }
}
}  // namespace

std::string ConcentrationTable(const Core& core, const SampleCells& samples, const Concentrations& concentrations) {
    const std::string unit = concentrations.by_weight ? " (grains/g)" : " (grains/cm3)";
    TableText table;
    table.Cells(samples.head);
    table.Texts({"Of a", "Name", "Count (grains)", "Markers counted (grains)", "Markers added (grains)",
                 concentrations.by_weight ? "Weight (g)" : "Volume (cm3)", "Concentration" + unit, "Standard error" + unit});
    table.EndRow();
    for (std::size_t i = 0; i < core.samples.size(); ++i) {
        const std::optional<Added>& added = concentrations.added[i];
        WriteRows(table, core, samples.values[i], i, concentrations, [&](std::int64_t counted, const std::optional<Concentration>& found) {
            table.Whole(counted);
            table.Whole(core.samples[i].counts[concentrations.marker]);
            table.Number(added ? std::optional(added->markers) : std::nullopt);
            table.Number(concentrations.amounts[i]);
            WriteScaled(table, counted, found, 1);
        });
    }
    return table.Take();
}

std::string InfluxTable(const Core& core, const SampleCells& samples, const Concentrations& concentrations, const Quantity& rates) {
    TableText table;
    table.Cells(samples.head);
    table.Texts({"Of a", "Name", "Count (grains)",
                 concentrations.by_weight ? "Accumulation rate (g/(cm2 yr))" : "Accumulation rate (cm/yr)", "Influx (grains/(cm2 yr))",
                 "Standard error (grains/(cm2 yr))"});
    table.EndRow();
    for (std::size_t i = 0; i < core.samples.size(); ++i)
        WriteRows(table, core, samples.values[i], i, concentrations, [&](std::int64_t counted, const std::optional<Concentration>& found) {
            table.Whole(counted);
            table.Number(rates[i]);
            WriteScaled(table, counted, found, rates[i]);
        });
    return table.Take();
}

std::string DiversityTable(const SampleCells& samples, const Diversity& diversity) {
    TableText table;
    table.Cells(samples.head);
    table.Texts({"Sum (grains)", "Taxa found", "Rarefied richness (taxa in " + std::to_string(diversity.size) + " grains)",
                 "Shannon index (nats)", "Simpson index (1 - D)"});
    table.EndRow();
    for (std::size_t i = 0; i < diversity.samples.size(); ++i) {
        const SampleDiversity& sample = diversity.samples[i];
        table.Cells(samples.values[i]);
        table.Whole(sample.sum);
        table.Whole(sample.taxa);
        table.Number(sample.rarefied);
        table.Number(sample.sum > 0 ? std::optional(sample.shannon) : std::nullopt);
        table.Number(sample.sum > 0 ? std::optional(sample.simpson) : std::nullopt);
        table.EndRow();
    }
    return table.Take();
}
