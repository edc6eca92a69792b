// The tables, each as the text of its file.
#include "figure/tables/tables.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "figure/fault_of.h"
#include "figure/small_core.h"

namespace {
const MarkerOptions kMarker = {"Lycopodium", "Tablets*1000±100", "Volume (cm3)", ""};

TableOptions TreesAndMarker() {
    TableOptions options;
    options.basis = kBasisSubtotal1;
    options.zones = {kBasisSubtotal1, "Lycopodium", false, 2, "LPAZ-"};
    options.marker = kMarker;
    options.accumulation = {"Age (BP)", ""};
    return options;
}

std::vector<std::string> NamesOf(const std::vector<NamedText>& tables) {
    std::vector<std::string> names;
    for (const NamedText& table : tables) names.push_back(table.name);
    return names;
}

// The rows of a table, "" if there is none of this name.
std::string Rows(const Core& core, const TableOptions& options, const std::string& name) {
    for (const NamedText& table : TablesOf(core, options).files) {
        if (table.name != name) continue;
        std::string rows = table.text;
        std::erase(rows, '\r');
        return rows;
    }
    return "";
}

TEST(TablesTest, ConcentrationsInfluxAndScriptsComeWhenAsked) {
    const std::vector<std::string> plain = {"percentages_all.csv",
                                            "percentages_subtotal-1.csv",
                                            "percentages_subtotal-2.csv",
                                            "counts.csv",
                                            "counts_long.csv",
                                            "diversity.csv",
                                            "zones.csv",
                                            "merges.csv",
                                            "counter_tree.csv"};
    EXPECT_EQ(NamesOf(TablesOf(SmallCore(), {}).files), plain);
    TableOptions all = TreesAndMarker();
    all.scripts.r = all.scripts.python = true;
    const std::vector<std::string> names = NamesOf(TablesOf(SmallCore(), all).files);
    EXPECT_EQ(names.size(), plain.size() + 4);
    for (const char* name : {"concentrations.csv", "influx.csv", "figure.R", "figure.py"})
        EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << name;
}

TEST(TablesTest, RowsEndInCarriageReturnAndLineFeed) {
    for (const NamedText& table : TablesOf(SmallCore(), TreesAndMarker()).files) {
        EXPECT_EQ(std::count(table.text.begin(), table.text.end(), '\n'), std::count(table.text.begin(), table.text.end(), '\r'));
        EXPECT_TRUE(table.text.ends_with("\r\n")) << table.name;
    }
}

TEST(TablesTest, PercentagesHaveTheLimitsOfTheirKind) {
    const std::string rows = Rows(SmallCore(), {}, "percentages_subtotal-1.csv");
    EXPECT_TRUE(
        rows.starts_with("Sample,Depth (cm),Taxon,Inside the sum (1: yes),Count (grains),Sum (grains),Percentage (%),"
                         "Lower 95 % limit (%),Upper 95 % limit (%)\n"
                         "10,10,Pinus,1,30,40,75,59.8057,85.813\n"
                         "10,10,Betula,1,10,40,25,14.187,40.1943\n"
                         "10,10,Poaceae,0,10,40,25,13.081,52.8556\n"))
        << rows;
    EXPECT_EQ(std::count(rows.begin(), rows.end(), '\n'), 1 + 3 * 4);
}

TEST(TablesTest, ASampleWithNothingInTheSumHasNoPercentages) {
    EXPECT_NE(Rows(SmallCore(), {}, "percentages_subtotal-2.csv").find("\n20,20,Pinus,0,10,0,,,\n"), std::string::npos);
}

TEST(TablesTest, CountsStandWithWhatIsTypedBesideThem) {
    EXPECT_EQ(
        Rows(SmallCore(), {}, "counts.csv"),
        "Sample,Depth (cm),Volume (cm3),Tablets,Age (BP),Lithology,Pinus (grains),Betula (grains),Poaceae (grains),Lycopodium (grains)\n"
        "10,10,0.5,2,100,peat,30,10,10,50\n"
        "20,20,2,2,300,peat,10,30,0,20\n"
        "40,40,,2,1300,clay,0,50,0,25\n");
}

TEST(TablesTest, AgesStandBesideTheDepthsOnce) {
    TableOptions options;
    options.age = "Age (BP)";
    options.depth_unit = "m";
    EXPECT_TRUE(Rows(SmallCore(), options, "counts.csv").starts_with("Sample,Depth (m),Age (BP),Volume (cm3),Tablets,Lithology,Pinus"));
    EXPECT_NE(Rows(SmallCore(), options, "diversity.csv").find("\n10,10,100,"), std::string::npos);
    EXPECT_NE(Rows(SmallCore(), options, "diversity.csv").find("\n20,20,300,"), std::string::npos);
    options.age = "Volume (cm3)";
    EXPECT_NE(Rows(SmallCore(), options, "diversity.csv").find("\n40,40,,"), std::string::npos) << "one that is not there";
}

TEST(TablesTest, TheLongFormHasARowForEachCount) {
    EXPECT_EQ(Rows(SmallCore(), TreesAndMarker(), "counts_long.csv"),
              "Site,Core,Sample,Depth (cm),Taxon,Element,Unit,Value (NISP),Context\n"
              ",,10,10,Pinus,pollen/spore,NISP,30,\n"
              ",,10,10,Betula,pollen/spore,NISP,10,\n"
              ",,10,10,Poaceae,pollen/spore,NISP,10,\n"
              ",,10,10,Lycopodium,pollen/spore,NISP,50,marker\n"
              ",,20,20,Pinus,pollen/spore,NISP,10,\n"
              ",,20,20,Betula,pollen/spore,NISP,30,\n"
              ",,20,20,Lycopodium,pollen/spore,NISP,20,marker\n"
              ",,40,40,Betula,pollen/spore,NISP,50,\n"
              ",,40,40,Lycopodium,pollen/spore,NISP,25,marker\n");
}

TEST(TablesTest, ConcentrationsShowWhatTheyAreReckonedFrom) {
    const std::string rows = Rows(SmallCore(), TreesAndMarker(), "concentrations.csv");
    EXPECT_TRUE(
        rows.starts_with("Sample,Depth (cm),Of a,Name,Count (grains),Markers counted (grains),Markers added (grains),Volume (cm3),"
                         "Concentration (grains/cm3),Standard error (grains/cm3)\n"
                         "10,10,taxon,Pinus,30,50,2000,0.5,2400,579.655\n"
                         "10,10,taxon,Betula,10,50,2000,0.5,800,282.843\n"
                         "10,10,taxon,Poaceae,10,50,2000,0.5,800,282.843\n"
                         "10,10,sum,All total,50,50,2000,0.5,4000,848.528\n"
                         "10,10,sum,Trees,40,50,2000,0.5,3200,715.542\n"
                         "10,10,sum,Herbs,10,50,2000,0.5,800,282.843\n"
                         "20,20,taxon,Pinus,10,20,2000,2,500,196.85\n"))
        << rows;
    EXPECT_NE(rows.find("\n20,20,taxon,Poaceae,0,20,2000,2,0,\n"), std::string::npos) << "nothing was found, and no error is known";
    EXPECT_NE(rows.find("\n40,40,sum,Trees,50,25,2000,,,\n"), std::string::npos) << "without a volume";
}

TEST(TablesTest, UnitsFollowTheAmount) {
    TableOptions options;
    options.marker = {"Lycopodium", "2*1000", "", "2.5"};
    options.accumulation = {"", "0.1"};
    EXPECT_NE(Rows(SmallCore(), options, "concentrations.csv").find(",Weight (g),Concentration (grains/g),Standard error (grains/g)\n"),
              std::string::npos);
    EXPECT_NE(Rows(SmallCore(), options, "influx.csv").find(",Accumulation rate (g/(cm2 yr)),Influx (grains/(cm2 yr)),"),
              std::string::npos);
}

TEST(TablesTest, InfluxIsTheConcentrationTimesTheRate) {
    const std::string rows = Rows(SmallCore(), TreesAndMarker(), "influx.csv");
    EXPECT_TRUE(
        rows.starts_with("Sample,Depth (cm),Of a,Name,Count (grains),Accumulation rate (cm/yr),Influx (grains/(cm2 yr)),"
                         "Standard error (grains/(cm2 yr))\n"
                         "10,10,taxon,Pinus,30,0.05,120,28.9828\n"))
        << rows;
    EXPECT_NE(rows.find("\n40,40,sum,Trees,50,0.02,,\n"), std::string::npos);
}

TEST(TablesTest, AgesGiveNoInfluxOfWhatWasWeighed) {
    TableOptions options = TreesAndMarker();
    options.marker = {"Lycopodium", "2*1000", "", "2.5"};
    EXPECT_NE(Rows(SmallCore(), options, "concentrations.csv"), "");
    EXPECT_EQ(Rows(SmallCore(), options, "influx.csv"), "");
}

TEST(TablesTest, AgesThatGiveNoInfluxKeepNoTableFromTheOthers) {
    Core core = SmallCore();
    core.samples[1].values[2] = "100";
    TableOptions options = TreesAndMarker();
    options.age = "Age (BP)";
    const Tables tables = TablesOf(core, options);
    EXPECT_EQ(tables.remarks,
              (std::vector<std::string>{"influx.csv is left out: the ages neither rise nor fall all the way down, so there is no influx"}));
    std::vector<std::string> others = NamesOf(TablesOf(SmallCore(), options).files);
    EXPECT_EQ(std::erase(others, "influx.csv"), 1u);
    EXPECT_EQ(NamesOf(tables.files), others);
    EXPECT_TRUE(TablesOf(SmallCore(), options).remarks.empty());
}

TEST(TablesTest, ARateThatIsNoneIsAFault) {
    TableOptions options = TreesAndMarker();
    options.accumulation = {"", "-1"};
    EXPECT_EQ(FaultOf([&] { TablesOf(SmallCore(), options); }), "\"-1\" of sample 10 is below 0");
}

TEST(TablesTest, InfluxTakesAMarker) {
    TableOptions options = TreesAndMarker();
    options.marker.reset();
    EXPECT_EQ(FaultOf([&] { TablesOf(SmallCore(), options); }), "influx takes a marker");
}

TEST(TablesTest, DiversityIsOfTheSumWithoutTheMarker) {
    EXPECT_EQ(Rows(SmallCore(), TreesAndMarker(), "diversity.csv"),
              "Sample,Depth (cm),Sum (grains),Taxa found,Rarefied richness (taxa in 40 grains),Shannon index (nats),Simpson index (1 - D)\n"
              "10,10,40,2,2,0.562335,0.375\n"
              "20,20,40,2,2,0.562335,0.375\n"
              "40,40,50,1,1,0,0\n");
    TableOptions herbs;
    herbs.basis = kBasisSubtotal2;
    EXPECT_NE(Rows(SmallCore(), herbs, "diversity.csv").find("\n20,20,0,0,,,\n"), std::string::npos);
}

TEST(TablesTest, AMarkerIsLeftOutThoughNothingIsToldOfItsTablets) {
    TableOptions options;
    options.zones.left_out = "Lycopodium";
    EXPECT_NE(Rows(SmallCore(), options, "diversity.csv").find("\n10,10,50,3,"), std::string::npos);
    EXPECT_NE(Rows(SmallCore(), options, "counts_long.csv").find(",50,marker\n"), std::string::npos);
}

TEST(TablesTest, ZonesHaveTheirDepthsAndMeans) {
    EXPECT_EQ(
        Rows(SmallCore(), TreesAndMarker(), "zones.csv"),
        "Zone,First sample,Last sample,Samples,Top (cm),Base (cm),Pinus (mean %),Betula (mean %),Poaceae (mean %),Lycopodium (mean %)\n"
        "LPAZ-2,10,10,1,10,15,75,25,25,125\n"
        "LPAZ-1,20,40,2,15,40,12.5,87.5,0,50\n");
}

TEST(TablesTest, ZonesHaveTheirAgesWhereTheseAreShown) {
    TableOptions options = TreesAndMarker();
    options.age = "Age (BP)";
    Core core = SmallCore();
    EXPECT_EQ(Rows(core, options, "zones.csv"),
              "Zone,First sample,Last sample,Samples,Top (cm),Base (cm),Top: Age (BP),Base: Age (BP),"
              "Pinus (mean %),Betula (mean %),Poaceae (mean %),Lycopodium (mean %)\n"
              "LPAZ-2,10,10,1,10,15,100,200,75,25,25,125\n"
              "LPAZ-1,20,40,2,15,40,200,1300,12.5,87.5,0,50\n");
    options.accumulation.reset();
    core.samples[1].depth.reset();
    EXPECT_NE(Rows(core, options, "zones.csv").find("\nLPAZ-2,10,10,1,10,,100,200,"), std::string::npos) << "a name is no depth";
}

TEST(TablesTest, SamplesWithNothingInTheSumDoNotLowerAMean) {
    TableOptions herbs;
    herbs.zones = {kBasisSubtotal2, "", false, 2, "Z"};
    const std::string rows = Rows(SmallCore(), herbs, "zones.csv");
    EXPECT_NE(rows.find("\nZ2,10,10,1,10,15,300,100,100,500\nZ1,20,40,2,15,40,,,,\n"), std::string::npos) << rows;
}

TEST(TablesTest, MergesTellTheSplitAndItsPieceOfTheStick) {
    EXPECT_EQ(Rows(SmallCore(), TreesAndMarker(), "merges.csv"),
              "Step,First row,Row of the split,Last row,First sample above,Last sample above,First sample below,Last sample below,"
              "Rise of the sum of squares (shares squared),Sum of squares within clusters (shares squared),Split,"
              "Share of the sum of squares (0 to 1),Broken stick (0 to 1)\n"
              "1,2,3,3,20,20,40,40,0.0625,0.0625,2,0.107143,0.25\n"
              "2,1,2,3,10,10,20,40,0.520833,0.583333,1,0.892857,0.75\n");
}

TEST(TablesTest, TheCountersTreeStandsAtItsDepths) {
    Core core = SmallCore();
    EXPECT_EQ(Rows(core, {}, "counter_tree.csv"),
              "Basis,Step,First row,Row of the split,Last row,Upper cluster (cm),Lower cluster (cm),Height (shares squared)\n"
              "all,1,1,2,2,10,20,0.1\n"
              "all,2,1,3,3,15,40,0.5\n");
    core.trees[kBasisAll] = {{1.0 / 3, 1, 0.1, 2}, {0, 2.0 / 3, 0.5, 1}};
    EXPECT_NE(Rows(core, {}, "counter_tree.csv").find("\nall,1,2,3,3,20,40,0.1\nall,2,1,2,3,10,30,0.5\n"), std::string::npos);
    for (Sample& sample : core.samples) sample.depth.reset();
    EXPECT_NE(Rows(core, {}, "counter_tree.csv").find("(number of the sample),Height (shares squared)\nall,1,2,3,3,1.66667,3,0.1\n"),
              std::string::npos);
}

TEST(TablesTest, OneGrainIsACount) {
    Core core = SmallCore();
    core.samples[0].counts[2] = 1;
    TableOptions options = TreesAndMarker();
    EXPECT_NE(Rows(core, options, "counts_long.csv").find(",Poaceae,pollen/spore,NISP,1,\n"), std::string::npos);
    EXPECT_NE(Rows(core, options, "concentrations.csv").find("\n10,10,taxon,Poaceae,1,50,2000,0.5,80,80.9938\n"), std::string::npos);
    core.samples[0].counts = {1, 0, 0, 1};
    EXPECT_NE(Rows(core, options, "diversity.csv").find("\n10,10,1,1,1,0,0\n"), std::string::npos);
}

TEST(TablesTest, NamesAreQuotedInAllTables) {
    Core core = SmallCore();
    core.taxa[0].name = "Pinus, \"broken\"";
    core.samples[0].name = "a,b";
    core.samples[0].depth.reset();
    EXPECT_NE(Rows(core, {}, "percentages_all.csv").find("\n\"a,b\",,\"Pinus, \"\"broken\"\"\",1,30,"), std::string::npos);
    EXPECT_NE(Rows(core, {}, "counts.csv").find(",\"Pinus, \"\"broken\"\" (grains)\","), std::string::npos);
}
}  // namespace
