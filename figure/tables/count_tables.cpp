#include "figure/tables/count_tables.h"

#include <algorithm>

#include "figure/math/confidence.h"
#include "figure/tables/table_text.h"

namespace {
void WritePercentage(TableText& table, const Sample& sample, Basis basis, std::size_t taxon, bool inside) {
    const auto count = static_cast<double>(sample.counts[taxon]), sum = static_cast<double>(sample.sums[basis]);
    const std::optional<Limits> limits = inside ? LimitsInsideSum(count, sum) : LimitsOutsideSum(count, sum);
    table.Number(sum > 0 ? std::optional(100 * sample.shares[basis][taxon]) : std::nullopt);
    table.Number(limits ? std::optional(100 * limits->low) : std::nullopt);
    table.Number(limits ? std::optional(100 * limits->high) : std::nullopt);
}

bool HasValue(const Sample& sample, std::size_t param) {
    return sample.values[param] != kEmpty;
}

// The rows of Additional info with a value, but for that of the ages, which have their own column.
std::vector<std::size_t> ParamsInUse(const Core& core, const std::string& age) {
    std::vector<std::size_t> used;
    for (std::size_t param = 0; param < core.params.size(); ++param) {
        const auto has_value = [param](const Sample& sample) { return HasValue(sample, param); };
        if (core.params[param] != age && std::ranges::any_of(core.samples, has_value)) used.push_back(param);
    }
    return used;
}
}  // namespace

std::string PercentageFile(Basis basis) {
    return std::string("percentages_") + kBasisWords[basis] + ".csv";
}

std::string PercentageTable(const Core& core, const SampleCells& samples, Basis basis) {
    TableText table;
    table.Cells(samples.head);
    table.Texts({"Taxon", "Inside the sum (1: yes)", "Count (grains)", "Sum (grains)", "Percentage (%)", "Lower 95 % limit (%)",
                 "Upper 95 % limit (%)"});
    table.EndRow();
    for (std::size_t i = 0; i < core.samples.size(); ++i) {
        for (std::size_t taxon = 0; taxon < core.taxa.size(); ++taxon) {
            const bool inside = core.taxa[taxon].InsideSum(basis);
            table.Cells(samples.values[i]);
            table.Text(core.taxa[taxon].name);
            table.Whole(inside ? 1 : 0);
            table.Whole(core.samples[i].counts[taxon]);
            table.Whole(core.samples[i].sums[basis]);
            WritePercentage(table, core.samples[i], basis, taxon, inside);
            table.EndRow();
        }
    }
    return table.Take();
}

std::string CountTable(const Core& core, const SampleCells& samples, const std::string& age) {
    const std::vector<std::size_t> params = ParamsInUse(core, age);
    TableText table;
    table.Cells(samples.head);
    for (const std::size_t param : params) table.Text(core.params[param]);
    for (const Taxon& taxon : core.taxa) table.Text(taxon.name + " (grains)");
    table.EndRow();
    for (std::size_t i = 0; i < core.samples.size(); ++i) {
        table.Cells(samples.values[i]);
        for (const std::size_t param : params) table.Text(HasValue(core.samples[i], param) ? core.samples[i].values[param] : "");
        for (const std::int32_t count : core.samples[i].counts) table.Whole(count);
        table.EndRow();
    }
    return table.Take();
}

std::string LongTable(const Core& core, const std::string& depth_head, const std::string& marker) {
    TableText table;
    table.Texts({"Site", "Core", "Sample", depth_head, "Taxon", "Element", "Unit", "Value (NISP)", "Context"});
    table.EndRow();
    for (const Sample& sample : core.samples) {
        for (std::size_t taxon = 0; taxon < core.taxa.size(); ++taxon) {
            if (sample.counts[taxon] <= 0) continue;
            const std::string& name = core.taxa[taxon].name;
            table.Texts({"", "", sample.name, DepthText(sample), name, "pollen/spore", "NISP"});
            table.Whole(sample.counts[taxon]);
            table.Text(!marker.empty() && name == marker ? "marker" : "");
            table.EndRow();
        }
    }
    return table.Take();
}
