#include "files/next_sample.h"

#include <string>

#include "diagram/move_sample_column.h"
#include "diagram/open_diagram.h"
#include "files/format/read_sheet.h"
#include "files/sheet_on_screen.h"
#include "platform/failure.h"
#include "platform/number.h"
#include "platform/text.h"
#include "session/focus.h"
#include "session/history.h"
#include "session/pad_cells.h"
#include "session/sample_on_show.h"
#include "session/saved_state.h"
#include "session/state/sheet_state.h"
#include "session/totals.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr double kUnnamedValue = -9999;

bool IsNameTaken(const std::string& name) {
    for (int sample = 1; sample <= SampleCount; ++sample)
        if (SampleTable[kSampleName][sample] == std::string_view(name)) return true;
    return false;
}

// A fresh sheet has a first sample that waits for its name; every later one gets a column.
void MakeColumn() {
    MaxSerial = LargestSerial();
    if (SampleTable[kSampleName][1] == kUnnamedValue) return;
    if (SampleCount == kColumns) throw Failure(kSubscriptOutOfRange);  // a file may bring more than kSampleLimit
    MaxSerial = ToInt16(MaxSerial + 1);
    CurrentSample = ++SampleCount;
}

// The name as it ends up in the sheet; an empty one becomes "4: ---".
std::string NameNewSample() {
    frmMain.SampleName.SetText("");
    if (frmNext.SampleName.Text().empty()) frmNext.SampleName.SetText(std::to_string(SampleCount) + ": " + kEmpty);
    std::string name = frmNext.SampleName.Text();
    ShowNewSampleName(name);
    SampleTable[kSampleSerial][SampleCount] = MaxSerial;
    SampleTable[kSampleName][SampleCount] = name;
    return name;
}

// The snapshot now has the new column, all zero.
void SnapshotWithNewColumn() {
    CountsAtOpen.resize(SampleCount + 1);
    for (int slot = 1; slot <= kSlots; ++slot) {
        CountsAtOpen[SampleCount][slot] = 0;
        for (int sample = 1; sample < SampleCount; ++sample) CountsAtOpen[sample][slot] = Counts[slot][sample];
    }
    SnapshotParams();
}

// Where the new name belongs among numeric names in order.
std::int16_t PlaceByValue(double value) {
    for (std::int16_t sample = 1; sample < SampleCount; ++sample)
        if (SampleTable[kSampleName][sample].Number() > value) return sample;
    return SampleCount;
}

void MoveIntoOrder(const std::string& name) {
    if (SampleNamesAreText) return;
    MoveFrom = SampleCount;
    MoveTo = PlaceByValue(Val(name));
    MoveSampleColumnUnseen();
}

void OfferParamNames() {
    for (int p = 1; p <= kParams; ++p) frmNext.ParamNames[p].SetCaption(frmMain.ParamNames[p].Caption());
}

void ShowStartFace() {
    frmNext.SampleFace.SetVisible(false);
    frmNext.SampleNameCaption.SetCaption("Name of the first sample: ");
    frmNext.OpenButton.SetVisible(true);
    frmNext.ManualButton.SetVisible(services.host->HasManual());
    frmNext.CancelButton.SetVisible(false);
    frmNext.unfolds_to = kBothFacesHeight;
    frmNext.SetSize(kNextWidth, kStartFaceHeight);
}

void PutOkBelowSampleFace() {
    frmNext.OkButton.SetPlace(kOkLeft, kSampleFaceHeight + 150);
}

void ShowSampleFace() {
    frmNext.SampleFace.SetPlace(0, 0);
    frmNext.SampleFace.SetWidth(kNextWidth);
    frmNext.SampleFace.SetBorder(false);
    frmNext.SampleFace.SetVisible(true);
    PutOkBelowSampleFace();
    frmNext.CancelButton.SetPlace(kCancelLeft, frmNext.OkButton.Top());
    frmNext.unfolds_to = 0;
    frmNext.SetSize(kNextWidth, kSampleFaceHeight + kOkRowHeight);
    frmNext.SampleNameCaption.SetCaption("Name of the next sample: ");
    frmNext.OpenButton.SetVisible(false);
    frmNext.CancelButton.SetVisible(true);
    frmNext.SampleName.SetFocus();  // the start face lies below, and no key should reach its button
}

// The main window waits. Where the start has asked for the keyboard, both windows wait for that answer.
void BringUpBehind(Window& main_window) {
    main_window.SetEnabled(false);
    if (frmInitial.Visible()) {
        main_window.Hide();
        frmNext.Hide();
    } else {
        main_window.Show();
    }
}

void ShowRenameButtons(bool visible) {
    for (int p = 1; p <= kParams; ++p) frmNext.RenameButtons[p].SetVisible(visible);
}

// Unless a sample was added, and the window is gone, it is whole again for the next opening. The main window can be used.
void EndAsking() {
    if (frmNext.IsLoaded()) {
        ShowRenameButtons(true);
        frmNext.StartFace.SetVisible(true);
    }
    frmMain.SetEnabled(true);
}
}  // namespace

void LoadNextWindow() {
    frmNext.SampleNote.SetText(FreshNote());
    if (SampleCount >= 1)
        ShowSampleFace();
    else
        ShowStartFace();
    frmMain.Load();
    for (int p = 1; p <= kParams; ++p) frmNext.ParamBoxes[p].SetText(kEmpty);
    OfferParamNames();
    BringUpBehind(frmMain);
    KeyboardKnown = 1;
}

void BringNextToFront() {
    frmMain.SetEnabled(false);
    if (SampleCount > 1) frmNext.SampleName.SetFocus();
}

void ShowSampleFields() {
    frmNext.SetSize(kNextWidth, kBothFacesHeight);
    frmNext.CreateButton.SetVisible(false);
    frmNext.OpenButton.SetTop((frmNext.CreateButton.Top() + frmNext.OpenButton.Top()) / 2);  // in the middle of the room of both
    frmNext.SampleFace.SetVisible(true);
    frmNext.SampleName.SetFocus();
}

void NextFile() {
    if (SampleCount == kSampleLimit) {
        services.messages->Show(
            {"Format regulation", "Sample number reached 250. Please create new data sheet.", Icon::Information, Buttons::Ok});
        return;
    }
    if (frmNext.IsLoaded()) OfferParamNames();  // a cancelled window waited, and the names may have changed
    frmNext.Show();
}

void NextFromButton() {
    SnapshotSheet();
    if (SampleCount != kSampleLimit) {
        frmNext.Load();
        PutOkBelowSampleFace();
        frmNext.CancelButton.SetVisible(true);
        frmNext.CreateButton.SetVisible(false);
        frmNext.StartFace.SetVisible(false);
    }
    NextFile();
    if (frmNext.IsLoaded()) ShowRenameButtons(false);
}

void NextFromMenu() {
    SnapshotSheet();
    NextFile();
}

void AddSample() {
    if (IsNameTaken(frmNext.SampleName.Text())) {
        services.messages->Show({"Error!", "The sample name is already used. Choose another name.", Icon::Exclamation, Buttons::Ok});
        return;
    }
    if (!IsPlainNumber(frmNext.SampleName.Text())) SampleNamesAreText = true;
    MakeColumn();
    const std::string name = NameNewSample();
    SnapshotWithNewColumn();
    EmptyCountCells();
    StoreSampleFields(SampleCount, frmNext.SampleNote, frmNext.ParamNames, frmNext.ParamBoxes);
    SnapshotParamNames();  // the start face may have renamed them
    frmNext.Unload();
    GiveMainWindowBack();
    CurrentSample = SampleCount;
    ShowSerial();
    ShowZeroTotals();
    LogShownLineAgain();  // twice in the log and once in the list: docs/quirks.md
    MoveIntoOrder(name);
    RebuildDiagram();
}

void AcceptSample() {
    AddSample();
    EndAsking();
    if (SampleUntouched) CloseDiagram();
}

void CancelSample() {
    EndAsking();
    frmNext.Hide();  // what was typed waits for the next opening
}

void CloseNextByFrame() {
    if (frmNext.CancelButton.Visible()) {
        CancelSample();
        return;
    }
    frmNext.Unload();
    GiveMainWindowBack();
}
