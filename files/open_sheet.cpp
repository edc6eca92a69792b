#include "files/open_sheet.h"

#include <algorithm>
#include <optional>
#include <string>

#include "diagram/open_diagram.h"
#include "files/back_up.h"
#include "files/format/read_sheet.h"
#include "files/format/sheet_base_name.h"
#include "files/sheet_on_screen.h"
#include "keys/settings/key_settings.h"
#include "platform/encoding.h"
#include "platform/failure.h"
#include "platform/number.h"
#include "platform/text.h"
#include "session/changed_mark.h"
#include "session/dialog.h"
#include "session/history.h"
#include "session/italics.h"
#include "session/leaving.h"
#include "session/snapshot.h"
#include "session/sound.h"
#include "session/start_up.h"
#include "session/state/sample_names.h"
#include "session/state/sheet_state.h"
#include "session/told.h"
#include "session/totals.h"
#include "windows/main_window.h"
#include "windows/next_window.h"
#include "windows/site_name_window.h"

namespace {
constexpr std::size_t kLongTitleLength = 15;  // of "Marlbrook 2.7.5"; a shorter title gives its first 15 characters all the same

// False: the user keeps the sheet. "1/0" is no serial that a session shows, so a sheet that is not clean always asks.
bool MayReplaceSheet() {
    if (SheetClean) return true;
    if (frmMain.AllTotal.Number() > 0) PlayIfOn(WaveError);
    const bool has_sample = frmMain.SerialNumber.Caption() != "1/0";
    if (has_sample) PlayIfOn(WaveError);
    if (!has_sample && AllTotal == 0) return true;
    if (!MayAbortData()) return false;
    RestoreSheet();
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
    frmMain.SerialNumber.SetCaption("1/1");
    SampleTable[1][1] = 1;
    SampleTable[2][1] = frmMain.SampleName.Text();
}

void CancelOpen() {
    SheetClean = true;
    SampleUntouched = false;
    MakeColumnOfTemplate();
    frmMain.Progress.SetValue(0);
    frmMain.Progress.SetVisible(false);
}

// The key index that two rows have in common, the first met going down.
std::optional<int> RepeatedKeyIndex() {
    for (int row = 2; row <= kSlots; ++row)
        if (std::find(&KeyIndex[1], &KeyIndex[row], KeyIndex[row]) != &KeyIndex[row]) return KeyIndex[row];
    return std::nullopt;
}

void StartAfresh(int key_index) {
    PlayIfOn(WaveError);
    services.messages->Show(
        {"Error", "Same key index (" + std::to_string(key_index) + ") is being used more than once.", Icon::Exclamation, Buttons::Ok});
    InitialiseSheet();
    RecountTotals(CurrentSample);
}

// The curve knows nothing of how the counts of the file were made: it only has room for them.
void BeginCurve() {
    constexpr double kLongestCurve = 32767;
    frmMain.DiversityPicture.Clear();
    DiversityCurve.clear();
    const double total = frmMain.AllTotal.Number();
    if (total < 0 || total > kLongestCurve) return;
    DiversityCurve.resize(static_cast<std::size_t>(total) + 1);
    DiversityCurve[0] = ToInteger(total);
}

void ForgetUndos() {
    for (auto& entry : UndoList) {
        entry[0] = 1;
        entry[1] = 0;
    }
}

void ShowParams() {
    if (FileVersion != 2) return;
    for (int p = 1; p <= kParams; ++p) {
        frmMain.ParamNames[p].SetCaption(ParamHeader[p][4]);  // ends in one colon, the label sees to it
        frmMain.ParamBoxes[p].SetText(ParamValues[p][SampleCount].Text());
    }
}

void ShowOpenedSheet() {
    RecountTotals(CurrentSample);
    frmMain.SampleNote.SetText(SampleNotes[SampleCount]);
    frmMain.NextSampleButton.SetEnabled(true);
    frmMain.mnuNext.SetEnabled(true);
    MarkSheetChanged(false);
    frmMain.mnuSave.SetEnabled(false);
    frmMain.Progress.SetValue(0);
    frmMain.Progress.SetVisible(false);
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
void ReadAndShowGrid(CellReader& cells) {
    GridRead read;
    try {
        ReadGrid(cells, read, [](int row) { frmMain.Progress.SetValue(row); });
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
            frmSiteName.ParamNames[p].SetCaption(FileVersion > 1 ? ParamHeader[p][4]
                                                                 : WithoutTrailingColon(frmMain.ParamNames[p].Caption()));
    }
    ReadNotes(cells);
}

// False: a key index repeats, and the session has started afresh.
bool ReadFile(const std::string& path) {
    CellReader cells(DecodeFile(services.files->ReadAll(path)));
    CloseDiagram();
    SheetPath = path;
    frmMain.Progress.SetVisible(true);
    ClearCounts();
    SheetHeader[6] = cells.Next();
    frmMain.SetTitle(Left(frmMain.Title(), kLongTitleLength) + " - [" + SheetBaseName(path) + "]");
    ReadAndShowGrid(cells);
    if (const std::optional<int> repeated = RepeatedKeyIndex()) {
        StartAfresh(*repeated);
        return false;
    }
    RecountTotals(CurrentSample);
    MakeColumnOfTemplate();
    ReadRest(cells);
    return true;
}

void FinishOpening() {
    PlaceKeyCellsIfKnown();
    ShowParams();
    SnapshotSheet();  // the names of the parameters come from the screen
    BeginCurve();
    ForgetUndos();
    AddHistoryLine("(Open) " + SheetPath);
    ShowOpenedSheet();
    HandOver();
    SheetReplaced.Raise();
}

// False: cancelled, or the file could not be read to its end.
bool ReadChosenFile() {
    try {
        if (!frmMain.FileDialog.AskForOpening() || !ReadFile(frmMain.FileDialog.FileName)) return false;
        FinishOpening();
        return true;
    } catch (const Failure&) {
        return false;
    }
}
}  // namespace

void OpenSheet() {
    if (!MayReplaceSheet()) {
        CancelOpen();
        return;
    }
    SampleUntouched = true;
    frmMain.Progress.SetRange(0, kSlots);
    if (!ReadChosenFile()) CancelOpen();
}

void OpenSheetFromButton() {
    OpenSheet();
    ApplyItalics();
    CheckSampleNames();
}
