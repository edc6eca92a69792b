// Writes the tables and the scripts of a small core into a folder, for R and Python to run:
//
//     write_tables FOLDER WAY
//
// WAY: silhouettes, with the tree by the sum of squares, zones and a title; bars with curves; calendar: curves by
// years that fall downwards, with zones; or named: dots by age, of samples without depths, without a tree, and with a taxon whose name is
// meant to harm
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

TableOptions OptionsOf(const std::string& way) {
    TableOptions options;
    options.basis = kBasisSubtotal1;
    options.zones = {kBasisSubtotal1, "Lycopodium", false, 2, "LPAZ-"};
    options.marker = {"Lycopodium", "Tablets*1000±100", "Volume (cm3)", ""};
    options.age = "Age (BP)";
    options.accumulation = {options.age, ""};
    ScriptOptions& scripts = options.scripts;
    scripts.r = scripts.python = true;
    scripts.italic = {"Pinus"};
    scripts.groups = {{{0, 158, 115}, {"Pinus", "Betula"}}, {{230, 159, 0}, {"Poaceae"}}};
    scripts.exaggerate = 5;
    scripts.by_age = way == "calendar" || way == "named";
    scripts.zones = way != "bars";
    if (way == "silhouettes") scripts.title = "Small core";
    scripts.style = way == "silhouettes" ? "silhouette" : way == "bars" ? "bar-and-curve" : way == "calendar" ? "curve" : "dot";
    scripts.tree = way == "silhouettes" ? "grimm" : way == "named" ? "none" : "counter";
    return options;
}
}  // namespace

int main(int, char** arguments) {
    const std::filesystem::path folder = arguments[1];
    const std::string way = arguments[2];
    Core core = SmallCore();
    core.trees[kBasisSubtotal1] = core.trees[kBasisAll];
    if (way == "calendar")
        for (std::size_t sample = 0; sample < core.samples.size(); ++sample)
            core.samples[sample].values[2] = std::to_string(2000 - 50 * sample);
    if (way == "named") GiveNames(core);
    for (const NamedText& table : TablesOf(core, OptionsOf(way)).files) std::ofstream(folder / table.name, std::ios::binary) << table.text;
}
