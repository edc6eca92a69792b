#include "files/save_sheet.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "diagram/data/percentages.h"
#include "files/format/sheet_rows.h"
#include "files/sheet_on_screen.h"
#include "platform/failure.h"
#include "platform/number.h"
#include "platform/text.h"
#include "session/focus.h"
#include "session/history.h"
#include "session/saved_state.h"
#include "session/sound.h"
#include "session/state/sheet_state.h"
#include "session/told.h"
#include "windows/main_window.h"

namespace {
constexpr double kNoBasisPercent = 9999;

bool IsPercentTable(std::int16_t mode) {
    return mode >= kSavePercentAll;
}

// The others write a table, or a copy beside the sheet.
bool IsPlainSave(std::int16_t mode) {
    return mode == kSave || mode == kSaveClean || mode == kSaveAs;
}

// The sums of each sample: [0] all, [1] subtotal 1, [2] subtotal 2; of 16 bits each.
using Sums = std::vector<std::int16_t>;  // [sample]; [0] unused
using SubtotalSums = std::array<Sums, 3>;

// The loop has one way out and no number wider than a count, so that the compiler can take several samples at once. A sum that wraps round
// in 32 bits is beyond 16 bits as well.
void AddCounts(int slot, Sums& sums) {
    bool fits = true;
    for (std::size_t sample = 1; sample < sums.size(); ++sample) {
        const auto sum =
            static_cast<std::int32_t>(static_cast<std::uint32_t>(sums[sample]) + static_cast<std::uint32_t>(Counts[slot][sample]));
        sums[sample] = static_cast<std::int16_t>(sum);
        fits &= sums[sample] == sum;
    }
    if (!fits) throw Failure(kOverflow);
}

void AddWeightedCounts(int slot, double weight, Sums& sums) {
    for (std::size_t sample = 1; sample < sums.size(); ++sample) sums[sample] = ToInt16(sums[sample] + Counts[slot][sample] * weight);
}

// A flag is 0 or 1 unless a file brings another.
void AddFlaggedCounts(int slot, double flag, Sums& sums) {
    if (flag == 1)
        AddCounts(slot, sums);
    else if (flag != 0)
        AddWeightedCounts(slot, flag, sums);
}

SubtotalSums SumSamples() {
    SubtotalSums sums;
    for (auto& row : sums) row.resize(SampleCount + 1);
    for (int slot = 1; slot <= kSlots; ++slot) {
        AddCounts(slot, sums[0]);
        for (int subtotal = 1; subtotal <= kSubtotals; ++subtotal)
            AddFlaggedCounts(slot, TaxonTable[slot][kSubtotalFlags[subtotal - 1]].Number(), sums[subtotal]);
    }
    return sums;
}

// "/core_(14.11.2026).csv" of "/core.csv", on that day.
std::string NameOfCopy() {
    const std::string date = services.clock->DateText();
    return Left(SheetPath, Length(SheetPath) - 4) + "_(" + Left(date, 2) + "." + Mid(date, 4, 2) + "." + Right(date, 4) + ").csv";
}

// The file that the save goes to; empty if the user cancels the dialog.
std::string ChooseTarget(std::int16_t mode) {
    CommonDialog& dialog = frmMain.FileDialog;
    if (mode == kSaveCopy) dialog.FileName = NameOfCopy();
    if (mode == kSaveAs || mode == kSaveCopy || IsPercentTable(mode)) return dialog.AskForSaving() ? dialog.FileName : "";
    SnapshotSheet();
    return SheetPath;
}

// Only the first Save as of a session moves the sheet; later ones write their file and leave the sheet where it is.
void AdoptPath(const std::string& path) {
    SheetPath = path;
    NameSheetInTitle("Marlbrook 2.7");
    SaveAsPending = false;
}

void WritePercentRow(CellWriter& cells, int row) {
    WriteTaxonLabels(cells, row);
    for (int sample = 1; sample <= SampleCount; ++sample) {
        const float percent = SamplePercent[KeyIndex[row]][sample] * 100;
        cells.Write(RoundHalfEven(percent, 4));
    }
    cells.EndRow();
}

void WriteTaxonRows(CellWriter& cells, std::int16_t mode, const Busy& busy) {
    for (int row = 1; row <= kSlots; ++row) {
        IsPercentTable(mode) ? WritePercentRow(cells, row) : WriteCountRow(cells, row);
        busy.Reach(row);
    }
}

// One line at the end of the note tells the last save: a later one takes its place, unless something was written after it.
void StampNote(TextBox& box) {
    constexpr std::size_t kStampLength = 33;
    const std::string note = box.Text();
    const std::string stamp = "Last saved: " + NoteStamp();
    if (Length(note) >= kStampLength && Left(Right(note, kStampLength), 10) == "Last saved")
        box.SetText(Left(note, Length(note) - kStampLength) + stamp);
    else
        box.SetText(note + "\r\n" + stamp);
}

// A sum of a percentage table: the basis itself, or its share of the basis.
Any ShareOfBasis(std::int16_t sum, std::int16_t basis_sum, bool is_basis) {
    if (is_basis) return "100 (n=" + std::to_string(sum) + ")";
    if (basis_sum == 0) return kNoBasisPercent;
    return RoundHalfEven(static_cast<double>(sum) / basis_sum * 100, 4);
}

void WriteSumRows(CellWriter& cells, std::int16_t mode, const SubtotalSums& sums) {
    const Any labels[3] = {"All total", SheetHeader[kHeaderSubtotal1], SheetHeader[kHeaderSubtotal2]};
    const int basis = mode - kSavePercentAll;
    for (const int which : {1, 2, 0}) {
        WriteSumLabels(cells, labels[which]);
        for (int sample = 1; sample <= SampleCount; ++sample)
            cells.Write(IsPercentTable(mode) ? ShareOfBasis(sums[which][sample], sums[basis][sample], which == basis)
                                             : sums[which][sample]);
        cells.EndRow();
    }
}

void GatherTexts() {
    StoreParamNames();
    FillEmptyParams();
    StampNote(frmMain.SampleNote);
    FillEmptyNotes();
}

void WriteRows(CellWriter& cells, std::int16_t mode, const SubtotalSums& sums, const Busy& busy) {
    WriteTaxonRows(cells, mode, busy);
    WriteParamRows(cells, SampleCount);
    if (!IsPercentTable(mode)) WriteNoteRow(cells, SampleCount);
    WriteSumRows(cells, mode, sums);
}

// A file that cannot be opened changes nothing; a disk that takes no more finds all of the sheet gathered.
void WriteFile(const std::string& path, std::int16_t mode, const SubtotalSums& sums, const Busy& busy) {
    const auto file = services.files->OpenForWriting(path);
    if (mode == kSaveAs && SaveAsPending) AdoptPath(path);
    LabelHeader("Last saved (dd/mm/yyyy):", FileStamp());
    const bool was_changed = IsSheetChanged();
    MarkSheetChanged(false);
    if (IsPercentTable(mode)) AllSamplePercentages();
    GatherTexts();
    CellWriter cells(*file);
    WriteHeaderRows(cells, SampleCount);
    const std::size_t header_size = cells.Size();
    WriteRows(cells, mode, sums, busy);
    try {
        cells.Close();
    } catch (const WriteFailure& failure) {  // a full disk that has not even the first rows has no sheet
        if (failure.taken < header_size) MarkSheetChanged(was_changed);
        throw;
    }
}

void TellSaved() {
    TemplateOpened = false;
    PlayIfOn(WaveSave);
    frmMain.OfferNextSample();
    AddHistoryLine("(Save)");
    frmMain.mnuSaveCopy.SetEnabled(true);
}

void TellFailed(std::int16_t mode) {
    services.sounds->Beep();
    SaveOutcome = 2;
    services.messages->Show(
        {"Error", "The file is being used by another software. Please close the file and try again.", Icon::Exclamation, Buttons::Ok});
    if (IsPlainSave(mode)) SaveFailed.Raise();
}
}  // namespace

void SaveSheet(std::int16_t mode) {
    const Busy busy(kSlots);
    const SubtotalSums sums = SumSamples();
    if (SheetPath.empty() && !IsPercentTable(mode)) mode = kSaveAs;
    StoreShownSample();
    const std::string path = ChooseTarget(mode);
    if (path.empty()) {
        SaveOutcome = 2;
        return;
    }
    SaveBegins.Raise(path);
    try {
        WriteFile(path, mode, sums, busy);
        TellSaved();
        if (IsPlainSave(mode) || (mode == kSaveCopy && path == SheetPath))
            SheetSaved.Raise();
        else if (mode == kSaveCopy)
            SheetCopied.Raise();
        if (mode == kSave) ReturnFocus();
    } catch (const Failure&) {
        TellFailed(mode);
    }
}

void SaveAsCounted() {
    SaveSheet(SheetClean ? kSaveClean : kSave);
}

void SaveFromMenu() {
    SnapshotSheet();
    SaveAsCounted();
    ReturnFocus();
}

void SaveFromButton() {
    SnapshotSheet();
    SaveSheet(kSave);
}

void CheckIfReallyEnd() {
    SaveFromButton();
}

void SavePercentTable(int basis) {
    frmMain.BasisOptions[basis].SetValue(true);
    SaveSheet(static_cast<std::int16_t>(kSavePercentAll + basis));
    AlarmArmed = true;
}
