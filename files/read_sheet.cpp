#include "files/read_sheet.h"

#include <algorithm>
#include <string>

#include "platform/failure.h"
#include "platform/number.h"
#include "platform/text.h"
#include "session/sample_on_show.h"
#include "session/state/sheet_state.h"
#include "session/subtotal_names.h"
#include "session/totals.h"
#include "windows/main_window.h"

namespace {
// The labels between the path and the serials. An older layout has one cell more before "Serial No.".
void ReadLabels(CellReader& cells) {
    for (const int i : {7, 8, 9}) SheetHeader[i] = cells.Next();
    if (!(SheetHeader[9] == "Serial No.")) SheetHeader[9] = cells.Next();
    FileVersion = SheetHeader[7] == "Saved:" ? 1 : 2;
}

bool IsNumber(const Any& cell) {
    return cell.IsNumber() || IsPlainNumber(cell.Text());
}

// The run of numbers up to the first text, which begins the second row. Returns how many there are.
int ReadSerials(CellReader& cells) {
    int count = 0;
    for (Any cell = cells.Next();; cell = cells.Next()) {
        if (!IsNumber(cell)) {
            SheetHeader[11] = cell;
            return count;
        }
        if (++count > kColumns) throw Failure(kSubscriptOutOfRange);
        SampleTable[1][count] = cell.Number();
    }
}

void MapSerials() {
    for (std::int16_t column = 1; column <= SampleCount; ++column) {
        const std::int16_t serial = ToInteger(SampleTable[1][column].Number());
        if (serial < 0 || serial > kColumns) throw Failure(kSubscriptOutOfRange);
        SerialOfColumn[column] = serial;
        ColumnOfSerial[serial] = column;
    }
}

// The labels of one taxon row; returns its slot.
int ReadTaxonLabels(CellReader& cells, std::int16_t row) {
    const std::int16_t slot = ToInteger(cells.Next().Number());
    const bool has_place = slot >= 0 && slot <= kSlots;
    if (has_place) KeyIndex[row] = slot;  // always a slot: even after an open that fails, a save goes by it
    RowSubtotal1[row] = ToLong(cells.Next().Number());
    RowSubtotal2[row] = ToLong(cells.Next().Number());
    RowNames[row] = cells.NextText();
    if (!has_place) throw Failure(kSubscriptOutOfRange);
    RowOfSlot[slot] = row;
    TaxonTable[slot][0] = row;
    TaxonTable[slot][1] = slot;
    TaxonTable[slot][2] = RowSubtotal1[row];
    TaxonTable[slot][3] = RowSubtotal2[row];
    TaxonTable[slot][4] = RowNames[row];
    frmMain.Text1[slot].SetText(RowNames[row]);
    return slot;
}

// Bold goes by the row of the file and marks a count in any sample; the cell shows the last count that could be read.
void ReadCounts(CellReader& cells, int row, int slot) {
    int sample = 0;
    bool any = false;
    const auto show = [&] {
        if (sample > 0) ShowCountOf(slot, Counts[slot][sample]);
        if (!any) return;
        frmMain.Text2[row].SetBold(true);
        frmMain.Text1[row].SetBold(true);
    };
    try {
        while (sample < SampleCount) {
            Counts[slot][sample + 1] = ToLong(cells.Next().Number());
            ++sample;
            any = any || Counts[slot][sample] != 0;
        }
    } catch (const Failure&) {
        show();
        throw;
    }
    show();
}

void ShowNoCounts(int slot) {
    frmMain.Text2[slot].SetBold(false);
    frmMain.Text1[slot].SetBold(false);
    frmMain.Text2[slot].SetText("0");
}
}  // namespace

std::int16_t LargestSerial() {
    constexpr double kNone = -9999;
    double largest = kNone;
    for (int sample = 1; sample <= SampleCount; ++sample) largest = std::max(largest, SampleTable[1][sample].Number());
    return largest == kNone ? std::int16_t{0} : ToInteger(largest);
}

void ReadFirstRow(CellReader& cells) {
    ReadLabels(cells);
    const int samples = ReadSerials(cells);
    SampleCount = CurrentSample = static_cast<std::int16_t>(samples);
    frmMain.Text99.SetText(std::to_string(samples));
    MaxSerial = LargestSerial();
    ShowSerial();
    MapSerials();
}

void ReadSampleNames(CellReader& cells) {
    for (const int i : {12, 13, 14}) SheetHeader[i] = cells.Next();
    ShowSubtotalNames();
    frmMain.Combo2.Clear();
    std::string last;
    for (int sample = 1; sample <= SampleCount; ++sample) {
        last = SampleNamesRead[sample] = cells.NextText();
        SampleTable[2][sample] = last;
        frmMain.Combo2.AddItem(last);
    }
    frmMain.Combo2.SetText(last);
    frmMain.Text1[0].SetText(last);
}

void ReadTaxonRows(CellReader& cells) {
    RowOfSlot[0] = 0;  // a key index of 0 in an earlier file may have taken it
    for (std::int16_t row = 1; row <= kSlots; ++row) {
        frmMain.ProgressBar1.SetValue(row);
        const int slot = ReadTaxonLabels(cells, row);
        if (SampleCount > 0)
            ReadCounts(cells, row, slot);
        else
            ShowNoCounts(slot);
    }
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
