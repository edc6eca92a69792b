#include "files/sheet_on_screen.h"

#include <string>

#include "files/format/sheet_rows.h"
#include "platform/number.h"
#include "session/history.h"
#include "session/pad_cells.h"
#include "session/sample_on_show.h"
#include "session/totals.h"
#include "windows/main_window.h"

namespace {
// `read`: how many of the names were read. The list shows them, and the last one once it has all.
void ShowSampleNames(ComboBox& list, int read) {
    list.Clear();
    for (int sample = 1; sample <= read; ++sample) list.AddItem(SampleNamesRead[sample]);
    if (read < SampleCount) return;
    const std::string last = SampleCount > 0 ? SampleNamesRead[SampleCount] : "";
    list.SetText(last);
    frmMain.SampleName.SetText(last);
}

void ShowNoCounts(int slot) {
    ShowBold(slot, false);
    ShowCountOf(slot, 0);
}

// `counts`: how many of the row were read.
void ShowCounts(int row, int counts, bool bold) {
    const int slot = KeyIndex[row];
    if (counts > 0) ShowCountOf(slot, Counts[slot][counts]);
    if (bold) ShowBold(row, true);
}

// A cell that shows what its array holds is no edit, but in Modify mode every change of a cell is one. In a row that breaks off the
// cell leads: the count that it shows becomes that of the last sample.
void ShowRow(int row, const GridRead& read) {
    const int slot = KeyIndex[row];
    const int counts = row < read.rows ? SampleCount : read.counts;
    frmMain.ChangingSample = counts == SampleCount && !AmendMode;
    frmMain.TaxonNames[slot].SetText(RowNames[row]);
    if (SampleCount > 0)
        ShowCounts(row, counts, read.has_count[row]);
    else
        ShowNoCounts(slot);
    frmMain.ChangingSample = false;
}

void CopyCellsThatFit() {
    for (int slot = 1; slot <= kSlots; ++slot)
        if (const double count = ShownCount(slot); Fits<std::int32_t>(count)) Counts[slot][CurrentSample] = ToInt32(count);
}

void StoreNameAndCells(void (*copy_cells)()) {
    SampleTable[kSampleName][CurrentSample] = frmMain.SampleList.Text();
    if (frmMain.KeysEnabled) copy_cells();  // else they show percentages, and no key has counted since they do
}
}  // namespace

void ShowSheet(const GridRead& read) {
    if (!read.serials) return;
    frmMain.FocusRest.SetText(std::to_string(SampleCount));
    if (!read.largest_serial) return;
    ShowSerial();
    if (!read.subtotal_names) return;
    ShowSubtotalNames();
    ShowSampleNames(frmMain.SampleList, read.sample_names);
    if (read.sample_names < SampleCount) return;
    for (TextBox& total : frmMain.Totals) total.SetText("0");
    for (int row = 1; row <= read.rows; ++row) ShowRow(row, read);
}

void StoreShownSample() {
    StoreNameAndCells(CopyCellsToCounts);
}

void StoreWhatFitsOfShownSample() {
    StoreNameAndCells(CopyCellsThatFit);
}

void StoreParamNames() {
    for (int p = 1; p <= kParams; ++p) ParamHeader[p][kParamName] = frmMain.ParamNames[p].Caption();
}

void NameSheetInTitle(const std::string& program) {
    frmMain.SetTitle(program + " - [" + SheetBaseName(SheetPath) + "]");
}

void ShowNewSampleName(const std::string& name) {
    ComboBox& list = frmMain.SampleList;
    frmMain.SampleName.SetText(name);
    AddHistoryLine("(New sample: " + name + ")");
    list.AddItem(name);
    list.SetText(name);
}

void ShowNote(int sample) {
    frmMain.SampleNote.SetText(SampleNotes[sample]);
}

void ShowParam(int p, const std::string& name, const std::string& value) {
    frmMain.ParamNames[p].SetCaption(name);
    frmMain.ParamBoxes[p].SetText(value);
}

void StoreSampleFields(std::int16_t sample, const TextBox& note, const Label (&names)[kParams + 1], const TextBox (&values)[kParams + 1]) {
    SampleNotes[sample] = note.Text();
    ShowNote(sample);
    for (int p = 1; p <= kParams; ++p) {
        const std::string& value = values[p].Text();
        ShowParam(p, names[p].Caption(), value.empty() ? kEmpty : value);
        ParamValues[p][sample] = frmMain.ParamBoxes[p].Text();
    }
}
