// Writes the tables and the scripts of a small core into a folder, for R and Python to run:
//
//     write_tables FOLDER WAY       WAY: silhouettes, bars, calendar: by years that fall downwards, or named: by ages, of samples without
//     depths, and with a taxon whose name is meant to harm
#include <filesystem>
#include <fstream>
#include <string>

#include "figure/small_core.h"
#include "figure/tables/tables.h"

namespace {
void GiveNames(Core& core) {
    for (Sample& sample : core.samples) {
        sample.name = "top, \"" + sample.name + "\"";
        sample.depth.reset();
    }
    core.taxa[0].name = "\"); unlink(\"counts.csv\"); \\";
    core.taxa[1].name = "Öländisch, 50 % NA";
    core.samples[1].counts = {0, 0, 0, 20};
    core.samples[1].sums = {20, 0, 0};
    for (auto& shares : core.samples[1].shares) shares.clear();
    core.samples[1].shares[kBasisAll] = {0, 0, 0, 1};
}
}  // namespace

int main(int, char** arguments) {
    const std::filesystem::path folder = arguments[1];
    const std::string way = arguments[2];
    Core core = SmallCore();
    TableOptions options;
    options.basis = kBasisSubtotal1;
    options.zones = {kBasisSubtotal1, "Lycopodium", true, 2, "LPAZ-"};
    options.marker = {"Lycopodium", "Tablets*1000±100", "Volume (cm3)", ""};
    options.scripts = {true, true, {}, {"Pinus"}, way == "calendar" || way == "named", way == "bars", 10};
    options.age = "Age (BP)";
    if (way == "calendar")
        for (std::size_t sample = 0; sample < core.samples.size(); ++sample)
            core.samples[sample].values[2] = std::to_string(2000 - 50 * sample);
    if (way == "named")
        GiveNames(core);
    else
        options.accumulation = {"Age (BP)", ""};
    for (const NamedText& table : TablesOf(core, options).files) std::ofstream(folder / table.name, std::ios::binary) << table.text;
}
