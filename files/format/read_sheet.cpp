#include "files/format/read_sheet.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include "platform/encoding.h"
#include "platform/failure.h"
#include "platform/number.h"
#include "platform/services.h"
#include "platform/text.h"
#include "session/state/sheet_state.h"

namespace {
// The labels between the path and the serials. An older layout has one cell more before "Serial No.".
void ReadLabels(CellReader& cells) {
    for (const int i : {kHeaderSaved, kHeaderTime, kHeaderSerial}) SheetHeader[i] = cells.Next();
    if (!(SheetHeader[kHeaderSerial] == "Serial No.")) SheetHeader[kHeaderSerial] = cells.Next();
    FileVersion = SheetHeader[kHeaderSaved] == "Saved:" ? 1 : 2;
}

bool IsNumber(const Any& cell) {
    return cell.IsNumber() || IsPlainNumber(cell.Text());
}

// The run of numbers up to the first text, which begins the second row. Returns how many there are.
std::int16_t ReadSerials(CellReader& cells) {
    std::int16_t count = 0;
    for (Any cell = cells.Next();; cell = cells.Next()) {
        if (!IsNumber(cell)) {
            SheetHeader[kHeaderKey] = cell;
            return count;
        }
        if (++count > kColumns) throw Failure(kSubscriptOutOfRange);
        SampleTable[kSampleSerial][count] = cell.Number();
    }
}

void MapSerials() {
    for (std::int16_t column = 1; column <= SampleCount; ++column) {
        const std::int16_t serial = ToInt16(SampleTable[kSampleSerial][column].Number());
        if (serial < 0 || serial > kColumns) throw Failure(kSubscriptOutOfRange);
        SerialOfColumn[column] = serial;
        ColumnOfSerial[serial] = column;
    }
}

// The labels of one taxon row; returns its slot.
int ReadTaxonLabels(CellReader& cells, std::int16_t row) {
    const std::int16_t slot = ToInt16(cells.Next().Number());
    const bool has_place = slot >= 0 && slot <= kSlots;
    if (has_place) KeyIndex[row] = slot;  // always a slot: even after an open that fails, a save goes by it
    RowSubtotal1[row] = ToInt32(cells.Next().Number());
    RowSubtotal2[row] = ToInt32(cells.Next().Number());
    RowNames[row] = cells.NextText();
    if (!has_place) throw Failure(kSubscriptOutOfRange);
    RowOfSlot[slot] = row;
    TaxonTable[slot][kTaxonSheetRow] = row;
    TaxonTable[slot][kTaxonKey] = slot;
    TaxonTable[slot][kTaxonSubtotal1] = RowSubtotal1[row];
    TaxonTable[slot][kTaxonSubtotal2] = RowSubtotal2[row];
    TaxonTable[slot][kTaxonName] = RowNames[row];
    return slot;
}

void ReadCounts(CellReader& cells, int slot, GridRead& read) {
    while (read.counts < SampleCount) {
        const std::span rest(&Counts[slot][read.counts + 1], static_cast<std::size_t>(SampleCount - read.counts));
        const auto taken = rest.first(cells.NextCounts(rest));
        if (std::any_of(taken.begin(), taken.end(), [](std::int32_t count) { return count != 0; })) read.has_count.set(read.rows);
        read.counts += static_cast<int>(taken.size());
    }
}

// What follows the path: the labels, the serials and the begin of the second row.
void ReadFirstRow(CellReader& cells, GridRead& read) {
    ReadLabels(cells);
    SampleCount = CurrentSample = ReadSerials(cells);
    read.serials = true;
    MaxSerial = LargestSerial();
    read.largest_serial = true;
    MapSerials();
}

void ReadSampleNames(CellReader& cells, GridRead& read) {
    for (const int i : {kHeaderSubtotal1, kHeaderSubtotal2, kHeaderSample}) SheetHeader[i] = cells.Next();
    read.subtotal_names = true;
    while (read.sample_names < SampleCount) {
        std::string name = cells.NextText();
        const int sample = ++read.sample_names;
        SampleTable[kSampleName][sample] = SampleNamesRead[sample] = std::move(name);
    }
}

void ReadTaxonRows(CellReader& cells, GridRead& read, const RowProgress& progress) {
    TaxonTable[0][kTaxonSubtotal1] = TaxonTable[0][kTaxonSubtotal2] = 0;
    AllTotal = 0;
    RowOfSlot[0] = 0;  // a key index of 0 in an earlier file may have taken it
    for (std::int16_t row = 1; row <= kSlots; ++row) {
        progress(row);
        const int slot = ReadTaxonLabels(cells, row);
        read.rows = row;
        read.counts = 0;
        ReadCounts(cells, slot, read);
    }
}
}  // namespace

std::int16_t LargestSerial() {
    constexpr double kNone = -9999;
    double largest = kNone;
    for (int sample = 1; sample <= SampleCount; ++sample) largest = std::max(largest, SampleTable[kSampleSerial][sample].Number());
    return largest == kNone ? std::int16_t{0} : ToInt16(largest);
}

void ReadGrid(CellReader& cells, GridRead& read, const RowProgress& progress) {
    ReadFirstRow(cells, read);
    ReadSampleNames(cells, read);
    ReadTaxonRows(cells, read, progress);
}

void ReadParamRows(CellReader& cells) {
    for (int p = 1; p <= kParams; ++p) {
        for (int i = 1; i <= 4; ++i) ParamHeader[p][i] = cells.NextText();
        if (TemplateOpened) continue;
        for (int sample = 1; sample <= SampleCount; ++sample) ParamValues[p][sample] = cells.Next();
    }
}

void ReadNotes(CellReader& cells) {
    for (int i = 1; i <= 4; ++i) {
        SheetFooter[i] = cells.Next();
        if (SheetFooter[i] == "") SheetFooter[i] = kEmpty;
    }
    if (TemplateOpened) return;
    for (int sample = 1; sample <= SampleCount; ++sample) SampleNotes[sample] = cells.NextText();
}

// A character that takes one byte in a file may take three in memory, where a text has several copies: what is too large for a file is too
// large for a text.
std::string ReadSheetText(const std::string& path) {
    std::string bytes = services.files->ReadAll(path);
    if (IsAscii(bytes)) return bytes;  // nearly all are, and need not be copied
    std::string text = DecodeFile(bytes);
    if (text.size() > kLargestFile) throw Failure(kFileError);
    return text;
}

std::optional<int> RepeatedKeyIndex() {
    for (int row = 2; row <= kSlots; ++row)
        if (std::find(&KeyIndex[1], &KeyIndex[row], KeyIndex[row]) != &KeyIndex[row]) return KeyIndex[row];
    return std::nullopt;
}
