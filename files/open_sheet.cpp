#include "files/open_sheet.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "diagram/diversity_curve.h"
#include "diagram/open_diagram.h"
#include "files/back_up.h"
#include "files/format/read_sheet.h"
#include "files/sheet_on_screen.h"
#include "keys/settings/key_settings.h"
#include "platform/failure.h"
#include "platform/text.h"
#include "session/focus.h"
#include "session/history.h"
#include "session/leaving.h"
#include "session/pad_cells.h"
#include "session/sample_on_show.h"
#include "session/saved_state.h"
#include "session/sound.h"
#include "session/start_up.h"
#include "session/state/sample_names.h"
#include "session/state/sheet_state.h"
#include "session/told.h"
#include "session/totals.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"
#include "windows/next_window.h"

namespace {
constexpr std::size_t kLongTitleLength = 15;  // of "Marlbrook 2.7.5"; a shorter title gives its first 15 characters all the same

// false: the user keeps the sheet. "1/0" is no serial that a session shows, so a sheet that is not clean always asks.
bool MayReplaceSheet() {
    if (SheetClean) {
        SheetGivenUp.Raise(false);
        return true;
    }
    if (frmMain.AllTotal.Number() > 0) PlayIfOn(WaveError);
    const bool has_sample = frmMain.SerialNumber.Caption() != "1/0";
    if (has_sample) PlayIfOn(WaveError);
    if (!has_sample && AllTotal == 0) return true;
    if (!MayAbortData()) return false;
    RestoreSheet();
    SheetCleared.Raise();
    CloseDiagram();
    return true;
}

void ClearCounts() {
    for (auto& row : Counts) std::fill(row, row + SampleCount + 1, 0);
}

// A file without samples is a template: the sheet gets its one column, which frmSiteName will name.
void MakeColumnOfTemplate() {
    TemplateOpened = SampleCount == 0;
    if (!TemplateOpened) return;
    SampleCount = CurrentSample = MaxSerial = 1;
    SampleTable[kSampleSerial][1] = 1;
    ShowSerial();
    SampleTable[kSampleName][1] = frmMain.SampleName.Text();
}

void EmptyAndHide(ProgressBar& bar) {
    bar.SetValue(0);
    bar.SetVisible(false);
}

void CancelOpen(ProgressBar& bar) {
    SheetClean = true;
    SampleUntouched = false;
    MakeColumnOfTemplate();
    EmptyAndHide(bar);
}

void StartAfresh(int key_index) {
    SheetReplaced.Raise();  // the copy of the sheet before may not take this one while the message is open
    PlayIfOn(WaveError);
    services.messages->Show(
        {"Error", "Same key index (" + std::to_string(key_index) + ") is being used more than once.", Icon::Exclamation, Buttons::Ok});
    InitialiseSheet();
}

void ForgetUndos() {
    for (auto& entry : UndoList) {
        entry[0] = 1;
        entry[1] = 0;
    }
}

void ShowParams() {
    if (FileVersion != 2) return;
    for (int p = 1; p <= kParams; ++p) ShowParam(p, ParamHeader[p][kParamName], ParamValues[p][SampleCount].Text());
}

void ShowOpenedSheet(ProgressBar& bar) {
    RecountTotals(CurrentSample);
    ShowNote(SampleCount);
    frmMain.OfferNextSample();
    MarkSheetChanged(false);
    frmMain.mnuSave.SetEnabled(false);
    EmptyAndHide(bar);
    frmMain.AllTotalBasis.SetValue(true);
    for (int slot = 1; slot <= kSlots; ++slot) frmMain.TaxonNames[slot].SetUnderline(false);
}

void HandOver() {
    BackUpSheet();
    ApplyItalics();
    frmNext.Unload();
    CheckSampleNames();
    SheetClean = true;
    SampleUntouched = false;
    if (TemplateOpened)
        OpenDialog(frmSiteName);
    else
        GiveMainWindowBack();
}

// What was read before a fault is on the screen too.
void ReadAndShowGrid(CellReader& cells, ProgressBar& bar) {
    GridRead read;
    try {
        ReadGrid(cells, read, [&bar](int row) { bar.SetValue(row); });
    } catch (const Failure&) {
        ShowSheet(read);
        throw;
    }
    ShowSheet(read);
}

void ReadRest(CellReader& cells) {
    if (FileVersion > 1) ReadParamRows(cells);
    if (TemplateOpened) {
        frmSiteName.Load();
        for (int p = 1; p <= kParams; ++p)  // an older file has no names: those on the screen go on
            frmSiteName.ParamNames[p].SetCaption(FileVersion > 1 ? ParamHeader[p][kParamName]
                                                                 : WithoutTrailingColon(frmMain.ParamNames[p].Caption()));
    }
    ReadNotes(cells);
}

// false: a key index repeats, and the session has started afresh.
bool ReadFile(const std::string& path, CellReader& cells, ProgressBar& bar) {
    CloseDiagram();
    SheetPath = path;
    bar.SetVisible(true);
    ClearCounts();
    SheetHeader[kHeaderPath] = cells.Next();
    NameSheetInTitle(Left(frmMain.Title(), kLongTitleLength));
    ReadAndShowGrid(cells, bar);
    if (const std::optional<int> repeated = RepeatedKeyIndex()) {
        StartAfresh(*repeated);
        return false;
    }
    RecountTotals(CurrentSample);
    MakeColumnOfTemplate();
    ReadRest(cells);
    return true;
}

void FinishOpening(ProgressBar& bar) {
    PlaceKeyCellsIfKnown();
    ShowParams();
    SnapshotSheet();  // the names of the parameters come from the screen
    BeginDiversityCurve();
    ForgetUndos();
    AddHistoryLine("(Open) " + SheetPath);
    ShowOpenedSheet(bar);
    HandOver();
    SheetReplaced.Raise();
}

// What was read before a fault has taken the place of the sheet.
bool ReplaceSheet(const std::string& path, CellReader& cells, ProgressBar& bar) {
    try {
        if (!ReadFile(path, cells, bar)) return false;
        FinishOpening(bar);
        return true;
    } catch (const Failure&) {
        SheetReplaced.Raise();
        return false;
    }
}

// Where the sheets of the work in hand lie, whatever was exported in between to elsewhere.
std::string FolderOf(const std::string& path) {
    const std::size_t end = path.find_last_of("/\\");
    return end == std::string::npos ? "" : path.substr(0, end);
}

using Choice = std::function<bool(CommonDialog&)>;  // leaves the file in FileName; false: cancelled

// false: cancelled, or the file could not be read to its end.
bool ReadChosenFile(const Choice& choose, CommonDialog& dialog, ProgressBar& bar) {
    try {
        if (!choose(dialog)) return false;
        CellReader cells(ReadSheetText(dialog.FileName));
        return ReplaceSheet(dialog.FileName, cells, bar);
    } catch (const Failure&) {
        return false;
    }
}

void OpenChosenFile(const Choice& choose) {
    ProgressBar& bar = frmMain.Progress;
    if (!MayReplaceSheet()) {
        CancelOpen(bar);
        return;
    }
    SampleUntouched = true;
    bar.SetRange(0, kSlots);
    if (!ReadChosenFile(choose, frmMain.FileDialog, bar)) CancelOpen(bar);
}
}  // namespace

void OpenSheet() {
    OpenChosenFile([](CommonDialog& dialog) {
        if (dialog.first_folder.empty()) dialog.first_folder = FolderOf(SheetPath);
        return dialog.AskForOpening();
    });
}

void OpenSheetFile(const std::string& path) {
    OpenChosenFile([&path](CommonDialog& dialog) {
        dialog.FileName = path;
        return true;
    });
}

void OpenSheetFromButton() {
    OpenSheet();
    ApplyItalics();
    CheckSampleNames();
}
