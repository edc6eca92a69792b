// A sheet between its bytes and the arrays, with nothing on any screen.
#include "files/format/read_sheet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <optional>
#include <string>
#include <vector>

#include "platform/failure.h"
#include "session/state/sheet_state.h"
#include "unit/shared_state.h"
#include "unit/sheet_bytes.h"
#include "unit/sheet_file.h"

namespace {
class ReadSheetTest : public testing::Test {
protected:
    ReadSheetTest() { WipeSharedState(); }

    // Up to the last taxon row. The word of the failure that stopped it, or "".
    std::string ReadUpToTaxa(const std::string& text) {
        read_ = {};
        progress_.clear();
        cells_.emplace(text);
        SheetHeader[kHeaderPath] = cells_->Next();
        try {
            ReadGrid(*cells_, read_, [this](int row) { progress_.push_back(row); });
            return "";
        } catch (const Failure& failure) {
            return failure.what();
        }
    }
    std::string ReadUpToTaxa(const Rows& rows) { return ReadUpToTaxa(Joined(rows)); }
    void ReadWhole(const Rows& rows) {
        ASSERT_EQ(ReadUpToTaxa(rows), "");
        ReadParamRows(*cells_);
        ReadNotes(*cells_);
    }

    GridRead read_;
    std::vector<int> progress_;
    std::optional<CellReader> cells_;
};

TEST_F(ReadSheetTest, AWholeGridIsInTheArrays) {
    ASSERT_EQ(ReadUpToTaxa(DataSheet(3)), "");
    EXPECT_EQ(SampleCount, 3);
    EXPECT_EQ(CurrentSample, 3);
    EXPECT_EQ(MaxSerial, 3);
    EXPECT_EQ(SampleTable[kSampleName][2], "20");
    EXPECT_EQ(TaxonTable[135][kTaxonName], "Taxon 135");
    EXPECT_EQ(Counts[135][3], 38);
    EXPECT_TRUE(read_.serials && read_.largest_serial && read_.subtotal_names);
    EXPECT_EQ(read_.sample_names, 3);
    EXPECT_EQ(read_.rows, kSlots);
    EXPECT_EQ(read_.counts, 3);
}

TEST_F(ReadSheetTest, EachTaxonRowIsToldBeforeItIsRead) {
    ReadUpToTaxa(DataSheet(1));
    std::vector<int> all(kSlots);
    std::iota(all.begin(), all.end(), 1);
    EXPECT_EQ(progress_, all);
    Rows rows = DataSheet(1);
    rows.resize(kTaxonRow + 5);
    ReadUpToTaxa(rows);
    EXPECT_EQ(progress_, (std::vector<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(read_.rows, 5);
}

// A grid of two samples cut after any of its cells.
TEST_F(ReadSheetTest, ItTellsHowFarItCame) {
    constexpr int kSamples = 2;
    constexpr int kWidth = 4 + kSamples;
    constexpr int kGrid = (2 + kSlots) * kWidth;
    const Rows rows = DataSheet(kSamples);
    std::string cut = rows[0][0];
    for (int cells = 1; cells <= kGrid; ++cells) {
        ASSERT_EQ(ReadUpToTaxa(cut), cells < kGrid ? kInputPastEnd : "") << cells;
        const int of_taxa = cells - 2 * kWidth;
        const int begun = of_taxa < 4 ? 0 : (of_taxa - 4) / kWidth + 1;
        ASSERT_EQ(read_.serials, cells > kWidth) << "the begin of the second row ends the serials";
        ASSERT_EQ(read_.largest_serial, cells > kWidth) << cells;
        ASSERT_EQ(read_.subtotal_names, cells >= kWidth + 4) << cells;
        ASSERT_EQ(read_.sample_names, std::clamp(cells - kWidth - 4, 0, kSamples)) << cells;
        ASSERT_EQ(read_.rows, begun) << cells;
        ASSERT_EQ(read_.counts, begun == 0 ? 0 : std::min(of_taxa - 4 - (begun - 1) * kWidth, kSamples)) << cells;
        cut += "," + rows[cells / kWidth][cells % kWidth];
    }
}

TEST_F(ReadSheetTest, AFaultLeavesWhatWasReadBeforeIt) {
    Rows rows = DataSheet(2);
    rows[kTaxonRow + 9][5] = "2147483648";
    EXPECT_EQ(ReadUpToTaxa(rows), kOverflow);
    EXPECT_EQ(read_.rows, 10);
    EXPECT_EQ(read_.counts, 1);
    EXPECT_EQ(Counts[10][1], 11);
    EXPECT_EQ(Counts[10][2], 0);
    EXPECT_EQ(TaxonTable[10][kTaxonName], "Taxon 10");
    EXPECT_EQ(TaxonTable[11][kTaxonName], "");
}

TEST_F(ReadSheetTest, SerialsOutsideTheirTypeOrTheArraysStopItBeforeTheNames) {
    Rows rows = DataSheet(2);
    rows[0][5] = "32768";
    EXPECT_EQ(ReadUpToTaxa(rows), kOverflow);
    EXPECT_TRUE(read_.serials);
    EXPECT_FALSE(read_.largest_serial);
    rows[0][5] = "256";
    EXPECT_EQ(ReadUpToTaxa(rows), kSubscriptOutOfRange);
    EXPECT_TRUE(read_.largest_serial);
    EXPECT_FALSE(read_.subtotal_names);
}

TEST_F(ReadSheetTest, ARowHasACountIfAnySampleHasOne) {
    Rows rows = DataSheet(2);
    for (int row = 0; row < kSlots; ++row) rows[kTaxonRow + row][4] = rows[kTaxonRow + row][5] = "0";
    rows[kTaxonRow + 6][4] = "3";
    rows[kTaxonRow + 8][5] = "-1";
    rows[kTaxonRow + 6][0] = "30";
    rows[kTaxonRow + 29][0] = "7";
    ASSERT_EQ(ReadUpToTaxa(rows), "");
    for (int row = 1; row <= kSlots; ++row) EXPECT_EQ(read_.has_count[row], row == 7 || row == 9) << row;
}

TEST_F(ReadSheetTest, ATemplateHasRowsWithoutCounts) {
    ASSERT_EQ(ReadUpToTaxa(TemplateFile()), "");
    EXPECT_EQ(SampleCount, 0);
    EXPECT_EQ(read_.sample_names, 0);
    EXPECT_EQ(read_.rows, kSlots);
    EXPECT_EQ(read_.counts, 0);
    EXPECT_TRUE(read_.has_count.none());
}

TEST_F(ReadSheetTest, WhatIsWrittenFromTheArraysIsWhatWasRead) {
    for (const int samples : {1, 2, 255}) {
        Rows rows = DataSheet(samples);
        std::swap(rows[kTaxonRow], rows[kTaxonRow + 99]);
        rows.resize(kSumRow);
        ReadWhole(rows);
        EXPECT_EQ(SheetBytes(), Joined(rows)) << samples;
    }
}
}  // namespace
