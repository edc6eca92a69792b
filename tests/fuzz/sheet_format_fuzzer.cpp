// Whatever bytes a sheet is, the arrays stay within their bounds and hold what was read before a fault; a sheet that was read whole is
// written and read again as the same bytes. Nothing but the file format is linked: no window, no procedure.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "files/format/cells.h"
#include "files/format/read_sheet.h"
#include "files/format/sheet_rows.h"
#include "platform/encoding.h"
#include "platform/failure.h"
#include "session/state/sheet_state.h"
#include "unit/sheet_bytes.h"

namespace {
void Check(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
}

// Every input meets the same arrays.
void StartAfresh() {
    SampleCount = CurrentSample = 1;
    for (auto& row : Counts) std::fill(std::begin(row), std::end(row), 0);
    for (int slot = 0; slot <= kSlots; ++slot) KeyIndex[slot] = RowOfSlot[slot] = static_cast<std::int16_t>(slot);
    for (auto& header : ParamHeader) std::fill(std::begin(header), std::end(header), kEmpty);
    for (auto& values : ParamValues) std::fill(std::begin(values), std::end(values), kEmpty);
}

// False: a cell could not be read.
bool Read(const std::string& bytes, GridRead& read) {
    CellReader cells(DecodeFile(bytes));
    try {
        SheetHeader[kHeaderPath] = cells.Next();
        ReadGrid(cells, read, [](int) {});
        TemplateOpened = SampleCount == 0;
        if (FileVersion > 1) ReadParamRows(cells);
        ReadNotes(cells);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

std::string Written() {
    LabelHeader("Last saved (dd/mm/yyyy):", "14/11/2026_(10:11:12)");
    return SheetBytes();
}

void CheckExtent(const GridRead& read) {
    Check(SampleCount >= 0 && SampleCount <= kColumns, "SampleCount is within the arrays");
    Check(!read.serials || CurrentSample == SampleCount, "the last sample is the current one");
    Check(read.sample_names <= SampleCount, "no more names than samples");
    Check(read.rows <= kSlots && read.counts <= SampleCount, "no more rows and counts than the grid has");
    Check(read.rows == 0 || read.sample_names == SampleCount, "all names come before the first row");
    for (int row = 1; row <= kSlots; ++row) {
        Check(KeyIndex[row] >= 0 && KeyIndex[row] <= kSlots, "every row has a slot");
        Check(row <= read.rows || !read.has_count[row], "a row that was not begun has no count");
    }
}

// Each row that was read stands in the place of its slot, unless a later row has taken that.
void CheckRows(const GridRead& read) {
    for (int row = 1; row <= read.rows; ++row) {
        const int slot = KeyIndex[row];
        if (RowOfSlot[slot] != row) continue;
        Check(TaxonTable[slot][kTaxonSheetRow] == row && TaxonTable[slot][kTaxonName] == RowNames[row],
              "the slot has the labels of its row");
        const int counts = row < read.rows ? SampleCount : read.counts;
        const bool any = std::any_of(&Counts[slot][1], &Counts[slot][counts] + 1, [](std::int32_t count) { return count != 0; });
        Check(any == read.has_count[row] || (row == read.rows && counts < SampleCount), "a row is marked by its counts");
    }
}

void CheckRoundTrip() {
    const std::string written = Written();
    GridRead again;
    Check(Read(written, again), "a written sheet can be read");
    Check(again.rows == kSlots && again.counts == SampleCount, "to the end of its grid");
    Check(Written() == written, "and is written as the same bytes");
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    StartAfresh();
    GridRead read;
    const bool whole = Read({reinterpret_cast<const char*>(data), size}, read);
    CheckExtent(read);
    CheckRows(read);
    if (whole && ComesBackFromItsFile()) CheckRoundTrip();
    return 0;
}
