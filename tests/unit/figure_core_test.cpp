// The figure reads a sheet as the counter opens it.
#include <algorithm>
#include <fstream>
#include <sstream>

#include "diagram/data/coniss.h"
#include "figure/sheet/fault.h"
#include "figure/sheet/read_core.h"
#include "files/format/cells.h"
#include "platform/encoding.h"
#include "platform/number.h"
#include "platform/text.h"
#include "platform/user.h"
#include "unit/open_test.h"
#include "unit/shared_state.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
class FigureCoreTest : public OpenTest {
protected:
    Core Read(const std::string& bytes) {
        files_.bytes[kPath] = bytes;
        return ReadCore(kPath);
    }
    Core Read(const Rows& rows) { return Read(Joined(rows)); }

    std::string FaultOf(const std::string& bytes) {
        try {
            Read(bytes);
        } catch (const FigureFault& fault) {
            return fault.what();
        }
        return "";
    }
    std::string FaultOf(const Rows& rows) { return FaultOf(Joined(rows)); }

    // The rows of the percentage table that the counter saves by this item.
    static constexpr const char* kTable = "/sheets/table.csv";
    std::vector<Texts> SavedTable(MenuItem& item) {
        AnswerDialog(kTable);
        ClickControl(item);
        CellReader cells(files_.bytes.at(kTable));
        std::vector<Texts> rows(kSlots + kTaxonRow);
        for (Texts& row : rows)
            for (int cell = 0; cell < 4 + SampleCount; ++cell) row.push_back(cells.NextText());
        return rows;
    }
};

std::string LakeCore() {
    std::ostringstream bytes;
    bytes << std::ifstream(SOURCE_FOLDER "/docs/manual/lake_core.csv", std::ios::binary).rdbuf();
    return bytes.str();
}

Rows WithName(Rows rows, int row, const std::string& name) {
    rows[kTaxonRow + row - 1][3] = Quoted(name);
    return rows;
}

Rows WithNames(Rows rows, const Texts& names) {
    for (std::size_t sample = 0; sample < names.size(); ++sample) rows[1][4 + sample] = Quoted(names[sample]);
    return rows;
}

void SetCounts(Rows& rows, int row, const Texts& counts) {
    std::copy(counts.begin(), counts.end(), rows[kTaxonRow + row - 1].begin() + 4);
}

// Of this many samples, with these counts in the first rows and 0 in all others.
Rows SheetOf(int samples, const std::vector<Texts>& counts) {
    Rows rows = DataSheet(samples);
    for (int row = 1; row <= kSlots; ++row) SetCounts(rows, row, Texts(samples, "0"));
    for (std::size_t row = 0; row < counts.size(); ++row) SetCounts(rows, static_cast<int>(row) + 1, counts[row]);
    return rows;
}

TEST_F(FigureCoreTest, PercentagesAreThoseOfTheCountersTables) {
    ASSERT_TRUE(Open(LakeCore()));
    const std::vector<Texts> tables[] = {SavedTable(frmMain.mnuPercentAll), SavedTable(frmMain.mnuPercentSub1),
                                         SavedTable(frmMain.mnuPercentSub2)};
    const Core core = Read(LakeCore());
    ASSERT_EQ(core.taxa.size(), 23u);
    ASSERT_EQ(core.samples.size(), 12u);
    for (const Basis basis : {kBasisAll, kBasisSubtotal1, kBasisSubtotal2})
        for (std::size_t taxon = 0; taxon < core.taxa.size(); ++taxon) {
            const Texts& row = tables[basis][kTaxonRow + taxon];
            EXPECT_EQ(row[3], core.taxa[taxon].name);
            for (std::size_t sample = 0; sample < core.samples.size(); ++sample) {
                const float percent = static_cast<float>(core.samples[sample].shares[basis][taxon]) * 100;
                EXPECT_EQ(NumberText(RoundHalfEven(percent, 4)), row[4 + sample]);
            }
        }
}

TEST_F(FigureCoreTest, TheTreeIsThatOfTheCountersWindow) {
    ASSERT_TRUE(Open(LakeCore()));
    ClickControl(frmMain.Subtotal2Basis);
    ClickControl(frmMain.mnuBar);
    ClickControl(frmDiagram.nmuConiss);
    const std::vector<float> upper = MergeUpper, lower = MergeLower, height = MergeHeight;
    const std::vector<TreeMerge> tree = Read(LakeCore()).trees[kBasisSubtotal2];
    ASSERT_EQ(tree.size(), 11u);
    for (std::size_t step = 0; step < tree.size(); ++step) {
        EXPECT_NEAR(10 + 110 * tree[step].upper, upper[step + 1], 1e-4);
        EXPECT_NEAR(10 + 110 * tree[step].lower, lower[step + 1], 1e-4);
        EXPECT_EQ(tree[step].height, height[step + 1]);
    }
}

TEST_F(FigureCoreTest, ASheetIsReadWithoutTheProgram) {
    WipeSharedState();
    services.files = &files_;
    const Core core = Read(DataSheet(3));
    EXPECT_EQ(core.title, "mere");
    EXPECT_EQ(core.subtotals[0], "Trees");
    EXPECT_EQ(core.subtotals[1], "Herbs");
    EXPECT_EQ(core.params[5], "Info 6");
    ASSERT_EQ(core.taxa.size(), 135u);
    EXPECT_EQ(core.taxa[2].name, "Taxon 3");
    EXPECT_TRUE(core.taxa[2].in_subtotal[0]);
    EXPECT_TRUE(core.taxa[2].in_subtotal[1]);
    EXPECT_FALSE(core.taxa[3].in_subtotal[0]);
    ASSERT_EQ(core.samples.size(), 3u);
    EXPECT_EQ(core.samples[1].name, "20");
    EXPECT_EQ(core.samples[1].depth, 20);
    EXPECT_EQ(core.samples[1].counts[134], 37);
    EXPECT_EQ(core.samples[1].values[5], "6/2");
    EXPECT_EQ(core.samples[1].note, "Note 2");
}

TEST_F(FigureCoreTest, SamplesStandByDepthWithTheirTree) {
    const Rows rows = WithNames(SheetOf(3, {{"9", "1", "8"}, {"1", "9", "2"}}), {"10", "70", "40"});
    const Core core = Read(rows);
    EXPECT_EQ(core.samples[1].name, "40");
    EXPECT_EQ(core.samples[1].counts[0], 8);
    EXPECT_EQ(core.samples[2].counts[0], 1);
    const std::vector<TreeMerge>& tree = core.trees[kBasisAll];
    ASSERT_EQ(tree.size(), 2u);
    EXPECT_EQ(tree[0].middle, 1u) << "the two that are alike stand side by side";
    EXPECT_NEAR(tree[0].lower, 0.5, 1e-6) << "at its own depth";
    EXPECT_EQ(tree[1].middle, 2u);
    EXPECT_NEAR(tree[1].upper, 0.25, 1e-6);
}

TEST_F(FigureCoreTest, NamedSamplesStandAsInTheSheet) {
    const Core core = Read(WithNames(SheetOf(3, {{"9", "1", "8"}}), {"b", "a", "7"}));
    EXPECT_EQ(core.samples[0].name, "b");
    EXPECT_EQ(core.samples[0].depth, std::nullopt);
    EXPECT_EQ(core.samples[2].depth, 7);
    EXPECT_NEAR(core.trees[kBasisAll][0].lower, 0.5, 1e-6);
}

TEST_F(FigureCoreTest, ADepthIsWrittenPlainly) {
    for (const char* name : {"10.0", "10.50", "010", "+10", " 10", "", "-9999"})
        EXPECT_EQ(Read(WithNames(DataSheet(3), {"5", name, "15"})).samples[name == std::string("-9999") ? 0 : 1].depth, std::nullopt)
            << name;
    EXPECT_EQ(Read(WithNames(DataSheet(3), {"-5", "10.5", "15"})).samples[0].depth, -5);
}

TEST_F(FigureCoreTest, WhatIsCountedIsThereWithANameOrWithout) {
    const Core core = Read(WithName(WithName(SheetOf(2, {{"3", "1"}, {"0", "0"}, {"0", "2"}}), 3, "---"), 2, "Alnus"));
    ASSERT_EQ(core.taxa.size(), 2u);
    EXPECT_EQ(core.taxa[0].name, "Taxon 1");
    EXPECT_EQ(core.taxa[1].name, "---");
}

TEST_F(FigureCoreTest, FamiliesStandUpright) {
    const Core core = Read(WithName(WithName(SheetOf(2, {{"3", "1"}, {"1", "1"}, {"1", "2"}}), 2, "Poaceae"), 3, "---"));
    EXPECT_TRUE(core.taxa[0].italic);
    EXPECT_FALSE(core.taxa[1].italic);
    EXPECT_FALSE(core.taxa[2].italic) << "no name";
}

TEST_F(FigureCoreTest, AListWithoutAFamilyIsUpright) {
    EXPECT_FALSE(Read(SheetOf(2, {{"3", "1"}})).taxa[0].italic);
}

TEST_F(FigureCoreTest, ASampleWithoutABasisHasNoShares) {
    const Core core = Read(SheetOf(2, {{"3", "0"}, {"1", "1"}}));  // row 1 alone is a tree
    EXPECT_EQ(core.samples[0].shares[kBasisSubtotal1].size(), 2u);
    EXPECT_EQ(core.samples[0].sums[kBasisSubtotal1], 3);
    EXPECT_TRUE(core.samples[1].shares[kBasisSubtotal1].empty());
    EXPECT_EQ(core.samples[1].shares[kBasisAll].size(), 2u);
}

TEST_F(FigureCoreTest, AnOlderSheetKeepsNothingOfTheOneBefore) {
    Read(DataSheet(4));
    const Core core = Read(OlderSheet(3));
    EXPECT_EQ(core.samples.size(), 3u);
    EXPECT_EQ(core.params[0], "");
    EXPECT_EQ(core.samples[0].values[0], "---");
}

TEST_F(FigureCoreTest, LettersOfBothEncodingsAreRead) {
    const std::string sheet = Joined(WithName(SheetOf(2, {{"3", "1"}}), 1, "Éphèdre"));
    EXPECT_EQ(Read(sheet).taxa[0].name, "Éphèdre");
    EXPECT_EQ(Read(EncodeFile(sheet)).taxa[0].name, "Éphèdre");
}

TEST_F(FigureCoreTest, ABackUpIsASheet) {
    Rows rows = DataSheet(3);
    rows.erase(rows.begin() + kSumRow, rows.end());
    EXPECT_EQ(Read(rows).samples.size(), 3u);
}

TEST_F(FigureCoreTest, WhatIsNoSheetOfCountsIsTold) {
    EXPECT_EQ(FaultOf(TemplateFile()), "this is a template: it has no samples");
    EXPECT_EQ(FaultOf(DataSheet(1)), "a figure takes two samples or more, and this sheet has one");
    ASSERT_TRUE(Open(LakeCore()));
    SavedTable(frmMain.mnuPercentSub1);
    EXPECT_EQ(FaultOf(files_.bytes.at(kTable)), "this is a percentage table: a figure is made from the sheet with the counts");
    constexpr const char* kTooShort = "this is no sheet of counts, or not a whole one: it ends too early";
    EXPECT_EQ(FaultOf({{"\"a\"", "\"b\"", "\"c\"", "\"d\"", "\"e\"", "\"f\""}}), kTooShort);
    EXPECT_EQ(FaultOf({{"\"a\"", "\"b\"", "\"c\"", "\"d\"", "\"e\"", "\"f\"", "\"g\"", "\"h\"", "\"i\""}}).substr(0, 26),
              "this is no sheet of counts");
    Rows torn = DataSheet(3);
    torn.resize(50);
    EXPECT_EQ(FaultOf(torn), kTooShort);
}

TEST_F(FigureCoreTest, ANumberThatNoSheetHasIsTold) {
    constexpr const char* kOutOfRange = "this is no sheet of counts: a key index, a serial number or the number of samples is out of range";
    Rows rows = DataSheet(3);
    rows[kTaxonRow + 8][0] = "136";
    EXPECT_EQ(FaultOf(rows), kOutOfRange);
    rows = DataSheet(3);
    rows[0][4] = "-2";
    EXPECT_EQ(FaultOf(rows), kOutOfRange);
    rows = DataSheet(3);
    SetCounts(rows, 7, {"4", "3000000000", "3"});
    EXPECT_EQ(FaultOf(rows), "this is no sheet of counts: a number in it is too large");
}

TEST_F(FigureCoreTest, AFlagIsZeroOrOne) {
    for (const char* flag : {"2", "-1", "10"}) {
        Rows rows = DataSheet(3);
        rows[kTaxonRow + 8][1] = flag;
        EXPECT_EQ(FaultOf(rows), std::string("the flag of Taxon 9 for Trees is ") + flag + ": members of a subtotal have 1, others 0");
    }
    Rows rows = DataSheet(3);
    rows[kTaxonRow + 9][2] = "-1";
    EXPECT_EQ(FaultOf(rows), "the flag of Taxon 10 for Herbs is -1: members of a subtotal have 1, others 0");
}

TEST_F(FigureCoreTest, WhatCannotBeDrawnIsTold) {
    Rows below_zero = DataSheet(3);
    SetCounts(below_zero, 7, {"4", "-1", "3"});
    EXPECT_EQ(FaultOf(below_zero), "the count of Taxon 7 in sample 20 is below zero");
    Rows repeated = DataSheet(3);
    repeated[kTaxonRow + 8][0] = "4";
    EXPECT_EQ(FaultOf(repeated), "the key index 4 stands more than once in the first column");
    Rows without_key = DataSheet(3);
    without_key[kTaxonRow + 8][0] = "0";
    EXPECT_EQ(FaultOf(without_key), "a key index of 0 stands in the first column: they go from 1 to 135");
    EXPECT_EQ(FaultOf(WithNames(DataSheet(3), {"5", "5", "5"})), "all samples have the same depth");
    EXPECT_EQ(FaultOf(WithNames(DataSheet(3), {"5", "6", "999999"})), "the depth 999999 is too large");
    EXPECT_EQ(FaultOf(SheetOf(2, {})), "nothing has been counted in this sheet");
    EXPECT_EQ(FaultOf(SheetOf(2, {{"2147483647", "1"}, {"1", "1"}})), "the counts are too large (Overflow)");
}

TEST_F(FigureCoreTest, AFileThatIsNotThereIsTold) {
    EXPECT_THROW(ReadCore("/sheets/none.csv"), FigureFault);
}
}  // namespace
