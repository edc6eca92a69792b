#include "figure/sheet/read_core.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

#include "diagram/data/coniss.h"
#include "diagram/data/italics.h"
#include "diagram/data/percentages.h"
#include "diagram/data/sample_position.h"
#include "figure/sheet/fault.h"
#include "files/format/read_sheet.h"
#include "platform/failure.h"
#include "platform/text.h"
#include "session/state/sample_names.h"
#include "session/state/sheet_state.h"
#include "windows/diagram_window.h"
#include "windows/main_window.h"

namespace {
constexpr int kLabels = 4;         // the cells of a row before those of the samples
constexpr int kRowsOfSums = 3;     // at the end of a sheet
constexpr int kPlainScale = 5;     // of frmDiagram.HorizontalScale
constexpr double kFirstRow = 10;   // where the uppermost sample stands in the counter's tree
constexpr double kRowHeight = 10;  // and how far below it the next one

std::string FileTitle(const std::string& path) {
    const std::string name = path.substr(path.find_last_of("/\\") + 1);  // the whole path where there is no folder
    return name.substr(0, name.rfind('.'));
}

void CheckHead() {
    const bool is_sheet = SheetHeader[kHeaderSerial] == "Serial No.";
    if (SampleCount == 0 && is_sheet) throw FigureFault("this is a template: it has no samples");
    if (SampleCount == 0) throw FigureFault("this is no sheet of counts");
    if (SampleCount == 1) throw FigureFault("a figure takes two samples or more, and this sheet has one");
}

// The last rows of a percentage table are the sums; a sheet has its notes before them, and a back-up ends with these.
void CheckEnd(CellReader& cells) {
    int left = 0;
    for (; !cells.AtEnd(); ++left) cells.Next();
    if (left == (kRowsOfSums - 1) * (kLabels + SampleCount))
        throw FigureFault("this is a percentage table: a figure is made from the sheet with the counts");
}

void ForgetParams() {
    for (int p = 1; p <= kParams; ++p) {
        ParamHeader[p][kParamName].clear();
        for (int sample = 1; sample <= SampleCount; ++sample) ParamValues[p][sample] = kEmpty;
    }
}

void ReadCells(CellReader& cells) {
    GridRead read;
    SheetHeader[kHeaderPath] = cells.Next();
    ReadGrid(cells, read, [](int) {});
    CheckHead();
    TemplateOpened = false;
    if (FileVersion > 1)
        ReadParamRows(cells);
    else
        ForgetParams();
    ReadNotes(cells);
    CheckEnd(cells);
}

void CheckKeyIndices() {
    if (const std::optional<int> repeated = RepeatedKeyIndex())
        throw FigureFault("the key index " + std::to_string(*repeated) + " stands more than once in the first column");
    if (std::find(&KeyIndex[1], &KeyIndex[kSlots] + 1, 0) != &KeyIndex[kSlots] + 1)
        throw FigureFault("a key index of 0 stands in the first column: they go from 1 to 135");
}

// The counter takes any number as a weight, but it writes no other than these.
void CheckFlags() {
    for (int row = 1; row <= kSlots; ++row)
        for (int i = 0; i < kSubtotals; ++i) {
            const Any& flag = TaxonTable[KeyIndex[row]][kSubtotalFlags[i]];
            if (flag.Number() == 0 || flag.Number() == 1) continue;
            throw FigureFault("the flag of " + RowNames[row] + " for " + WithoutTrailingColon(SheetHeader[kHeaderSubtotal1 + i].Text()) +
                              " is " + flag.Text() + ": members of a subtotal have 1, others 0");
        }
}

void CheckCounts() {
    for (int row = 1; row <= kSlots; ++row)
        for (int sample = 1; sample <= SampleCount; ++sample)
            if (Counts[KeyIndex[row]][sample] < 0)
                throw FigureFault("the count of " + RowNames[row] + " in sample " + SampleNamesRead[sample] + " is below zero");
}

// The counter's diagram has no place for deeper ones.
void CheckDepths() {
    constexpr double kTooDeep = 999999;
    CheckSampleNames();
    if (SampleNamesAreText) return;
    for (int sample = 1; sample <= SampleCount; ++sample)
        if (Val(SampleNamesRead[sample]) >= kTooDeep) throw FigureFault("the depth " + SampleNamesRead[sample] + " is too large");
}

std::string NoSheet(const std::string& word) {
    const std::string line = "this is no sheet of counts";
    if (word == kInputPastEnd) return line + ", or not a whole one: it ends too early";
    if (word == kOverflow) return line + ": a number in it is too large";
    return line + ": a key index, a serial number or the number of samples is out of range";
}

void ReadFile(const std::string& path) {
    std::string text;
    try {
        text = ReadSheetText(path);
    } catch (const Failure&) {
        throw FigureFault("this file is not there, cannot be read, or is far too large for a sheet");
    }
    try {
        CellReader cells(std::move(text));
        ReadCells(cells);
    } catch (const Failure& failure) {
        throw FigureFault(NoSheet(failure.what()));
    }
    CheckKeyIndices();
    CheckFlags();
    CheckCounts();
    CheckDepths();
}

std::vector<int> CountedRows() {
    std::vector<int> rows;
    for (int row = 1; row <= kSlots; ++row) {
        const std::int32_t* const counts = Counts[KeyIndex[row]];
        if (std::any_of(counts + 1, counts + SampleCount + 1, [](std::int32_t count) { return count != 0; })) rows.push_back(row);
    }
    return rows;
}

Taxon TaxonOf(int row, bool italic) {
    const Any* const labels = TaxonTable[KeyIndex[row]];
    const bool has_name = !RowNames[row].empty() && RowNames[row] != kEmpty;
    Taxon taxon{has_name ? RowNames[row] : kEmpty, {}, has_name && italic};
    for (int i = 0; i < kSubtotals; ++i) taxon.in_subtotal[i] = labels[kSubtotalFlags[i]].Number() != 0;
    return taxon;
}

Sample SampleOf(int column, const std::vector<int>& rows) {
    Sample sample;
    sample.name = SampleTable[kSampleName][column].Text();
    sample.is_named = sample.name != kUnnamed;
    if (IsPlainNumber(sample.name) && sample.is_named) sample.depth = Val(sample.name);
    for (int p = 1; p <= kParams; ++p) {
        const std::string value = ParamValues[p][column].Text();
        sample.values[p - 1] = value.empty() ? kEmpty : value;
    }
    sample.note = SampleNotes[column];
    for (const int row : rows) sample.counts.push_back(Counts[KeyIndex[row]][column]);
    return sample;
}

void SelectBasis(Basis basis) {
    frmMain.BasisOptions[basis].SetValue(true);
}

void TakeUpShares(Core& core, Basis basis, const std::vector<int>& rows) {
    for (int place = 1; place <= SampleCount; ++place) {
        Sample& sample = core.samples[place - 1];
        const Shares shares = SharesOf(SampleAtRank[place], WeightsOfBasis());
        sample.sums[basis] = shares.sum;
        if (shares.sum == 0) continue;
        for (const int row : rows) sample.shares[basis].push_back(shares.fractions[KeyIndex[row]]);
    }
}

// The counter places a sheet whose columns are not in the order of depth by the names of its columns; the figure, by the depths.
void TakeUpDepths() {
    for (int place = 1; place <= SampleCount; ++place) SampleTable[kSampleNameDrawn][place] = SampleTable[kSampleName][SampleAtRank[place]];
}

double OnAxis(float position) {
    return (position - kFirstRow) / (kRowHeight * (SampleCount - 1));
}

// Clusters come from two that stand next to each other. Which ones is told by their positions: they are the same numbers.
std::vector<TreeMerge> TreeOf() {
    const SamplePositions positions;
    struct Cluster {
        std::size_t first;
        float position;
    };
    std::vector<Cluster> clusters;
    for (int place = 1; place <= SampleCount; ++place) clusters.push_back({static_cast<std::size_t>(place - 1), positions.Y(place)});
    std::vector<TreeMerge> merges;
    for (int step = 1; step <= LastMerge(); ++step) {
        const float upper = MergeUpper[step], lower = MergeLower[step];
        const auto pair = std::adjacent_find(clusters.begin(), clusters.end(), [=](const Cluster& a, const Cluster& b) {
            return a.position == upper && b.position == lower;
        });
        assert(pair != clusters.end());
        merges.push_back({OnAxis(upper), OnAxis(lower), MergeHeight[step], std::next(pair)->first});
        pair->position = static_cast<float>((static_cast<double>(upper) + lower) / 2);
        clusters.erase(std::next(pair));
    }
    return merges;
}

void TakeUpBasis(Core& core, Basis basis, const std::vector<int>& rows) {
    SelectBasis(basis);
    ComputeDiagramData();
    TakeUpDepths();
    TakeUpShares(core, basis, rows);
    ComputeConiss();
    core.trees[basis] = TreeOf();
}

void TakeUpNames(Core& core) {
    for (int i = 0; i < kSubtotals; ++i) core.subtotals[i] = WithoutTrailingColon(SheetHeader[kHeaderSubtotal1 + i].Text());
    for (int p = 1; p <= kParams; ++p) core.params[p - 1] = WithoutTrailingColon(ParamHeader[p][kParamName]);
}

Core TakeUpCore(const std::string& path) {
    frmDiagram.HorizontalScale.SetValue(kPlainScale);
    SelectBasis(kBasisAll);
    ComputeDiagramData();
    Core core;
    core.title = FileTitle(path);
    TakeUpNames(core);
    const std::vector<int> rows = CountedRows();
    if (rows.empty()) throw FigureFault("nothing has been counted in this sheet");
    const Italics italics = ItalicRows();
    for (const int row : rows) core.taxa.push_back(TaxonOf(row, italics[row]));
    for (int place = 1; place <= SampleCount; ++place) core.samples.push_back(SampleOf(SampleAtRank[place], rows));
    for (const Basis basis : {kBasisAll, kBasisSubtotal1, kBasisSubtotal2}) TakeUpBasis(core, basis, rows);
    return core;
}
}  // namespace

Core ReadCore(const std::string& path) {
    ReadFile(path);
    try {
        return TakeUpCore(path);
    } catch (const Failure& failure) {
        if (failure.what() == std::string(kDivisionByZero)) throw FigureFault("all samples have the same depth");
        throw FigureFault(std::string("the counts are too large (") + failure.what() + ")");
    }
}
